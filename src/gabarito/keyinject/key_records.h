// The records of one run of SendKeyString, and the state that the run keeps while it makes them.
//
// The state is a plain struct and the routines are free functions over it. There is one for each thread;
// its storage is used again by the next run, so that a run allocates nothing once the thread is warm.
#ifndef GABARITO_KEYINJECT_KEY_RECORDS_H
#define GABARITO_KEYINJECT_KEY_RECORDS_H

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "gabarito/platform/input_queue.h"

namespace gabarito {

// The bound that a run starts with, and the number by which it grows.
inline constexpr std::size_t kRecordStep = 511;

struct MSendInput {
  InputQueue* queue = nullptr;
  std::int32_t keyboardLayout = 0;  // handle, asked for at the start of each run

  std::u16string_view keyText;    // the key string in work
  std::int32_t keyPos = 0;        // 1-based position of the last character read; 0 before the first
  std::uint8_t modifierBits = 0;  // modifiers held by the string: 1 Shift, 2 Ctrl, 4 Alt
  bool groupEndMissing = false;   // no ")" stands behind keyPos, as a search has shown
  bool braceEndMissing = false;   // no "}" stands where a "{" behind keyPos could end

  std::vector<INPUT> inputRecords;              // as many as are filled
  std::size_t upperBound = kRecordStep;         // index of the last record that the run may fill
  std::vector<std::u16string_view> tokenParts;  // of the braces in work
};

// Makes `m` new for a run over `text`, keeping its storage. The text has to outlive the run.
void BeginRun(MSendInput& m, InputQueue& queue, std::u16string_view text);

// Raises the bound when fewer than 24 records below it are free. To be called between elements only.
void GrowBetweenElements(MSendInput& m);

// The three below raise 9 for a record beyond the bound.

// Press and release of a key, within a Shift of its own if `withShift` (unless the string holds Shift
// already) and within Ctrl and Alt if `withCtrlAlt`. The press carries the extended flag, the release the
// scan code.
void AddKeyPress(MSendInput& m, std::int16_t vk, bool withShift, bool extended, bool withCtrlAlt);

// Press and release of a UTF-16 unit, without any key.
void AddUnicodeChar(MSendInput& m, std::int16_t code);

void AddModifierEvent(MSendInput& m, std::int16_t vk, bool down);

}  // namespace gabarito

#endif  // GABARITO_KEYINJECT_KEY_RECORDS_H
