// Typing by key string, beside a floor that writes the same records by hand into a fixed array and makes
// the same calls of the host.
#include <benchmark/benchmark.h>

#include <array>
#include <string>

#include "gabarito/keyinject/send_input.h"
#include "hosts/kit/scripted.h"

namespace gabarito {
namespace {

// The keyboard calls over the Brazilian layout; events are counted and not kept, so that what is measured is
// the making of them.
class CountingQueue final : public InputQueue {
 public:
  std::int32_t SendInput(std::span<const INPUT> events, std::int32_t) override {
    benchmark::DoNotOptimize(events.data());
    return static_cast<std::int32_t>(events.size());
  }
  std::int16_t VkKeyScanA(std::uint8_t character) const override { return layout_.VkKeyScan(character); }
  std::int32_t GetKeyboardLayout(std::int32_t) const override { return layout_.handle; }
  std::int32_t MapVirtualKeyExA(std::int32_t key, std::int32_t, std::int32_t) const override {
    return layout_.ScanCode(key);
  }
  std::int16_t GetKeyState(std::int32_t) const override { return 0; }

 private:
  const kit::KeyboardLayout& layout_ = kit::Abnt2();
};

void AddByHand(InputQueue& queue, std::int16_t key, INPUT*& next) {
  const auto vk = static_cast<std::uint16_t>(key & 255);
  const auto scan = static_cast<std::uint16_t>(queue.MapVirtualKeyExA(vk, 0, queue.GetKeyboardLayout(0)));
  *next++ = {.type = kInputKeyboard, .wVk = vk};
  *next++ = {.type = kInputKeyboard, .wVk = vk, .wScan = scan, .dwFlags = kKeyUp};
}

void Floor(benchmark::State& state, std::u16string_view letters) {
  CountingQueue counting;
  InputQueue& queue = counting;
  std::array<INPUT, 1024> records;
  for (auto _ : state) {
    benchmark::DoNotOptimize(letters);
    INPUT* next = records.data();
    for (const char16_t c : letters) {
      AddByHand(queue, queue.VkKeyScanA(static_cast<std::uint8_t>(c)), next);
    }
    queue.SendInput(std::span(records.data(), next), sizeof(INPUT));
  }
}

void Send(benchmark::State& state, std::u16string_view text) {
  CountingQueue queue;
  kit::ScriptedServices environment;
  for (auto _ : state) {
    benchmark::DoNotOptimize(text);
    SendKeyString(queue, environment.kernel, environment.dialogs, text, true);
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
