// User32 and its neighbours as far as typing needs them: a keyboard of a given layout, and a record of all
// that was sent.
#ifndef TESTS_KEYINJECT_RECORDING_USER32_H
#define TESTS_KEYINJECT_RECORDING_USER32_H

#include <cstdio>
#include <string>
#include <vector>

#include "hosts/memory/environment.h"

namespace gabarito {

struct RecordingUser32 : User32 {
  std::vector<INPUT> records;  // of the last call
  int calls = 0;
  const memory::KeyboardLayout* layout = &memory::Abnt2();
  bool capsLock = false;

  // "+16" is a press and "-16" a release without a scan code; "9" is the press of a key and its release with
  // the key's scan code, "37x" the same with the extended flag, "u20AC" both halves of a Unicode character.
  // Anything else is "?".
  std::string Sent() const {
    std::string text;
    for (std::size_t i = 0; i < records.size(); ++i) {
      const INPUT& a = records[i];
      const INPUT b = i + 1 < records.size() ? records[i + 1] : INPUT{};
      const bool pair = a.wVk == b.wVk && b.dwFlags == ((a.dwFlags & kKeyUnicode) | kKeyUp);
      const bool unicode = pair && a.dwFlags == kKeyUnicode && a.wVk == 0 && a.wScan == b.wScan;
      const bool stroke = pair && a.dwFlags < 2 && a.wScan == 0 && b.wScan == layout->ScanCode(b.wVk);
      const bool single = a.wScan == 0 && (a.dwFlags & ~kKeyUp) == 0 && a.type == kInputKeyboard;
      const char* const format = unicode  ? "u%X "
                                 : stroke ? (a.dwFlags ? "%dx " : "%d ")
                                 : single ? (a.dwFlags ? "-%d " : "+%d ")
                                          : "? ";
      char word[16];
      text.append(word, std::snprintf(word, sizeof word, format, unicode ? a.wScan : a.wVk));
      i += unicode || stroke;
    }
    return text;
  }

  std::int32_t SendInput(std::span<const INPUT> events, std::int32_t size) override {
    if (size == 28) records.assign(events.begin(), events.end());
    return ++calls;
  }
  std::int16_t VkKeyScanA(std::uint8_t character) const override { return layout->VkKeyScan(character); }
  std::int32_t GetKeyboardLayout(std::int32_t) const override { return layout->handle; }
  std::int32_t MapVirtualKeyExA(std::int32_t key, std::int32_t type, std::int32_t handle) const override {
    return type == 0 && handle == layout->handle ? layout->ScanCode(key) : 0;
  }
  std::int16_t GetKeyState(std::int32_t key) const override { return key == kVkCapital && capsLock; }

  // clang-format off
  // Nothing of the following is asked for by typing.
  std::int32_t SendMessageA(WindowHandle, int, int, std::u16string_view) override { return 0; }
  std::intptr_t GetPropA(WindowHandle, std::string_view) const override { return 0; }
  std::intptr_t GetWindowLongA(WindowHandle, std::int32_t) const override { return 0; }
  std::intptr_t SetWindowLongA(WindowHandle, std::int32_t, std::intptr_t) override { return 0; }
  std::int32_t CallWindowProcA(WindowProc, WindowHandle, int, int, int) override { return 0; }
  DeviceContext GetWindowDC(WindowHandle) override { return 0; }
  void LockWindowUpdate(WindowHandle) override {} void ReleaseDC(WindowHandle, DeviceContext) override {}
  void SetPropA(WindowHandle, std::string_view, std::intptr_t) override {}
  void GetClientRect(WindowHandle, RECT&) const override {} void InflateRect(RECT&, int, int) const override {}
  void DrawEdge(DeviceContext, const RECT&, int, int) override {}
  // clang-format on
};

struct RecordedSendKeys : memory::Recorder {
  std::u16string keys;  // of all SendKeys: the text, and "!" for one to wait for
  void SendKeys(std::u16string_view text, bool wait) override { keys.append(text).append(wait, u'!'); }
};

}  // namespace gabarito

#endif  // TESTS_KEYINJECT_RECORDING_USER32_H
