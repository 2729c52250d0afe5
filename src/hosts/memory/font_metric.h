// The one font of the in-memory host: how wide and how high a text is.
#ifndef HOSTS_MEMORY_FONT_METRIC_H
#define HOSTS_MEMORY_FONT_METRIC_H

#include <string_view>

#include "gabarito/platform/std_font.h"

namespace gabarito::memory {

// Widths are in 48ths of the font's size. The defaults make "de " 200 and " a " 150 twips wide at 8 points.
struct FontMetric {
  float wide = 25;    // letters, digits and all other characters
  float narrow = 10;  // the blank and - / : . , ( )

  // Twips, rounded to a whole one.
  float TextWidth(std::u16string_view text, const StdFont& font) const;

  // Height of a one-line entry in twips: 13 pixels of 15 twips for 8 points, and 120 for its border.
  static float LineHeight(const StdFont& font);
};

}  // namespace gabarito::memory

#endif  // HOSTS_MEMORY_FONT_METRIC_H
