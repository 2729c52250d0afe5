#include "hosts/memory/text_entry.h"

#include "gabarito/platform/user32.h"

namespace gabarito::memory {

std::u16string_view FirstLine(std::u16string_view text) {
  return text.substr(0, text.find_first_of(u"\r\n"));
}

void TypeInto(EditLine& line, char16_t character, std::int32_t limit, std::u16string& clipboard) {
  switch (character) {
    case kBackspace:
      line.Backspace();
      break;
    case kCopy:
    case kCut:
      if (line.SelLength() == 0) break;
      clipboard = line.SelText();
      if (character == kCut) line.Delete();
      break;
    case kPaste:
      if (!FirstLine(clipboard).empty()) line.Replace(FirstLine(clipboard), limit);
      break;
    default:
      if (character >= u' ') line.Replace({&character, 1}, limit);
      break;
  }
}

void KeyInto(EditLine& line, std::int32_t& anchor, std::int16_t vk, std::int16_t shift) {
  if (vk == kVkDelete) {
    line.Delete();
  } else {
    Navigate(line, anchor, vk, (shift & kShiftMask) != 0);
  }
}

char16_t ClipboardKey(std::int16_t vk, std::int16_t shift) {
  if (shift != kCtrlMask) return 0;
  switch (vk) {
    case 'C':
      return kCopy;
    case 'V':
      return kPaste;
    case 'X':
      return kCut;
    default:
      return 0;
  }
}

}  // namespace gabarito::memory
