// The children as they stand before any code has run.
#ifndef HOSTS_KIT_DESIGN_H
#define HOSTS_KIT_DESIGN_H

#include <string_view>

#include "gabarito/platform/color.h"

namespace gabarito::kit {

struct Geometry {
  float left = 0, top = 0, width = 0, height = 0;  // twips
};

struct ChildDesign {
  std::string_view name;
  Geometry geometry;
  std::u16string_view text;  // of a label its caption
  Color backColor;
};

// In the order of TabIndex.
inline constexpr ChildDesign kChildren[] = {
    {"lbl_controle(0)", {180, 0, 135, 315}, u"/", 0x00E0E0E0},
    {"txt_entrada(0)", {330, 0, 285, 315}, u"28", kWindowBackground},
    {"lbl_controle(1)", {630, 0, 135, 315}, u"/", 0x00E0E0E0},
    {"txt_entrada(1)", {780, 0, 345, 315}, u"08", kWindowBackground},
    {"lbl_controle(2)", {1140, 0, 135, 315}, u"/", 0x00E0E0E0},
    {"txt_entrada(2)", {1260, 0, 495, 315}, u"1999", kWindowBackground},
    {"MaskEdBox1", {1800, 0, 1065, 315}, u"", kWindowBackground},
    {"Combo1", {2880, 0, 1515, 315}, u"Combo1", kWindowBackground},
    {"txt_entrada3D(0)", {270, 720, 375, 375}, u"", kWindowBackground},
    {"txt_entrada3D(1)", {720, 720, 375, 375}, u"", kWindowBackground},
    {"txt_entrada3D(2)", {1170, 720, 375, 375}, u"", kWindowBackground},
};

inline constexpr Geometry kSurface = {0, 0, 4785, 1695};
inline constexpr Color kSurfaceColor = 0x00C0C0FF;

}  // namespace gabarito::kit

#endif  // HOSTS_KIT_DESIGN_H
