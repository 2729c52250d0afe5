// Window procedures and drawing on a whole window. Optional: a host without windows of its own leaves
// Host::WindowHook null, and Gabarito's HookCombo then raises 445. Handles are the host's own numbers; 0 is
// none.
#ifndef GABARITO_PLATFORM_WINDOW_HOOK_H
#define GABARITO_PLATFORM_WINDOW_HOOK_H

#include <cstdint>
#include <string_view>

#include "gabarito/platform/combo_box.h"

namespace gabarito {

struct RECT {
  std::int32_t left = 0, top = 0, right = 0, bottom = 0;  // pixels
  friend bool operator==(const RECT&, const RECT&) = default;
};

using DeviceContext = std::intptr_t;

class WindowHook;

// A window procedure, and its address as window calls and window properties carry it.
using WindowProcedure = std::int32_t (*)(WindowHook& hook, WindowHandle window, std::int32_t message,
                                         std::int32_t wParam, std::int32_t lParam);
using WindowProc = std::intptr_t;

class WindowHook {
 public:
  virtual ~WindowHook() = default;

  // Window properties by name; 0 for one that is not there.
  virtual std::intptr_t GetPropA(WindowHandle window, std::string_view name) const = 0;
  virtual void SetPropA(WindowHandle window, std::string_view name, std::intptr_t value) = 0;
  // index -4: the window procedure. Set returns the former value.
  virtual std::intptr_t GetWindowLongA(WindowHandle window, std::int32_t index) const = 0;
  virtual std::intptr_t SetWindowLongA(WindowHandle window, std::int32_t index, std::intptr_t value) = 0;
  virtual std::int32_t CallWindowProcA(WindowProc procedure, WindowHandle window, std::int32_t message,
                                       std::int32_t wParam, std::int32_t lParam) = 0;

  // Drawing on the whole window, frame included.
  virtual DeviceContext GetWindowDC(WindowHandle window) = 0;
  virtual void ReleaseDC(WindowHandle window, DeviceContext context) = 0;
  virtual void GetClientRect(WindowHandle window, RECT& rectangle) const = 0;
  virtual void DrawEdge(DeviceContext context, const RECT& rectangle, std::int32_t edge,
                        std::int32_t flags) = 0;
  virtual void InflateRect(RECT& rectangle, std::int32_t dx, std::int32_t dy) const = 0;
};

}  // namespace gabarito

#endif  // GABARITO_PLATFORM_WINDOW_HOOK_H
