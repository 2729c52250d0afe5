// Typing by key string, beside a floor that writes the same records by hand into a fixed array and makes
// the same calls of the host.
#include <benchmark/benchmark.h>

#include <array>
#include <string>

#include "gabarito/keyinject/send_input.h"
#include "hosts/memory/keyboard_layout.h"
#include "keyinject/recording_user32.h"

namespace gabarito {
namespace {

// Counts records and keeps none, so that what is measured is the making of them.
class CountingUser32 final : public RecordingUser32 {
 public:
  std::int32_t SendInput(std::span<const INPUT> events, std::int32_t) override {
    benchmark::DoNotOptimize(events.data());
    return static_cast<std::int32_t>(events.size());
  }
};

void AddByHand(User32& user32, std::int16_t key, INPUT*& next) {
  const auto vk = static_cast<std::uint16_t>(key & 255);
  const auto scan = static_cast<std::uint16_t>(user32.MapVirtualKeyExA(vk, 0, user32.GetKeyboardLayout(0)));
  *next++ = {.type = kInputKeyboard, .wVk = vk};
  *next++ = {.type = kInputKeyboard, .wVk = vk, .wScan = scan, .dwFlags = kKeyUp};
}

void Floor(benchmark::State& state, std::u16string_view letters) {
  CountingUser32 counting;
  User32& user32 = counting;
  std::array<INPUT, 1024> records;
  for (auto _ : state) {
    benchmark::DoNotOptimize(letters);
    INPUT* next = records.data();
    for (const char16_t c : letters) {
      AddByHand(user32, user32.VkKeyScanA(static_cast<std::uint8_t>(c)), next);
    }
    user32.SendInput(std::span(records.data(), next), sizeof(INPUT));
  }
}

void Send(benchmark::State& state, std::u16string_view text) {
  CountingUser32 user32;
  SystemVersion system;
  RecordingDialogs dialogs;
  for (auto _ : state) {
    benchmark::DoNotOptimize(text);
    SendKeyString(user32, system, dialogs, text, true);
  }
}

const std::u16string kLetters(300, u'a');

BENCHMARK_CAPTURE(Floor, Tab, u"\t")->Name("Send/Tab_floor");
BENCHMARK_CAPTURE(Send, Tab, u"{TAB}");
BENCHMARK_CAPTURE(Send, ShiftTab, u"+{TAB}");
BENCHMARK_CAPTURE(Floor, Letters300, kLetters)->Name("Send/Letters300_floor");
BENCHMARK_CAPTURE(Send, Letters300, kLetters);

}  // namespace
}  // namespace gabarito
