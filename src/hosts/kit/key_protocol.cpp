#include "hosts/kit/key_protocol.h"

#include "gabarito/platform/virtual_keys.h"
#include "hosts/kit/comfort.h"
#include "hosts/kit/field_parts.h"
#include "hosts/kit/own_entry.h"

namespace gabarito::kit {
namespace {

bool IsFull(InputModel& child) {
  const InputChild& box = child.AsChild();
  const auto size = static_cast<std::int64_t>(box.Text().size());
  return child.Limit() > 0 && size - box.SelLength() >= child.Limit();
}

// With comfort on. A function of its own, so that a key without comfort does not pay for it.
char16_t PressOrStepOver(InputModel& child, FieldParts& parts, char16_t character) {
  const SeparatorStep step = StepOver(child, character);
  if (step.to == nullptr && !step.passed) return child.KeyPress(character);
  parts.dialogs.HoldBeeps();
  char16_t taken = 0;
  try {
    taken = child.KeyPress(character);
  } catch (...) {
    parts.dialogs.DropBeeps();
    throw;
  }
  int beeps = parts.dialogs.DropBeeps();
  const bool refused = taken == 0 && beeps > 0 && parts.form->focus.Focused() == &child;
  if (refused) {
    if (step.to != nullptr) parts.form->focus.Move(*step.to);
  } else {
    for (; beeps > 0; --beeps) parts.dialogs.Beep();
  }
  return taken;
}

}  // namespace

char16_t RaiseKeyPress(InputModel& child, char16_t character) {
  FieldParts& parts = child.Parts();
  return parts.form->comfort ? PressOrStepOver(child, parts, character) : child.KeyPress(character);
}

void IntoModel(InputModel& child, const KeyEvent& event, std::u16string& clipboard) {
  std::int16_t code = event.unicode != 0 ? kVkPacket : event.vk, shift = event.shift;
  if (event.up) return child.KeyUp(code, shift);
  const Held held = child.Parts().Hold();
  child.KeyDown(code, shift);
  if (!ActOnKeyDown(child, code, shift, clipboard)) return;
  const char16_t character = child.Parts().form->keyboard.CharacterOf(event);
  // The character goes to the entry that saw the key go down, if that is still on show.
  if (character == 0 || !child.CanTakeFocus()) return;
  const char16_t taken = RaiseKeyPress(child, character);
  if (taken == kPaste && TypeThrough(child, clipboard)) return;
  ActOnCharacter(child, taken, clipboard);
}

KeyAction KeyGoesDown(InputModel& child, std::int16_t vk, std::int16_t shift, std::u16string& clipboard) {
  std::int16_t code = vk, mask = shift;
  child.KeyDown(code, mask);
  if (!child.CanTakeFocus()) return KeyAction::kUsedUp;
  switch (child.Kind()) {
    case InputKind::kMasked:
      return ActOnKeyDown(child, code, mask, clipboard) ? KeyAction::kDone : KeyAction::kUsedUp;
    case InputKind::kCombo: {
      auto& combo = static_cast<ComboModel&>(child);
      if (combo.ChooseByKey(code, mask)) return KeyAction::kDone;
      if (code == kVkReturn || code == kVkEscape) combo.DropDown(false);
      return KeyAction::kNative;
    }
    case InputKind::kTextBox:
      break;
  }
  if (code == vk && mask == shift) return KeyAction::kNative;
  ActOnKeyDown(child, code, mask, clipboard);
  return KeyAction::kDone;
}

CharacterVerdict CharacterArrives(InputModel& child, char16_t character) {
  const char16_t taken = RaiseKeyPress(child, character);
  if (taken == 0 || !child.CanTakeFocus()) return {CharacterAction::kNothing, 0};
  if (child.Kind() == InputKind::kMasked) {
    std::u16string clipboard;
    ActOnCharacter(child, taken, clipboard);
    return {CharacterAction::kDone, taken};
  }
  if (taken >= u' ' && IsFull(child)) return {CharacterAction::kNothing, 0};
  return {taken == character ? CharacterAction::kInsert : CharacterAction::kReplace, taken};
}

TextEdit TextArrives(InputModel& child, std::u16string_view text) {
  if (TypeThrough(child, text)) return {};
  const std::u16string before(child.AsChild().Text());
  std::u16string clipboard;
  const Focus& focus = child.Parts().form->focus;
  for (const char16_t character : FirstLine(text)) {
    if (character < u' ') continue;
    std::int16_t vk = kVkPacket, shift = 0;
    child.KeyDown(vk, shift);
    if (!child.CanTakeFocus() || focus.Focused() != &child) break;
    ActOnCharacter(child, RaiseKeyPress(child, character), clipboard);
    if (focus.Focused() != &child) break;
  }
  const InputChild& box = child.AsChild();
  TextEdit edit = Difference(before, box.Text());
  edit.caret = box.SelStart();
  return edit;
}

TextEdit Difference(std::u16string_view before, std::u16string_view after) {
  std::size_t head = 0;
  while (head < before.size() && head < after.size() && before[head] == after[head]) ++head;
  std::size_t tail = 0;
  while (tail < before.size() - head && tail < after.size() - head &&
         before[before.size() - 1 - tail] == after[after.size() - 1 - tail]) {
    ++tail;
  }
  return {.changes = before != after,
          .start = static_cast<std::int32_t>(head),
          .removed = static_cast<std::int32_t>(before.size() - head - tail),
          .inserted = std::u16string(after.substr(head, after.size() - head - tail)),
          .caret = static_cast<std::int32_t>(after.size() - tail)};
}

}  // namespace gabarito::kit
