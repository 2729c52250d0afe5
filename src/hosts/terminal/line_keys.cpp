#include "hosts/terminal/line_keys.h"

#include "gabarito/platform/virtual_keys.h"
#include "hosts/terminal/entries.h"

namespace gabarito::terminal {
namespace {

constexpr char16_t Ctrl(char16_t letter) { return letter - u'A' + 1; }

// Characters from the caret over blanks to the far end of a word.
int WordLength(const Piece& entry, bool backwards) {
  const std::u16string_view text = entry.text;
  const int step = backwards ? -1 : 1;
  const int from = backwards ? entry.start : entry.start + entry.length;
  int at = from;
  const auto ahead = [&](bool blank) {
    const int next = backwards ? at - 1 : at;
    return next >= 0 && next < static_cast<int>(text.size()) &&
           (text[static_cast<std::size_t>(next)] == u' ') == blank;
  };
  while (ahead(true)) at += step;
  while (ahead(false)) at += step;
  return (at - from) * step;
}

void Press(memory::Form& form, std::int16_t vk, std::int16_t shift, int times) {
  for (int i = 0; i < times; ++i) form.Press(vk, shift);
}

// Deletes the selection or, without one, what the keys before it select.
void DeleteUpTo(memory::Form& form, const Piece& entry, std::int16_t vk, int times) {
  if (entry.length == 0) {
    const bool nothing = vk == kVkEnd ? entry.start == static_cast<int>(entry.text.size()) : entry.start == 0;
    if (nothing) return;  // Delete would take a character
    Press(form, vk, kShiftMask, times);
  }
  form.Press(kVkDelete);
}

}  // namespace

bool PlayLineKey(memory::Form& form, char16_t character) {
  const std::optional<Piece> entry = EntryOf(form.Focused());
  switch (character) {
    case Ctrl(u'A'):
      if (entry) form.Press(kVkHome);
      return true;
    case Ctrl(u'E'):
      if (entry) form.Press(kVkEnd);
      return true;
    case Ctrl(u'U'):
      if (entry) DeleteUpTo(form, *entry, kVkHome, 1);
      return true;
    case Ctrl(u'K'):
      if (entry) DeleteUpTo(form, *entry, kVkEnd, 1);
      return true;
    case Ctrl(u'W'):
      if (entry) DeleteUpTo(form, *entry, kVkLeft, WordLength(*entry, true));
      return true;
    default:
      return false;
  }
}

void StepWord(memory::Form& form, bool backwards, std::int16_t shift) {
  const std::optional<Piece> entry = EntryOf(form.Focused());
  if (!entry) return;
  // The first key without Shift only drops a selection.
  const int drop = entry->length > 0 && shift == 0 ? 1 : 0;
  Press(form, backwards ? kVkLeft : kVkRight, shift, WordLength(*entry, backwards) + drop);
}

}  // namespace gabarito::terminal
