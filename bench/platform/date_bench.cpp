// The date reader, each form of a text beside a hand-written reader of DD/MM/YYYY and nothing else.
#include "gabarito/platform/date.h"

#include <benchmark/benchmark.h>

#include <string_view>

namespace gabarito {
namespace {

bool FloorRead(std::u16string_view text, Date& date) {
  if (text.size() != 10 || text[2] != u'/' || text[5] != u'/') return false;
  const auto digit = [text](int i) { return text[static_cast<std::size_t>(i)] - u'0'; };
  for (const int i : {0, 1, 3, 4, 6, 7, 8, 9}) {
    if (digit(i) < 0 || digit(i) > 9) return false;
  }
  const DateParts parts{digit(6) * 1000 + digit(7) * 100 + digit(8) * 10 + digit(9),
                        digit(3) * 10 + digit(4),
                        digit(0) * 10 + digit(1),
                        0,
                        0,
                        0};
  if (!IsInCalendar(parts)) return false;
  date = DateFromParts(parts);
  return true;
}

void BM_DateFloor(benchmark::State& state) {
  std::u16string_view text = u"25/12/2024";
  Date date = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(text);
    benchmark::DoNotOptimize(FloorRead(text, date));
    benchmark::DoNotOptimize(date);
  }
}
BENCHMARK(BM_DateFloor)->Name("ReadForm/DayMonthYear_floor");

void ReadForm(benchmark::State& state, std::u16string_view text) {
  const Regional regional;
  Date date = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(text);
    benchmark::DoNotOptimize(ReadDate(text, regional, 45356, date));
    benchmark::DoNotOptimize(date);
  }
}
BENCHMARK_CAPTURE(ReadForm, DayMonthYear, u"25/12/2024");
BENCHMARK_CAPTURE(ReadForm, ShortYear, u"5/3/24");
BENCHMARK_CAPTURE(ReadForm, YearMonthDayTime, u"2024-12-25T07:30:15");
BENCHMARK_CAPTURE(ReadForm, MonthName, u"25 de dezembro de 2024");
BENCHMARK_CAPTURE(ReadForm, MonthAndYear, u"03/2024");
BENCHMARK_CAPTURE(ReadForm, PresentYear, u"12/03/");
BENCHMARK_CAPTURE(ReadForm, Time, u"07:30");
BENCHMARK_CAPTURE(ReadForm, Impossible, u"31/02/2024");

}  // namespace
}  // namespace gabarito
