// User32 and its neighbours as far as typing needs them: a keyboard of a given layout, and a record of all
// that was sent. Records are written "+9" for a press, "-9:F" for a release with its scan code, with an "x"
// for the extended flag and U20AC in place of the key for a Unicode character.
#ifndef TESTS_KEYINJECT_RECORDING_USER32_H
#define TESTS_KEYINJECT_RECORDING_USER32_H

#include <charconv>
#include <span>
#include <string>
#include <vector>

#include "gabarito/platform/dialogs.h"
#include "gabarito/platform/kernel32.h"
#include "gabarito/platform/user32.h"
#include "hosts/memory/keyboard_layout.h"

namespace gabarito {

class RecordingUser32 : public User32 {
 public:
  explicit RecordingUser32(const memory::KeyboardLayout& layout = memory::Abnt2(), bool capsLock = false)
      : layout_(&layout), capsLock_(capsLock) {}

  std::vector<INPUT> records;  // of the last call
  int calls = 0;

  std::string Sent() const {
    std::string text;
    for (const INPUT& record : records) {
      const bool unicode = (record.dwFlags & kKeyUnicode) != 0;
      if (!text.empty()) text += ' ';
      text += record.dwFlags & kKeyUp ? '-' : '+';
      text += unicode ? "U" + Number(record.wScan, 16) : Number(record.wVk, 10);
      if (record.dwFlags & kKeyExtended) text += 'x';
      if (!unicode && record.wScan) text += ":" + Number(record.wScan, 16);
      if (record.type != kInputKeyboard || record.time || record.dwExtraInfo) text += "?";
    }
    return text;
  }

  std::int32_t SendInput(std::span<const INPUT> events, std::int32_t size) override {
    records.assign(events.begin(), events.end());
    ++calls;
    return size == 28 ? static_cast<std::int32_t>(events.size()) : 0;
  }
  std::int16_t VkKeyScanA(std::uint8_t character) const override { return layout_->VkKeyScan(character); }
  std::int32_t GetKeyboardLayout(std::int32_t) const override { return layout_->handle; }
  std::int32_t MapVirtualKeyExA(std::int32_t key, std::int32_t type, std::int32_t layout) const override {
    return type == 0 && layout == layout_->handle ? layout_->ScanCode(key) : 0;
  }
  std::int16_t GetKeyState(std::int32_t key) const override { return key == kVkCapital && capsLock_; }

  // Nothing of the following is asked for by typing.
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
  static std::string Number(int value, int base) {
    char digits[8];
    std::string text(digits, std::to_chars(digits, digits + sizeof digits, value, base).ptr);
    for (char& digit : text) digit = static_cast<char>(digit >= 'a' ? digit - 'a' + 'A' : digit);
    return text;
  }

  const memory::KeyboardLayout* layout_;
  bool capsLock_;
};

struct SystemVersion : Kernel32 {
  OSVERSIONINFO version{.dwMajorVersion = 5, .dwMinorVersion = 1, .dwPlatformId = 2};
  std::int32_t GetLocaleInfoA(std::int32_t, std::int32_t, std::span<char>) const override { return 0; }
  void GetVersionExA(OSVERSIONINFO& info) const override { info = version; }
};

struct RecordingDialogs : Dialogs {
  std::u16string keys;  // "wait" or "go" and the text, of the last SendKeys
  std::int32_t MsgBox(std::u16string_view, std::int32_t, std::optional<std::u16string_view>) override {
    return kAnswerOk;
  }
  void Beep() override {}
  void SendKeys(std::u16string_view text, bool wait) override {
    keys.assign(wait ? u"wait " : u"go ").append(text);
  }
};

}  // namespace gabarito

#endif  // TESTS_KEYINJECT_RECORDING_USER32_H
