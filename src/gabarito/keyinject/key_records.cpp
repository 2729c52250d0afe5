#include "gabarito/keyinject/key_records.h"

#include "gabarito/platform/erro.h"

namespace gabarito {
namespace {

// Records kept free for one element: four plain characters at their longest, six records each.
constexpr std::size_t kReserve = 24;

void AddRecord(MSendInput& m, std::int16_t vk, std::int32_t scan, std::int32_t flags) {
  if (m.inputRecords.size() > m.upperBound) Fail(kSubscriptOutOfRange);
  INPUT& record = m.inputRecords.emplace_back();
  record.type = kInputKeyboard;
  record.wVk = static_cast<std::uint16_t>(vk);
  record.wScan = static_cast<std::uint16_t>(scan);
  record.dwFlags = flags;
}

}  // namespace

void BeginRun(MSendInput& m, InputQueue& queue, std::u16string_view text) {
  m.queue = &queue;
  m.keyboardLayout = queue.GetKeyboardLayout(0);
  m.keyText = text;
  m.keyPos = 0;
  // An element that raised an error left its modifiers held.
  m.modifierBits = 0;
  m.groupEndMissing = m.braceEndMissing = false;
  // Room for all that the first bound allows; records are written as they come and nothing is zeroed ahead.
  m.inputRecords.clear();
  m.inputRecords.reserve(kRecordStep + 1);
  m.upperBound = kRecordStep;
}

void GrowBetweenElements(MSendInput& m) {
  if (m.inputRecords.size() + kReserve >= m.upperBound) m.upperBound += kRecordStep;
}

void AddKeyPress(MSendInput& m, std::int16_t vk, bool withShift, bool extended, bool withCtrlAlt) {
  const bool ownShift = withShift && (m.modifierBits & kShiftMask) == 0;
  if (ownShift) AddModifierEvent(m, kVkShift, true);
  // A Ctrl or Alt that the string holds is pressed again: only Shift is looked at.
  if (withCtrlAlt) {
    AddModifierEvent(m, kVkControl, true);
    AddModifierEvent(m, kVkMenu, true);
  }
  // The halves are not alike, and receivers can tell: the flag is on the press alone, the scan code on the
  // release alone.
  AddRecord(m, vk, 0, extended ? kKeyExtended : 0);
  AddRecord(m, vk, m.queue->MapVirtualKeyExA(vk, 0, m.keyboardLayout), kKeyUp);
  if (withCtrlAlt) {
    AddModifierEvent(m, kVkControl, false);
    AddModifierEvent(m, kVkMenu, false);
  }
  if (ownShift) AddModifierEvent(m, kVkShift, false);
}

void AddUnicodeChar(MSendInput& m, std::int16_t code) {
  AddRecord(m, 0, code, kKeyUnicode);
  AddRecord(m, 0, code, kKeyUnicode | kKeyUp);
}

void AddModifierEvent(MSendInput& m, std::int16_t vk, bool down) { AddRecord(m, vk, 0, down ? 0 : kKeyUp); }

}  // namespace gabarito
