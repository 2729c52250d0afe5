// Draws one field in one row of a screen, and the open list of a combo box over others.
#ifndef HOSTS_TERMINAL_FIELD_VIEW_H
#define HOSTS_TERMINAL_FIELD_VIEW_H

#include <string>
#include <vector>

#include "hosts/memory/form.h"
#include "hosts/terminal/entries.h"
#include "hosts/terminal/screen.h"

namespace gabarito::terminal {

// A piece and the cells that it takes: of an entry its inside, between two edges; of a caption the text
// without blanks around it.
struct PlacedPiece {
  Piece piece;
  int x;      // of the first cell
  int width;  // cells
};

// The pieces side by side in at most `width` cells, the left edge of the first entry in the first: boxes of
// few characters as wide as those, a blank on both sides of a caption, the rest of the room for whatever has
// no natural width. Only a width that has no cell for each entry is overstepped.
std::vector<PlacedPiece> Arrange(const std::vector<Piece>& pieces, int width);

// Cells that a field takes of `width`.
int WidthOf(kit::FieldParts& parts, int width);

// In `width` cells from `at` on. Each box shows the part of its text around the caret, and in place of an
// empty text its placeholder; the entry with the focus gives the screen its caret.
void DrawField(Screen& screen, Point at, int width, memory::Form& form, kit::FieldParts& parts,
               const std::vector<std::u16string>& placeholders);

}  // namespace gabarito::terminal

#endif  // HOSTS_TERMINAL_FIELD_VIEW_H
