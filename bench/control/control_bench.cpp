// The whole field on the in-memory host: a value in and out, a layout, a key. The floor of a key is what a
// form without this field would do for it: test the digit, append it to an array, call one callback.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <functional>
#include <string>

#include "gabarito/control/especie.h"
#include "hosts/kit/field_model.h"
#include "hosts/memory/form.h"

namespace gabarito {
namespace {

const struct {
  std::int32_t mask;
  std::u16string_view value;
  char key;  // that fits the first box
} kKinds[] = {
    {gbNenhuma, u"Rua das Flores, 12", 'A'},
    {gbLetra, u"Ouro Preto", 'A'},
    {gbAlfanumerico, u"AB12CD", 'A'},
    {gbData, u"05/03/2024", '1'},
    {gbDataAtual, u"05/03/2024", '1'},
    {gbMesAno, u"03/2024", '1'},
    {gbHora, u"07:30", '1'},
    {gbInteiro, u"12345", '1'},
    {gbReal, u"1.234,5", '1'},
    {gbMoeda, u"1.234,5", '1'},
    {gbCEP, u"01310-100", '1'},
    {gbTelefone, u"(11) 3333-4444", '1'},
    {gbDefUsr, u"12/34", '1'},
    {gbVersao, u"1.2.3", '1'},
    {gbListaNoCombo, u"sao paulo", 'S'},
    {gbCPF, u"11144477735", '1'},
    {gbCNPJ, u"11222333000181", '1'},
    {gbCidadeEstado, u"Ouro Preto/MG", 'A'},
    {gbEstado, u"SP", 'S'},
    {gbCidadeEstadoPopulado, u"SAO JOSE DOS CAMPOS/SP", 'S'},
    {gbCartaoCredito, u"4111111111111111", '1'},
    {gbIntervaloNumerico, u"1#250", '1'},
    {gbEnderecoEmail, u"maria@example.org", 'A'},
};

// A form with one field that has the focus.
struct Bench {
  explicit Bench(std::int32_t mask) : field(form.AddField("field")) {
    field.Create();
    field->ComboItens(MakeArray({u"Rio de Janeiro", u"São Paulo", u"Belo Horizonte"}));
    field->MaskText(u"##/##");
    field->Mask(mask);
    field->KeyUp([this](std::int16_t&, std::int16_t&) { benchmark::DoNotOptimize(++keys); });
    form.SetFocus(*field.Surface());
  }

  // Back to an empty field by ways that no handler sees, so that they cost next to nothing.
  void Empty() {
    for (kit::TextBoxModel& box : field.Parts().txt_entrada3D) box.Entry().Text({});
    field.Parts().Combo1.Entry().Text({});
    field.Parts().MaskEdBox1.Entry().Text({});
  }

  memory::Form form;
  memory::Field& field;
  std::int64_t keys = 0;
};

void WriteAndRead(benchmark::State& state, std::int32_t mask, std::u16string_view value) {
  Bench bench(mask);
  for (auto _ : state) {
    bench.field->Text(value);
    auto text = bench.field->Text();
    benchmark::DoNotOptimize(text);
  }
}

void Layout(benchmark::State& state, std::int32_t mask) {
  Bench bench(mask);
  for (auto _ : state) bench.field.Events().UserControl_Resize();
}

void Key(benchmark::State& state, std::int32_t mask, char key) {
  Bench bench(mask);
  for (auto _ : state) {
    bench.Empty();
    bench.form.Press(key);
  }
}

void Type(benchmark::State& state, std::int32_t mask, std::u16string_view digits) {
  Bench bench(mask);
  kit::TextBoxModel& first = bench.field.Parts().txt_entrada3D[0];
  for (auto _ : state) {
    bench.Empty();
    bench.form.SetFocus(first);
    for (const char16_t digit : digits) bench.form.Press(static_cast<std::int16_t>(digit));
  }
}

class FloorBox {
 public:
  explicit FloorBox(std::function<void(char16_t)> callback) : callback_(std::move(callback)) {}
  [[gnu::noinline]] void Key(char16_t character) {
    if (character < u'0' || character > u'9' || size_ == text_.size()) return;
    text_[size_++] = character;
    callback_(character);
  }
  void Empty() { size_ = 0; }

 private:
  std::array<char16_t, 64> text_{};
  std::size_t size_ = 0;
  std::function<void(char16_t)> callback_;
};

void TypeFloor(benchmark::State& state, std::u16string_view digits) {
  std::int64_t keys = 0;
  FloorBox box([&](char16_t) { benchmark::DoNotOptimize(++keys); });
  for (auto _ : state) {
    box.Empty();
    for (const char16_t digit : digits) box.Key(digit);
    benchmark::DoNotOptimize(box);
  }
}

void Register() {
  for (const auto& [mask, value, key] : kKinds) {
    const auto kinds = Especies();
    const auto kind =
        std::find_if(kinds.begin(), kinds.end(), [&](const auto& e) { return e.valor == mask; });
    const std::string name(kind->nome);
    benchmark::RegisterBenchmark(("WriteAndRead/" + name).c_str(), WriteAndRead, mask, value);
    benchmark::RegisterBenchmark(("Layout/" + name).c_str(), Layout, mask);
    benchmark::RegisterBenchmark(("Key/" + name).c_str(), Key, mask, key);
    benchmark::RegisterBenchmark(("Key/" + name + "_floor").c_str(), TypeFloor, u"1");
  }
  benchmark::RegisterBenchmark("Type/CPF", Type, gbCPF, u"11144477735");
  benchmark::RegisterBenchmark("Type/CPF_floor", TypeFloor, u"11144477735");
  benchmark::RegisterBenchmark("Type/Date", Type, gbData, u"05032024");
  benchmark::RegisterBenchmark("Type/Date_floor", TypeFloor, u"05032024");
}

const bool kRegistered = (Register(), true);

}  // namespace
}  // namespace gabarito
