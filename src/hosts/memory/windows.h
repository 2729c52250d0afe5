// The system calls about windows, keyboard and drawing, over the combo boxes of a form.
#ifndef HOSTS_MEMORY_WINDOWS_H
#define HOSTS_MEMORY_WINDOWS_H

#include <map>
#include <string>
#include <vector>

#include "gabarito/platform/user32.h"

namespace gabarito::memory {

class ComboWidget;
struct Environment;

// Handles are small numbers, never used twice. A call with a handle that is none, or of a combo box that is
// gone, does nothing and gives 0 (-1 for a search).
class Windows final : public User32 {
 public:
  explicit Windows(Environment& environment) : environment_(environment) {}

  // Gives a combo box its window; with null a window without content.
  WindowHandle Open(ComboWidget* combo);
  // Sends WM_NCDESTROY first, so whoever has hooked the window is still there.
  void Close(WindowHandle window);

  // The system sends a message: the window's present procedure gets it.
  std::int32_t Send(WindowHandle window, std::int32_t message, std::int32_t wParam, std::int32_t lParam);

  std::int32_t SendMessageA(WindowHandle window, std::int32_t message, std::int32_t wParam,
                            std::u16string_view text) override;
  void LockWindowUpdate(WindowHandle window) override;
  std::int32_t SendInput(std::span<const INPUT> events, std::int32_t size) override;
  std::int16_t VkKeyScanA(std::uint8_t character) const override;
  std::int32_t GetKeyboardLayout(std::int32_t thread) const override;
  std::int32_t MapVirtualKeyExA(std::int32_t key, std::int32_t mapType, std::int32_t layout) const override;
  std::int16_t GetKeyState(std::int32_t key) const override;

  std::intptr_t GetPropA(WindowHandle window, std::string_view name) const override;
  void SetPropA(WindowHandle window, std::string_view name, std::intptr_t value) override;
  std::intptr_t GetWindowLongA(WindowHandle window, std::int32_t index) const override;
  std::intptr_t SetWindowLongA(WindowHandle window, std::int32_t index, std::intptr_t value) override;
  std::int32_t CallWindowProcA(WindowProc procedure, WindowHandle window, std::int32_t message,
                               std::int32_t wParam, std::int32_t lParam) override;

  DeviceContext GetWindowDC(WindowHandle window) override;
  void ReleaseDC(WindowHandle window, DeviceContext context) override;
  void GetClientRect(WindowHandle window, RECT& rectangle) const override;
  void DrawEdge(DeviceContext context, const RECT& rectangle, std::int32_t edge, std::int32_t flags) override;
  void InflateRect(RECT& rectangle, std::int32_t dx, std::int32_t dy) const override;

  // Contexts that were got and not released.
  int OpenContexts() const { return contexts_; }

 private:
  struct Window {
    bool open = true;
    ComboWidget* combo = nullptr;
    WindowProc procedure = 0;
    std::map<std::string, std::intptr_t, std::less<>> properties;
  };

  Window* Find(WindowHandle window);
  const Window* Find(WindowHandle window) const { return const_cast<Windows*>(this)->Find(window); }

  Environment& environment_;
  std::vector<Window> windows_;
  WindowHandle locked_ = 0;
  int contexts_ = 0;
};

}  // namespace gabarito::memory

#endif  // HOSTS_MEMORY_WINDOWS_H
