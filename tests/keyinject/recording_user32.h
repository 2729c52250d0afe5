// User32 and its neighbours as far as typing needs them: a keyboard of a given layout, and a record of all
// that was sent.
#ifndef TESTS_KEYINJECT_RECORDING_USER32_H
#define TESTS_KEYINJECT_RECORDING_USER32_H

#include <cstdio>
#include <string>
#include <vector>

#include "gabarito/platform/dialogs.h"
#include "gabarito/platform/kernel32.h"
#include "gabarito/platform/user32.h"
#include "hosts/memory/keyboard_layout.h"

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

  // Nothing of the following is asked for by typing.
  std::int32_t SendMessageA(WindowHandle, int, int, std::u16string_view) override { return 0; }
  void LockWindowUpdate(WindowHandle) override {}
  std::intptr_t GetPropA(WindowHandle, std::string_view) const override { return 0; }
  void SetPropA(WindowHandle, std::string_view, std::intptr_t) override {}
  std::intptr_t GetWindowLongA(WindowHandle, std::int32_t) const override { return 0; }
  std::intptr_t SetWindowLongA(WindowHandle, std::int32_t, std::intptr_t) override { return 0; }
  std::int32_t CallWindowProcA(WindowProc, WindowHandle, int, int, int) override { return 0; }
  DeviceContext GetWindowDC(WindowHandle) override { return 0; }
  void ReleaseDC(WindowHandle, DeviceContext) override {}
  void GetClientRect(WindowHandle, RECT&) const override {}
  void DrawEdge(DeviceContext, const RECT&, std::int32_t, std::int32_t) override {}
  void InflateRect(RECT&, std::int32_t, std::int32_t) const override {}
};

struct SystemVersion : Kernel32 {
  OSVERSIONINFO version{.dwMajorVersion = 5, .dwMinorVersion = 1, .dwPlatformId = 2};
  std::int32_t GetLocaleInfoA(std::int32_t, std::int32_t, std::span<char>) const override { return 0; }
  void GetVersionExA(OSVERSIONINFO& info) const override { info = version; }
};

struct RecordingDialogs : Dialogs {
  std::u16string keys;  // of all SendKeys: the text, and "!" for one to wait for
  std::int32_t MsgBox(std::u16string_view, int, std::optional<std::u16string_view>) override { return 1; }
  void Beep() override {}
  void SendKeys(std::u16string_view text, bool wait) override { keys.append(text).append(wait, u'!'); }
  void Trace(std::u16string_view) override {}
};

}  // namespace gabarito

#endif  // TESTS_KEYINJECT_RECORDING_USER32_H
