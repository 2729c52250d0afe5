#include "hosts/terminal/grid.h"

#include <algorithm>

#include "hosts/kit/utf8.h"

namespace gabarito::terminal {

Grid::Grid(int width, int height)
    : width_(std::max(width, 1)),
      height_(std::max(height, 1)),
      cells_(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_)) {}

void Grid::Put(int x, int y, char32_t glyph, Style style) {
  if (Holds(x, y)) cells_[Offset(x, y)] = {glyph, style};
}

void Grid::Put(int x, int y, std::u32string_view text, Style style) {
  for (const char32_t glyph : text) Put(x++, y, glyph, style);
}

void Grid::Fill(int x, int y, int width, Style style) {
  for (int i = 0; i < width; ++i) Put(x + i, y, U' ', style);
}

// Through UTF-16, the one form that the conversions at the edge of the program know.
std::string Grid::Row(int y) const {
  std::u16string row;
  for (int x = 0; x < width_; ++x) {
    const char32_t glyph = At(x, y).glyph;
    if (glyph > 0xFFFF) {
      row.push_back(static_cast<char16_t>(0xD800 + ((glyph - 0x10000) >> 10)));
      row.push_back(static_cast<char16_t>(0xDC00 + ((glyph - 0x10000) & 0x3FF)));
    } else {
      row.push_back(static_cast<char16_t>(glyph));
    }
  }
  row.erase(row.find_last_not_of(u' ') + 1);
  return kit::ToUtf8(row);
}

std::u32string ToCells(std::u16string_view text) {
  std::u32string cells;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char32_t unit = text[i];
    // A text of the field may end in the middle of a pair: its limits count units.
    const bool pair = unit >= 0xD800 && unit < 0xDC00 && i + 1 < text.size() && text[i + 1] >= 0xDC00 &&
                      text[i + 1] < 0xE000;
    cells.push_back(pair ? 0x10000 + ((unit - 0xD800) << 10) + (text[++i] - 0xDC00U) : unit);
  }
  return cells;
}

std::u32string Shortened(std::u32string text, int width) {
  const auto most = static_cast<std::size_t>(std::max(width, 0));
  if (text.size() <= most) return text;
  text.resize(most);
  if (most > 0) text.back() = U'…';
  return text;
}

}  // namespace gabarito::terminal
