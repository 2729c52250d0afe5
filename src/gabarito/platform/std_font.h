// The font object of the surface and its children.
#ifndef GABARITO_PLATFORM_STD_FONT_H
#define GABARITO_PLATFORM_STD_FONT_H

#include <memory>
#include <string>

namespace gabarito {

// A plain value with identity: a surface and its children hold the same object, not copies.
struct StdFont {
  std::u16string Name = u"MS Sans Serif";
  float Size = 8;  // points
  bool Bold = false;
  bool Italic = false;

  friend bool operator==(const StdFont&, const StdFont&) = default;
};

using FontRef = std::shared_ptr<StdFont>;

}  // namespace gabarito

#endif  // GABARITO_PLATFORM_STD_FONT_H
