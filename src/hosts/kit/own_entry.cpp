#include "hosts/kit/own_entry.h"

#include <algorithm>

#include "gabarito/platform/text.h"
#include "gabarito/platform/virtual_keys.h"
#include "hosts/kit/field_parts.h"

namespace gabarito::kit {
namespace {

template <class Line>
void Navigate(Line& line, std::int32_t& anchor, std::int16_t vk, bool shift) {
  if (vk < kVkEnd || vk > kVkDown) return;
  const std::int32_t start = line.SelStart();
  const std::int32_t end = start + line.SelLength();
  const auto size = static_cast<std::int32_t>(line.Text().size());
  if (anchor != start && anchor != end) anchor = start;
  const std::int32_t caret = anchor == start ? end : start;
  const bool collapse = !shift && start != end;
  std::int32_t target;
  switch (vk) {
    case kVkHome:
      target = 0;
      break;
    case kVkEnd:
      target = size;
      break;
    case kVkLeft:
    case kVkUp:
      target = collapse ? start : std::max(caret - 1, 0);
      break;
    case kVkRight:
    case kVkDown:
      target = collapse ? end : std::min(caret + 1, size);
      break;
    default:
      return;
  }
  if (!shift) anchor = target;
  line.SelStart(std::min(anchor, target));
  line.SelLength(std::max(anchor, target) - std::min(anchor, target));
}

void CutOrCopy(MaskedEdit& line, bool cut, std::u16string& clipboard) {
  if (line.SelLength() == 0) return;
  clipboard = line.SelText();
  if (cut) line.Delete();
}

// The engine itself sets MaxLength no bound to a text that is handed to it.
void Paste(MaskedModel& box, const std::u16string& clipboard) {
  MaskedEdit& line = box.Entry();
  std::u16string text(FirstLine(clipboard));
  if (const std::int32_t limit = box.Limit(); limit > 0) {
    const std::int32_t kept = Len(line.Text()) - line.SelLength();
    text = Left(text, std::max(limit - kept, 0));
  }
  if (!text.empty()) line.SelText(text);
}

bool ActOnKeyDown(MaskedModel& box, std::int16_t vk, std::int16_t shift, std::u16string& clipboard) {
  const char16_t key = ClipboardKey(vk, shift);
  if (key == kPaste) {
    Paste(box, clipboard);
  } else if (key != 0) {
    CutOrCopy(box.Entry(), key == kCut, clipboard);
  } else {
    KeyInto(box.Entry(), box.anchor, vk, shift);
  }
  box.NoteEdit();
  return key == 0;
}

bool ActOnKeyDown(ComboModel& box, std::int16_t vk, std::int16_t shift, std::u16string& clipboard) {
  if (const char16_t key = ClipboardKey(vk, shift)) {
    TypeInto(box.Entry(), key, 0, clipboard);
    box.Edited();
    return false;
  }
  if (box.ChooseByKey(vk, shift)) return true;
  if (vk == kVkReturn || vk == kVkEscape) box.DropDown(false);
  KeyInto(box.Entry(), box.anchor, vk, shift);
  box.Edited();
  return true;
}

}  // namespace

std::u16string_view FirstLine(std::u16string_view text) {
  return text.substr(0, text.find_first_of(u"\r\n"));
}

void Backspace(TextLine& line) {
  if (line.SelLength() == 0) {
    if (line.SelStart() == 0) return;
    line.SelStart(line.SelStart() - 1);
    line.SelLength(1);
  }
  line.Replace({}, 0);
}

void Delete(TextLine& line) {
  if (line.SelLength() == 0) line.SelLength(1);
  line.Replace({}, 0);
}

void TypeInto(TextLine& line, char16_t character, std::int32_t limit, std::u16string& clipboard) {
  if (character >= u' ') {
    line.Replace({&character, 1}, limit);
    return;
  }
  switch (character) {
    case kBackspace:
      Backspace(line);
      break;
    case kCopy:
    case kCut:
      if (line.SelLength() == 0) break;
      clipboard = line.SelText();
      if (character == kCut) Delete(line);
      break;
    case kPaste:
      if (!FirstLine(clipboard).empty()) line.Replace(FirstLine(clipboard), limit);
      break;
    default:
      break;
  }
}

void KeyInto(TextLine& line, std::int32_t& anchor, std::int16_t vk, std::int16_t shift) {
  if (vk == kVkDelete) {
    Delete(line);
  } else {
    Navigate(line, anchor, vk, (shift & kShiftMask) != 0);
  }
}

void KeyInto(MaskedEdit& line, std::int32_t& anchor, std::int16_t vk, std::int16_t shift) {
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

bool ActOnKeyDown(InputModel& child, std::int16_t vk, std::int16_t shift, std::u16string& clipboard) {
  switch (child.Kind()) {
    case InputKind::kMasked:
      return ActOnKeyDown(static_cast<MaskedModel&>(child), vk, shift, clipboard);
    case InputKind::kCombo:
      return ActOnKeyDown(static_cast<ComboModel&>(child), vk, shift, clipboard);
    case InputKind::kTextBox:
      break;
  }
  auto& box = static_cast<TextBoxModel&>(child);
  KeyInto(box.Entry(), box.anchor, vk, shift);
  box.NoteEdit();
  return true;
}

void ActOnCharacter(InputModel& child, char16_t character, std::u16string& clipboard) {
  if (character == 0) return;
  if (child.Kind() == InputKind::kMasked) {
    auto& box = static_cast<MaskedModel&>(child);
    if (character == kBackspace) {
      box.Entry().Backspace();
    } else if (character >= u' ' && !box.Entry().Type(character)) {
      box.Parts().dialogs.Beep();
    }
    box.NoteEdit();
  } else if (child.Kind() == InputKind::kCombo) {
    auto& box = static_cast<ComboModel&>(child);
    TypeInto(box.Entry(), character, 0, clipboard);
    box.Edited();
  } else {
    auto& box = static_cast<TextBoxModel&>(child);
    TypeInto(box.Entry(), character, box.Limit(), clipboard);
    box.NoteEdit();
  }
}

}  // namespace gabarito::kit
