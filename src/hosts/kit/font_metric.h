// How wide and how high a text is.
#ifndef HOSTS_KIT_FONT_METRIC_H
#define HOSTS_KIT_FONT_METRIC_H

#include <string_view>

#include "gabarito/platform/std_font.h"

namespace gabarito::kit {

// Twips. Asked anew at each use: a font object may have been changed in between.
class FontMetric {
 public:
  virtual ~FontMetric() = default;
  virtual float TextWidth(std::u16string_view text, const StdFont& font) const = 0;
  // Height of a one-line entry, its border included.
  virtual float LineHeight(const StdFont& font) const = 0;
};

// The one font of the in-memory host and of contract runs: widths are in 48ths of the font's size. The
// defaults make "de " 200 and " a " 150 twips wide at 8 points.
struct FixedFontMetric final : FontMetric {
  float wide = 25;    // letters, digits and all other characters
  float narrow = 10;  // the blank and - / : . , ( )

  // Rounded to a whole twip.
  float TextWidth(std::u16string_view text, const StdFont& font) const override;
  // 13 pixels of 15 twips for 8 points, and 120 for the border.
  float LineHeight(const StdFont& font) const override;
};

}  // namespace gabarito::kit

#endif  // HOSTS_KIT_FONT_METRIC_H
