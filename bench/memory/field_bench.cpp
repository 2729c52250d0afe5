// Making a field on the in-memory host: time, and the memory that it keeps ("bytes" beside each row).
#include <benchmark/benchmark.h>
#include <malloc.h>

#include <vector>

#include "hosts/memory/form.h"

namespace gabarito {
namespace {

// A thousand fields of one kind on a form, over one that is there already: what all share counts for none.
void Make(benchmark::State& state, std::int32_t mask) {
  constexpr int kFields = 1000;
  double bytes = 0;
  memory::Form shared;
  memory::Field& first = shared.AddField("first");
  first.Create();
  first->Mask(mask);
  for (auto _ : state) {
    state.PauseTiming();
    auto form = std::make_unique<memory::Form>();
    std::vector<memory::Field*> fields;
    for (int i = 0; i < kFields; ++i) fields.push_back(&form->AddField({}));
    const std::size_t before = mallinfo2().uordblks;
    state.ResumeTiming();
    for (memory::Field* const field : fields) {
      field->Create();
      (*field)->Mask(mask);
    }
    state.PauseTiming();
    bytes = static_cast<double>(mallinfo2().uordblks - before) / kFields;
    form.reset();
    state.ResumeTiming();
  }
  state.counters["bytes"] = bytes;
  state.SetItemsProcessed(state.iterations() * kFields);
}

BENCHMARK_CAPTURE(Make, CPF, gbCPF)->Name("Make1000/gbCPF");
BENCHMARK_CAPTURE(Make, Data, gbData)->Name("Make1000/gbData");
BENCHMARK_CAPTURE(Make, Cidade, gbCidadeEstadoPopulado)->Name("Make1000/gbCidadeEstadoPopulado");

}  // namespace
}  // namespace gabarito
