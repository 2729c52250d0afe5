#include "hosts/terminal/palette.h"

#include <algorithm>
#include <cstdlib>

namespace gabarito::terminal {
namespace {

struct Shade {
  int red, green, blue;
};

constexpr Color kSystemColor = 0x80000000;

// System colours that nothing here uses count as white.
Shade ShadeOf(Color color) {
  if (color == kButtonFace) return {208, 208, 208};
  if (color == kWindowText) return {0, 0, 0};
  if ((color & kSystemColor) != 0) return {255, 255, 255};
  return {static_cast<int>(color & 0xFF), static_cast<int>(color >> 8 & 0xFF),
          static_cast<int>(color >> 16 & 0xFF)};
}

int Distance(Shade a, Shade b) {
  const auto square = [](int n) { return n * n; };
  return square(a.red - b.red) + square(a.green - b.green) + square(a.blue - b.blue);
}

// The cube of six levels a part, from index 16, or the ramp of 24 greys, from 232.
int Of256(Shade shade) {
  constexpr int kLevels[] = {0, 95, 135, 175, 215, 255};
  const auto nearest = [&](int part) {
    return static_cast<int>(std::ranges::min_element(kLevels, {}, [&](int l) { return std::abs(l - part); }) -
                            kLevels);
  };
  const int red = nearest(shade.red), green = nearest(shade.green), blue = nearest(shade.blue);
  const int mean = (shade.red + shade.green + shade.blue) / 3;
  const int step = std::clamp((mean - 3) / 10, 0, 23);
  const int grey = 8 + 10 * step;
  if (Distance(shade, {grey, grey, grey}) < Distance(shade, {kLevels[red], kLevels[green], kLevels[blue]})) {
    return 232 + step;
  }
  return 16 + 36 * red + 6 * green + blue;
}

// By hue, not by distance: the nearest of eight to a pastel would be white.
int Of8(Shade shade) {
  const auto [low, high] = std::minmax({shade.red, shade.green, shade.blue});
  if (high - low < 32) return high < 96 ? 0 : 7;
  const int middle = (low + high) / 2;
  return (shade.red > middle ? 1 : 0) + (shade.green > middle ? 2 : 0) + (shade.blue > middle ? 4 : 0);
}

}  // namespace

int TerminalColor(Color color, int colors) {
  const Shade shade = ShadeOf(color);
  if (colors >= 256) return Of256(shade);
  if (colors >= 16) {
    // The face of buttons is the plain white of such terminals, a light grey; only the window is brighter.
    const bool bright = std::max({shade.red, shade.green, shade.blue}) >= 224;
    return Of8(shade) + (bright ? 8 : 0);
  }
  constexpr int kCyan = 6;
  return color == kWindowBackground ? kCyan : Of8(shade);
}

// Green weighs most to the eye, blue least.
bool IsDark(Color color) {
  const Shade shade = ShadeOf(color);
  return shade.red * 3 + shade.green * 6 + shade.blue < 1100;
}

}  // namespace gabarito::terminal
