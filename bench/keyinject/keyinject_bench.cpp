// Typing by key string, beside a floor that writes the same records by hand into a fixed array and makes
// the same calls of the host.
#include <benchmark/benchmark.h>

#include <array>
#include <string>

#include "gabarito/keyinject/send_input.h"
#include "hosts/memory/environment.h"

namespace gabarito {
namespace {

// The keyboard calls over the Brazilian layout; events are counted and not kept, so that what is measured is
// the making of them. No window is ever asked for.
class CountingUser32 final : public User32 {
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

  std::int32_t SendMessageA(WindowHandle, std::int32_t, std::int32_t, std::u16string_view) override {
    return 0;
  }
  void LockWindowUpdate(WindowHandle) override {}
  std::intptr_t GetPropA(WindowHandle, std::string_view) const override { return 0; }
  void SetPropA(WindowHandle, std::string_view, std::intptr_t) override {}
  std::intptr_t GetWindowLongA(WindowHandle, std::int32_t) const override { return 0; }
  std::intptr_t SetWindowLongA(WindowHandle, std::int32_t, std::intptr_t) override { return 0; }
  std::int32_t CallWindowProcA(WindowProc, WindowHandle, std::int32_t, std::int32_t, std::int32_t) override {
    return 0;
  }
  DeviceContext GetWindowDC(WindowHandle) override { return 0; }
  void ReleaseDC(WindowHandle, DeviceContext) override {}
  void GetClientRect(WindowHandle, RECT&) const override {}
  void DrawEdge(DeviceContext, const RECT&, std::int32_t, std::int32_t) override {}
  void InflateRect(RECT&, std::int32_t, std::int32_t) const override {}

 private:
  const memory::KeyboardLayout& layout_ = memory::Abnt2();
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
  memory::Environment environment;
  for (auto _ : state) {
    benchmark::DoNotOptimize(text);
    SendKeyString(user32, environment.kernel, environment.dialogs, text, true);
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
