// The list of Combo1 with the city table in it: filling, type-ahead, searching. Floors work on a plain sorted
// or unsorted vector of the same lines.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "gabarito/combo/municipios.h"
#include "gabarito/combo/procura.h"
#include "hosts/kit/combo_list.h"
#include "hosts/kit/field_model.h"
#include "hosts/memory/form.h"

namespace gabarito {
namespace {

constexpr std::u16string_view kCity = u"SAO JOSE DOS CAMPOS/SP";

std::vector<std::u16string_view> Table() {
  std::vector<std::u16string_view> lines;
  for (std::int32_t id = 1; id <= kMunicipios; ++id) lines.push_back(LoadResString(id));
  return lines;
}

// A form with one field of cities that has the focus.
struct Cities {
  Cities() : field(form.AddField("cities")), combo((field.Create(), field.Parts().Combo1)) {
    field->Mask(gbCidadeEstadoPopulado);
    form.SetFocus(*field.Surface());
  }
  memory::Form form;
  memory::Field& field;
  kit::ComboModel& combo;
};

void Fill(benchmark::State& state) {
  Cities cities;
  for (auto _ : state) cities.field.Events().UserControl_Resize();
}
BENCHMARK(Fill);

// One line after the other, as they would be kept by somebody who needs no list box.
void FillFloor(benchmark::State& state) {
  std::u16string texts;
  std::vector<std::uint32_t> ends;
  for (auto _ : state) {
    texts.clear();
    ends.clear();
    for (std::int32_t id = 1; id <= kMunicipios; ++id) {
      texts.append(LoadResString(id));
      ends.push_back(static_cast<std::uint32_t>(texts.size()));
    }
    benchmark::DoNotOptimize(texts.data());
    benchmark::DoNotOptimize(ends.data());
  }
}
BENCHMARK(FillFloor)->Name("Fill_floor");

// The last character of `typed`, when what stands before it was typed and completed.
void TypeAhead(benchmark::State& state, std::u16string typed) {
  Cities cities;
  const std::u16string before = typed.substr(0, typed.size() - 1);
  const auto stroke = kit::Abnt2().StrokeFor(typed.back());
  for (auto _ : state) {
    cities.combo.Entry().Text(before);
    cities.combo.Entry().SelStart(static_cast<std::int32_t>(before.size()));
    cities.form.Press(stroke->vk, stroke->shift);
  }
}

void TypeAheadFloor(benchmark::State& state, std::u16string typed) {
  std::vector<std::u16string_view> sorted = Table();
  std::sort(sorted.begin(), sorted.end());
  for (auto _ : state) {
    benchmark::DoNotOptimize(typed);
    auto found = std::lower_bound(sorted.begin(), sorted.end(), std::u16string_view(typed));
    const bool begins = found != sorted.end() && found->starts_with(typed);
    benchmark::DoNotOptimize(begins);
  }
}

void BuildIndex(benchmark::State& state) {
  const std::vector<std::u16string_view> table = Table();
  char16_t another = 0;
  for (auto _ : state) {
    state.PauseTiming();
    kit::ComboList list;
    list.Add({&++another, 1});  // no two alike, which would share their index
    for (const std::u16string_view line : table) list.Add(line);
    state.ResumeTiming();
    benchmark::DoNotOptimize(list.FindBeginning(kCity));
  }
}
BENCHMARK(BuildIndex);

void BuildIndexFloor(benchmark::State& state) {
  const std::vector<std::u16string_view> table = Table();
  for (auto _ : state) {
    std::vector<std::u16string_view> sorted = table;
    std::sort(sorted.begin(), sorted.end());
    benchmark::DoNotOptimize(sorted.data());
  }
}
BENCHMARK(BuildIndexFloor)->Name("BuildIndex_floor");

void SelectLastLine(benchmark::State& state) {
  Cities cities;
  const std::u16string_view last = LoadResString(kMunicipios);
  for (auto _ : state) cities.field->Text(last);
}
BENCHMARK(SelectLastLine);

void ExistsLastLine(benchmark::State& state) {
  Cities cities;
  std::u16string_view last = LoadResString(kMunicipios);
  for (auto _ : state) {
    benchmark::DoNotOptimize(last);
    benchmark::DoNotOptimize(ExisteNoCombo(cities.field.Events().Estado(), last));
  }
}
BENCHMARK(ExistsLastLine);

void LinearFloor(benchmark::State& state) {
  const std::vector<std::u16string_view> table = Table();
  std::u16string_view last = LoadResString(kMunicipios);
  for (auto _ : state) {
    benchmark::DoNotOptimize(last);
    benchmark::DoNotOptimize(std::find(table.begin(), table.end(), last));
  }
}
BENCHMARK(LinearFloor)->Name("SelectLastLine_floor");
BENCHMARK(LinearFloor)->Name("ExistsLastLine_floor");

void RegisterTypeAhead(const std::string& name, const std::u16string& typed) {
  benchmark::RegisterBenchmark(name.c_str(), TypeAhead, typed);
  benchmark::RegisterBenchmark((name + "_floor").c_str(), TypeAheadFloor, typed);
}

const bool kRegistered = [] {
  for (std::size_t n = 1; n <= kCity.size(); ++n) {
    std::string name = "TypeAhead/";
    for (const char16_t c : kCity.substr(0, n)) name.push_back(c == u' ' ? '_' : static_cast<char>(c));
    RegisterTypeAhead(name, std::u16string(kCity.substr(0, n)));
  }
  RegisterTypeAhead("TypeAhead/nothing_found", u"SAO JOSEX");
  return true;
}();

}  // namespace
}  // namespace gabarito
