// A screen as rows of cells, before any terminal: what the interactive form draws and its tests compare.
#ifndef HOSTS_TERMINAL_GRID_H
#define HOSTS_TERMINAL_GRID_H

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "gabarito/platform/color.h"

namespace gabarito::terminal {

// What a cell is part of, as a sum. A terminal without colours shows some of them by attributes.
using Marks = std::uint8_t;
inline constexpr Marks kPlain = 0;
inline constexpr Marks kEntry = 1;     // a place to type in
inline constexpr Marks kFlatEdge = 2;  // of an entry in the flat look
inline constexpr Marks kActive = 4;    // of the entry or button that has the focus
inline constexpr Marks kSelected = 8;
inline constexpr Marks kStrong = 16;  // title, headings and frames
inline constexpr Marks kDim = 32;     // what stands where nothing has been typed
inline constexpr Marks kAlarm = 64;   // what the person has to look at

// Of the bars at the top and at the bottom: dark blue.
inline constexpr Color kBar = 0x00800000;

struct Style {
  Color back = kButtonFace;
  Marks marks = kPlain;
  friend bool operator==(const Style&, const Style&) = default;
};

struct Cell {
  char32_t glyph = U' ';
  Style style;
};

struct Point {
  int x = 0, y = 0;
  friend bool operator==(const Point&, const Point&) = default;
};

class Grid {
 public:
  // Sizes below 1 count as 1.
  Grid(int width, int height);

  int Width() const { return width_; }
  int Height() const { return height_; }
  const Cell& At(int x, int y) const { return cells_[Offset(x, y)]; }

  // Cells outside the grid are left out, here and below.
  void Put(int x, int y, char32_t glyph, Style style);
  void Put(int x, int y, std::u32string_view text, Style style);
  void Fill(int x, int y, int width, Style style);

  // Row `y` in UTF-8 without the blanks at its end.
  std::string Row(int y) const;

  std::optional<Point> caret;

 private:
  std::size_t Offset(int x, int y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) + static_cast<std::size_t>(x);
  }
  bool Holds(int x, int y) const { return x >= 0 && y >= 0 && x < width_ && y < height_; }

  int width_;
  int height_;
  std::vector<Cell> cells_;
};

// One code point a cell. A surrogate without its partner stays as it is: no terminal shows it.
std::u32string ToCells(std::u16string_view text);

// `text` in at most `width` cells, with "…" at the end when something is cut off.
std::u32string Shortened(std::u32string text, int width);

}  // namespace gabarito::terminal

#endif  // HOSTS_TERMINAL_GRID_H
