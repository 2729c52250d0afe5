// The text and number functions, each beside a floor: a loop that does the same for this one text or value.
#include <benchmark/benchmark.h>

#include <array>
#include <charconv>
#include <string>
#include <string_view>

#include "gabarito/platform/number.h"
#include "gabarito/platform/text.h"

namespace gabarito {
namespace {

using View = std::u16string_view;

// Runs `routine` on `argument`, which the optimiser cannot see through.
template <class Routine, class Argument>
void Run(benchmark::State& state, Routine routine, Argument argument) {
  for (auto _ : state) {
    benchmark::DoNotOptimize(argument);
    auto result = routine(argument);
    benchmark::DoNotOptimize(result);
  }
}

bool IsDigit(char16_t unit) { return unit >= u'0' && unit <= u'9'; }

double ValFloor(View text) {
  double value = 0;
  for (std::size_t at = 0; at < text.size() && IsDigit(text[at]); ++at)
    value = value * 10 + (text[at] - u'0');
  return value;
}

double RealFloor(View text) {
  std::array<char, 32> ascii;
  std::size_t size = 0;
  for (; size < text.size() && size < ascii.size(); ++size) ascii[size] = static_cast<char>(text[size]);
  double value = 0;
  std::from_chars(ascii.data(), ascii.data() + size, value);
  return value;
}

bool AllDigitsFloor(View text) {
  for (const char16_t unit : text) {
    if (!IsDigit(unit)) return false;
  }
  return !text.empty();
}

std::u16string UCaseFloor(View text) {
  std::u16string capitals(text);
  for (char16_t& unit : capitals) {
    if (unit >= u'a' && unit <= u'z') unit = static_cast<char16_t>(unit - 0x20);
  }
  return capitals;
}

std::u16string ToTextFloor(double value) {
  std::array<char, 32> buffer;
  char* const end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr;
  return std::u16string(buffer.data(), end);
}

// One decimal scaled by 100: its shortest digits as an integer, then one division.
double HundredfoldFloor(double value) {
  std::array<char, 32> buffer;
  char* const end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr;
  std::int64_t digits = 0;
  double unit = 1;
  bool isFraction = false;
  for (const char* at = buffer.data(); at != end; ++at) {
    if (*at == '.') {
      isFraction = true;
      continue;
    }
    digits = digits * 10 + (*at - '0');
    if (isFraction) unit *= 10;
  }
  return static_cast<double>(digits * 100) / unit;
}

bool IsBrazilianNumber(View text) {
  static const Regional kBrazil;
  return IsNumeric(text, kBrazil);
}

BENCHMARK_CAPTURE(Run, ValInteger_floor, ValFloor, View(u"123"));
BENCHMARK_CAPTURE(Run, ValInteger, Val, View(u"123"));
BENCHMARK_CAPTURE(Run, ValReal_floor, RealFloor, View(u"1234567.891"));
BENCHMARK_CAPTURE(Run, ValReal, Val, View(u"1234567.891"));
BENCHMARK_CAPTURE(Run, IsNumeric_floor, AllDigitsFloor, View(u"4111111111111111"));
BENCHMARK_CAPTURE(Run, IsNumeric, IsBrazilianNumber, View(u"4111111111111111"));
BENCHMARK_CAPTURE(Run, NumberToTextInteger_floor, ToTextFloor, 250.0);
BENCHMARK_CAPTURE(
    Run, NumberToTextInteger, [](double value) { return NumberToText(value); }, 250.0);
BENCHMARK_CAPTURE(Run, NumberToTextReal_floor, ToTextFloor, 1234.56);
BENCHMARK_CAPTURE(
    Run, NumberToTextReal, [](double value) { return NumberToText(value); }, 1234.56);
BENCHMARK_CAPTURE(Run, DecimalProduct_floor, HundredfoldFloor, 1.005);
BENCHMARK_CAPTURE(
    Run, DecimalProduct, [](double value) { return DecimalProduct(value, 100); }, 1.005);
BENCHMARK_CAPTURE(Run, Like_floor, AllDigitsFloor, View(u"345678"));
BENCHMARK_CAPTURE(
    Run, Like, [](View text) { return Like(text, u"######"); }, View(u"345678"));
BENCHMARK_CAPTURE(Run, UCase_floor, UCaseFloor, View(u"rua das laranjeiras, 1234"));
BENCHMARK_CAPTURE(
    Run, UCase, [](View text) { return UCase(text); }, View(u"rua das laranjeiras, 1234"));

}  // namespace
}  // namespace gabarito
