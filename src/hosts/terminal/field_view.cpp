#include "hosts/terminal/field_view.h"

#include <algorithm>
#include <cmath>

namespace gabarito::terminal {
namespace {

// How the right end of an entry looks, and whether a line stands to its left.
enum class Edge { kFlat, k3D, kArrow };

// Downwards also for what is negative: the second box of an interval in a narrow field begins left of it.
int Cells(float twips) { return static_cast<int>(std::floor(twips / kCell)); }

// Columns [first, end) of a child, cut at the ends of its surface.
struct Columns {
  int first, end;
  int Width() const { return end - first; }
};

Columns ColumnsOf(const kit::Geometry& bounds, int surface) {
  const int last = surface + kFieldWidth;
  return {std::clamp(surface + Cells(bounds.left), surface, last),
          std::clamp(surface + Cells(bounds.left + bounds.width), surface, last)};
}

// The first character on show of a text that is longer than `room`. What is typed stands in the middle, so
// that a completion, which is selected behind it, begins on show.
int FirstShown(int size, int start, int room) {
  return size <= room ? 0 : std::clamp(start - room / 2, 0, size - room);
}

// The first click brings the focus, which selects the whole text; a second one places the caret.
template <class Widget>
void ClickEntry(memory::Form& form, Widget& widget, int character) {
  if (!widget.CanTakeFocus()) return;
  if (form.Focused() != &widget) {
    form.SetFocus(widget);
  } else {
    widget.Entry().SelStart(character);
  }
}

template <class Widget>
void DrawEntry(Screen& screen, Point at, memory::Form& form, Widget& widget, Edge edge) {
  const Columns columns = ColumnsOf(widget.Bounds(), at.x);
  if (!widget.IsVisible() || columns.Width() < 1) return;
  // Only the entry with the focus shows its selection: every box selects its text when the focus comes, and
  // keeps that selection when it goes.
  const bool focused = form.Focused() == &widget;
  Style style{widget.Color(), kEntry};
  if (edge == Edge::kFlat) style.marks |= kFlatEdge;
  if (focused) style.marks |= kActive;

  const std::u16string_view text = widget.Entry().Text();
  const int start = focused ? widget.Entry().SelStart() : 0;
  const int end = focused ? start + widget.Entry().SelLength() : 0;
  // The last cell is the edge: a box of two digits is 310 twips, three cells, wide.
  const int room = std::max(columns.Width() - 1, 1);
  const int size = static_cast<int>(text.size());
  const int first = FirstShown(size, start, room);
  Grid& grid = screen.grid;
  grid.Fill(columns.first, at.y, columns.Width(), style);
  for (int i = first; i < std::min(size, first + room); ++i) {
    Style shown = style;
    if (i >= start && i < end) shown.marks |= kSelected;
    grid.Put(columns.first + i - first, at.y, text[static_cast<std::size_t>(i)], shown);
  }
  if (columns.Width() > 1) {
    if (edge == Edge::k3D) grid.Put(columns.end - 1, at.y, U'│', {style.back, kPlain});
    if (edge == Edge::kArrow) grid.Put(columns.end - 1, at.y, U'▾', {kButtonFace, kStrong});
  }
  // The edge in front stands on the blank that a separator ends with, " / ", and never on its text.
  const int left = columns.first - 1;
  if (edge == Edge::k3D && left >= 0 && left < grid.Width() && grid.At(left, at.y).glyph == U' ') {
    grid.Put(left, at.y, U'│', {grid.At(left, at.y).style.back, kPlain});
  }
  // A selection that ends out of sight keeps the caret at the end of the box.
  if (focused) grid.caret = {columns.first + std::clamp(end - first, 0, columns.Width() - 1), at.y};
  screen.targets.push_back({columns.first, at.y, columns.Width(), [&form, &widget, first](int column) {
                              ClickEntry(form, widget, first + column);
                            }});
}

// The arrow at the end of a combo box opens and closes its list.
void DrawCombo(Screen& screen, Point at, memory::Form& form, kit::ComboModel& combo) {
  DrawEntry(screen, at, form, combo, Edge::kArrow);
  const Columns columns = ColumnsOf(combo.Bounds(), at.x);
  if (!combo.IsVisible() || columns.Width() < 2) return;
  screen.targets.push_back({columns.end - 1, at.y, 1, [&form, &combo](int) {
                              if (!combo.CanTakeFocus()) return;
                              form.SetFocus(combo);
                              if (form.Focused() == &combo) combo.DropDown(!combo.DroppedDown());
                            }});
}

// A caption narrower than its label is centred, as the hyphen of a postal code.
void DrawSeparator(Grid& grid, Point at, const kit::LabelModel& label) {
  const Columns columns = ColumnsOf(label.Bounds(), at.x);
  if (!label.IsVisible() || columns.Width() < 1) return;
  grid.Fill(columns.first, at.y, columns.Width(), {label.Color()});
  std::u32string caption = ToCells(label.Shown());
  caption.resize(std::min(caption.size(), static_cast<std::size_t>(columns.Width())));
  const int gap = columns.Width() - static_cast<int>(caption.size());
  grid.Put(columns.first + gap / 2, at.y, caption, {label.Color()});
}

void DrawEntryOfList(Screen& screen, Point at, int width, kit::ComboModel& combo, int entry) {
  Style style{combo.Color(), kPlain};
  if (entry == combo.Selected()) style.marks |= kSelected;
  screen.grid.Fill(at.x, at.y, width, style);
  const std::u32string text = ToCells(combo.Entries().At(static_cast<std::size_t>(entry)));
  screen.grid.Put(at.x, at.y, Shortened(text, width), style);
  screen.targets.push_back(
      {at.x, at.y, width, [&combo, entry](int) { combo.Pick(static_cast<std::int16_t>(entry)); }});
}

}  // namespace

void DrawField(Screen& screen, Point at, memory::Form& form, kit::FieldParts& parts) {
  screen.grid.Fill(at.x, at.y, std::min(kFieldWidth, Cells(parts.surface.Bounds().width)),
                   {parts.surface.Color()});
  for (const kit::LabelModel& label : parts.lbl_controle) DrawSeparator(screen.grid, at, label);
  for (kit::TextBoxModel& box : parts.txt_entrada) DrawEntry(screen, at, form, box, Edge::kFlat);
  for (kit::TextBoxModel& box : parts.txt_entrada3D) DrawEntry(screen, at, form, box, Edge::k3D);
  kit::MaskedModel& masked = parts.MaskEdBox1;
  DrawEntry(screen, at, form, masked, masked.ShownAppearance() == 1 ? Edge::k3D : Edge::kFlat);
  DrawCombo(screen, at, form, parts.Combo1);
}

void DrawList(Screen& screen, Point at, Rows rows, kit::ComboModel& combo) {
  const int count = static_cast<int>(combo.Entries().Count());
  const int below = rows.end - at.y - 1, above = at.y - rows.first;
  int shown = std::min(count, FormView::kListLines);
  const bool opens_below = below > shown || below >= above;
  shown = std::min(shown, (opens_below ? below : above) - 1);  // a row for the frame
  if (shown < 1) return;

  const Columns columns = ColumnsOf(combo.Bounds(), at.x);
  const int first = std::clamp(combo.Selected() - shown / 2, 0, count - shown);
  // Of the entries on show alone: there can be thousands of others.
  std::size_t longest = 0;
  for (int i = 0; i < shown; ++i) {
    longest = std::max(longest, combo.Entries().At(static_cast<std::size_t>(first + i)).size());
  }
  Grid& grid = screen.grid;
  const int width = std::min(std::max(columns.Width(), static_cast<int>(std::min<std::size_t>(longest, 60))),
                             std::max(grid.Width() - 2, 1));
  const int x = std::clamp(columns.first, 1, std::max(1, grid.Width() - width - 1));
  const int y = opens_below ? at.y + 1 : at.y - shown;
  const Style frame{combo.Color(), kStrong};
  for (int i = 0; i < shown; ++i) {
    grid.Put(x - 1, y + i, U'│', frame);
    DrawEntryOfList(screen, {x, y + i}, width, combo, first + i);
    const bool more_above = i == 0 && first > 0;
    const bool more_below = i == shown - 1 && first + shown < count;
    grid.Put(x + width, y + i, more_above ? U'▲' : more_below ? U'▼' : U'│', frame);
  }
  const std::u32string line(static_cast<std::size_t>(width), U'─');
  grid.Put(x - 1, opens_below ? y + shown : y - 1, opens_below ? U"└" + line + U"┘" : U"┌" + line + U"┐",
           frame);
}

}  // namespace gabarito::terminal
