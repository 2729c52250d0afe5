#include "gabarito/keyinject/send_input.h"

#include <cstddef>
#include <cstdint>
#include <limits>

#include "gabarito/keyinject/key_records.h"
#include "gabarito/keyinject/key_string.h"
#include "gabarito/platform/erro.h"

namespace gabarito {
namespace {

// Storage for longer runs (112 KB) is given back after use.
constexpr std::size_t kRecordsKept = 4096;

// Positions up to two behind the end are reckoned in 32 bits.
constexpr std::size_t kLongestText = std::numeric_limits<std::int32_t>::max() - 2;

bool HasSendInput(const Kernel32& kernel32) {
  OSVERSIONINFO version;
  kernel32.GetVersionExA(version);
  return version.dwPlatformId != kPlatformWindows || version.dwMajorVersion != 4 ||
         version.dwMinorVersion >= 10;
}

}  // namespace

void SendKeyString(InputQueue& queue, Kernel32& kernel32, Dialogs& dialogs, std::u16string_view text,
                   bool wait) {
  if (!HasSendInput(kernel32)) return dialogs.SendKeys(text, wait);
  if (text.size() > kLongestText) Fail(kOverflow);

  thread_local MSendInput m;
  BeginRun(m, queue, text);
  while (m.keyPos < Len(m.keyText)) {
    ParseNextElement(m);
    GrowBetweenElements(m);
  }
  if (m.inputRecords.empty()) return;
  queue.SendInput(m.inputRecords, sizeof(INPUT));
  if (m.inputRecords.capacity() > kRecordsKept) m.inputRecords = {};
}

}  // namespace gabarito
