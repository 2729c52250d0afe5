#include "hosts/terminal/field_view.h"

#include <algorithm>
#include <numeric>

namespace gabarito::terminal {
namespace {

constexpr int kEdges = 2;
constexpr int kFewCharacters = 10;  // a box for no more than these is as wide as they are
constexpr int kSmallest = 3;        // cells of a box that gives way to others
constexpr float kCellTwips = 100;

std::u32string Trimmed(std::u16string_view caption) {
  const std::size_t first = caption.find_first_not_of(u' ');
  if (first == caption.npos) return {};
  return ToCells(caption.substr(first, caption.find_last_not_of(u' ') - first + 1));
}

// Cells that an entry asks for; 0: as many as there are.
int NaturalWidth(const Piece& piece, int entries) {
  if (entries == 1) return 0;
  if (piece.limit > 0 && piece.limit <= kFewCharacters) return piece.limit;
  const int cells = static_cast<int>(piece.width / kCellTwips);
  return cells <= kFewCharacters ? std::max(cells - kEdges, 1) : 0;
}

// The first character on show of a text that is longer than `room`. What is typed stands in the middle, so
// that a completion, which is selected behind it, begins on show.
int FirstShown(int size, int start, int room) {
  return size <= room ? 0 : std::clamp(start - room / 2, 0, size - room);
}

// The first click brings the focus, which selects the whole text; a second one places the caret.
void ClickEntry(memory::Form& form, kit::Focusable& entry, int character) {
  if (!entry.CanTakeFocus()) return;
  if (form.Focused() != &entry) {
    form.SetFocus(entry);
  } else {
    entry.Input()->AsChild().SelStart(character);
  }
}

void ClickArrow(memory::Form& form, kit::ComboModel& combo) {
  if (!combo.CanTakeFocus()) return;
  form.SetFocus(combo);
  if (form.Focused() == &combo) combo.DropDown(!combo.DroppedDown());
}

void DrawText(Grid& grid, const PlacedPiece& box, int room, int first, int y, Style style, bool focused) {
  const std::u16string_view text = box.piece.text;
  const int size = static_cast<int>(text.size());
  const int start = box.piece.start, end = start + box.piece.length;
  for (int i = first; i < std::min(size, first + room); ++i) {
    Style shown = style;
    if (focused && i >= start && i < end) shown.marks |= kSelected;
    grid.Put(box.x + i - first, y, text[static_cast<std::size_t>(i)], shown);
  }
}

void DrawEntry(Screen& screen, const PlacedPiece& box, int y, memory::Form& form,
               std::u16string_view placeholder) {
  // Only the entry with the focus shows its selection: every box selects its text when the focus comes, and
  // keeps that selection when it goes.
  kit::Focusable* const entry = box.piece.entry;
  const bool focused = form.Focused() == entry;
  Style style{box.piece.color, kEntry};
  if (box.piece.flat) style.marks |= kFlatEdge;
  if (focused) style.marks |= kActive;

  const bool arrow = box.piece.list != nullptr && box.width > 1;
  const int room = std::max(box.width - (arrow ? 1 : 0), 1);
  const int size = static_cast<int>(box.piece.text.size());
  const int first = FirstShown(size, focused ? box.piece.start : 0, room);
  Grid& grid = screen.grid;
  grid.Fill(box.x, y, box.width, style);
  if (size > 0) {
    DrawText(grid, box, room, first, y, style, focused);
  } else {
    Style dim = style;
    dim.marks |= kDim;
    grid.Put(box.x, y, Shortened(ToCells(placeholder), room), dim);
  }
  // An edge tells by its shape what has the focus and where a text goes on.
  const Style edge{kButtonFace, focused ? kStrong : kPlain};
  const char32_t line = focused ? U'┃' : U'│';
  grid.Put(box.x - 1, y, first > 0 ? U'‹' : line, edge);
  grid.Put(box.x + box.width, y, first + room < size ? U'›' : line, edge);

  screen.targets.push_back({box.x - 1, y, box.width + kEdges, [&form, entry, first](int column) {
                              ClickEntry(form, *entry, std::max(first + column - 1, 0));
                            }});
  if (arrow) {
    kit::ComboModel* const combo = box.piece.list;
    grid.Put(box.x + room, y, U'▾', {kButtonFace, kStrong});
    screen.targets.push_back({box.x + room, y, 1, [&form, combo](int) { ClickArrow(form, *combo); }});
  }
  // A selection that ends out of sight keeps the caret at the end of the box.
  const int end = box.piece.start + box.piece.length;
  if (focused) grid.caret = {box.x + std::clamp(end - first, 0, room), y};
}

}  // namespace

std::vector<PlacedPiece> Arrange(const std::vector<Piece>& pieces, int width) {
  const auto entries =
      static_cast<int>(std::ranges::count_if(pieces, [](const Piece& p) { return p.entry != nullptr; }));
  std::vector<PlacedPiece> placed;
  std::vector<std::size_t> open;  // entries that take what is left
  int taken = 0;
  for (const Piece& piece : pieces) {
    if (piece.entry == nullptr) {
      const int cells = static_cast<int>(Trimmed(piece.text).size());
      placed.push_back({piece, 0, cells});
      taken += cells + (placed.size() > 1 ? kEdges : 1);
      continue;
    }
    const int natural = NaturalWidth(piece, entries);
    if (natural == 0) open.push_back(placed.size());
    placed.push_back({piece, 0, natural == 0 ? kSmallest : natural});
    taken += placed.back().width + kEdges;
  }
  for (std::size_t i = 0; i < open.size() && taken < width; ++i) {
    const int share = (width - taken) / static_cast<int>(open.size() - i);
    placed[open[i]].width += share;
    taken += share;
  }
  // What still oversteps is taken from the widest box, a cell at a time.
  for (; taken > width; --taken) {
    const auto widest = std::ranges::max_element(
        placed, {}, [](const PlacedPiece& p) { return p.piece.entry == nullptr ? 0 : p.width; });
    if (widest == placed.end() || widest->piece.entry == nullptr || widest->width <= 1) break;
    --widest->width;
  }
  int x = 0;
  for (PlacedPiece& piece : placed) {
    if (piece.piece.entry != nullptr) {
      piece.x = x + 1;
      x += piece.width + kEdges;
    } else {
      piece.x = x == 0 ? 0 : x + 1;
      x = piece.x + piece.width + 1;
    }
  }
  return placed;
}

int WidthOf(kit::FieldParts& parts, int width) {
  const std::vector<PlacedPiece> placed = Arrange(PiecesOf(parts), width);
  return placed.empty() ? 0 : placed.back().x + placed.back().width + 1;
}

void DrawField(Screen& screen, Point at, int width, memory::Form& form, kit::FieldParts& parts,
               const std::vector<std::u16string>& placeholders) {
  std::size_t entry = 0;
  for (PlacedPiece& piece : Arrange(PiecesOf(parts), width)) {
    piece.x += at.x;
    if (piece.piece.entry == nullptr) {
      screen.grid.Put(piece.x, at.y, Trimmed(piece.piece.text), {});
      continue;
    }
    DrawEntry(screen, piece, at.y, form,
              entry < placeholders.size() ? std::u16string_view(placeholders[entry]) : std::u16string_view());
    ++entry;
  }
}

}  // namespace gabarito::terminal
