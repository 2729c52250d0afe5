// Window procedures and drawing, over the combo boxes of a form.
#ifndef HOSTS_MEMORY_WINDOWS_H
#define HOSTS_MEMORY_WINDOWS_H

#include <functional>
#include <map>
#include <string>

#include "gabarito/platform/window_hook.h"
#include "hosts/kit/combo_model.h"

namespace gabarito::memory {

class Form;

// A call with a handle that is none, or of a combo box that is gone, does nothing and gives 0.
class Windows final : public WindowHook {
 public:
  using FindCombo = std::function<kit::ComboModel*(WindowHandle)>;
  Windows(Form& form, FindCombo findCombo) : form_(form), find_combo_(std::move(findCombo)) {}

  // A window without content.
  WindowHandle Open();
  // The window is about to go: one that somebody has hooked is told (WM_NCDESTROY).
  void Close(WindowHandle window);

  // The system sends a message: the window's present procedure gets it.
  std::int32_t Send(WindowHandle window, std::int32_t message, std::int32_t wParam, std::int32_t lParam);

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
    WindowProc procedure;
    std::map<std::string, std::intptr_t, std::less<>> properties;
  };

  // Null for a handle that is none. The window of a combo box gets its entry when it is first asked for.
  Window* Find(WindowHandle window) const;

  Form& form_;
  FindCombo find_combo_;
  mutable std::map<WindowHandle, Window> windows_;
  int contexts_ = 0;
};

}  // namespace gabarito::memory

#endif  // HOSTS_MEMORY_WINDOWS_H
