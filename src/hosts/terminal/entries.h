// The children of a field as a screen shows them: boxes and captions from left to right.
#ifndef HOSTS_TERMINAL_ENTRIES_H
#define HOSTS_TERMINAL_ENTRIES_H

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "gabarito/platform/color.h"
#include "hosts/kit/field_model.h"

namespace gabarito::terminal {

// One visible child. Texts are views of the child's own, good until the next call that can change it.
struct Piece {
  std::u16string_view text;  // of a caption what it shows
  float left = 0;            // twips
  float width = 0;
  Color color = 0;
  kit::Focusable* entry = nullptr;  // null: a caption
  kit::ComboModel* list = nullptr;  // of an entry with a list
  bool flat = false;
  int limit = 0;  // longest text; 0: none
  int start = 0;  // the selection
  int length = 0;
};

std::vector<Piece> PiecesOf(kit::FieldParts& parts);

// The entry `child`, visible or not; nothing for a button or a surface.
std::optional<Piece> EntryOf(kit::Focusable* child);

// Whether nothing has been entered: boxes hold blanks at most, a mask its empty places. A list beside boxes
// stands on an entry of its own accord and does not count.
bool IsEmpty(kit::FieldParts& parts);

// What the entries hold, as one text to compare.
std::u16string ContentOf(kit::FieldParts& parts);

}  // namespace gabarito::terminal

#endif  // HOSTS_TERMINAL_ENTRIES_H
