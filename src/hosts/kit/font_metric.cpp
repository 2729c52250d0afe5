#include "hosts/kit/font_metric.h"

#include <cmath>

namespace gabarito::kit {
namespace {

constexpr float kTwipsAPoint = 20;
constexpr float kTwipsAPixel = 15;

}  // namespace

float FixedFontMetric::TextWidth(std::u16string_view text, const StdFont& font) const {
  constexpr std::u16string_view kNarrow = u" -/:.,()";
  float units = 0;
  for (const char16_t c : text) units += kNarrow.find(c) == std::u16string_view::npos ? wide : narrow;
  return std::round(units * font.Size * kTwipsAPoint / 48);
}

float FixedFontMetric::LineHeight(const StdFont& font) const {
  return std::round(font.Size * 13 / 8) * kTwipsAPixel + 120;
}

}  // namespace gabarito::kit
