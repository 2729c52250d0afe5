#include "hosts/memory/windows.h"

#include "hosts/memory/form.h"

namespace gabarito::memory {
namespace {

constexpr std::int32_t kWindowProcIndex = -4;
constexpr std::int32_t kNcDestroy = 130;
constexpr float kTwipsAPixel = 15;

// The procedure of every window that nobody has hooked.
std::int32_t StockProcedure(WindowHook&, WindowHandle, std::int32_t, std::int32_t, std::int32_t) { return 0; }

WindowProc AddressOf(WindowProcedure procedure) { return reinterpret_cast<WindowProc>(procedure); }

}  // namespace

WindowHandle Windows::Open() {
  const WindowHandle window = form_.Model().NewWindowHandle();
  windows_.insert({window, {.procedure = AddressOf(StockProcedure), .properties = {}}});
  return window;
}

void Windows::Close(WindowHandle window) {
  const auto found = windows_.find(window);
  if (found == windows_.end()) return;
  if (found->second.procedure != AddressOf(StockProcedure)) Send(window, kNcDestroy, 0, 0);
  windows_.erase(window);
}

Windows::Window* Windows::Find(WindowHandle window) const {
  const auto found = windows_.find(window);
  if (found != windows_.end()) return &found->second;
  if (find_combo_(window) == nullptr) return nullptr;
  return &windows_.insert({window, {.procedure = AddressOf(StockProcedure), .properties = {}}}).first->second;
}

std::int32_t Windows::Send(WindowHandle window, std::int32_t message, std::int32_t wParam,
                           std::int32_t lParam) {
  const Window* found = Find(window);
  if (found == nullptr) return 0;
  return reinterpret_cast<WindowProcedure>(found->procedure)(*this, window, message, wParam, lParam);
}

std::intptr_t Windows::GetPropA(WindowHandle window, std::string_view name) const {
  const Window* found = Find(window);
  if (found == nullptr) return 0;
  const auto property = found->properties.find(name);
  return property == found->properties.end() ? 0 : property->second;
}

void Windows::SetPropA(WindowHandle window, std::string_view name, std::intptr_t value) {
  if (Window* found = Find(window)) found->properties.insert_or_assign(std::string(name), value);
}

std::intptr_t Windows::GetWindowLongA(WindowHandle window, std::int32_t index) const {
  const Window* found = Find(window);
  return found != nullptr && index == kWindowProcIndex ? found->procedure : 0;
}

std::intptr_t Windows::SetWindowLongA(WindowHandle window, std::int32_t index, std::intptr_t value) {
  Window* found = Find(window);
  if (found == nullptr || index != kWindowProcIndex) return 0;
  const WindowProc former = found->procedure;
  found->procedure = value;
  return former;
}

std::int32_t Windows::CallWindowProcA(WindowProc procedure, WindowHandle window, std::int32_t message,
                                      std::int32_t wParam, std::int32_t lParam) {
  if (procedure == 0) return 0;
  if (procedure == AddressOf(StockProcedure) && form_.Model().recorder != nullptr) {
    form_.Model().recorder->OldWindowProc(message);
  }
  return reinterpret_cast<WindowProcedure>(procedure)(*this, window, message, wParam, lParam);
}

DeviceContext Windows::GetWindowDC(WindowHandle window) {
  ++contexts_;
  return window;
}

void Windows::ReleaseDC(WindowHandle, DeviceContext) { --contexts_; }

void Windows::GetClientRect(WindowHandle window, RECT& rectangle) const {
  rectangle = {};
  const kit::ComboModel* const combo = find_combo_(window);
  if (combo == nullptr) return;
  rectangle.right = static_cast<std::int32_t>(combo->Bounds().width / kTwipsAPixel);
  rectangle.bottom = static_cast<std::int32_t>(combo->LineHeight() / kTwipsAPixel);
}

void Windows::DrawEdge(DeviceContext, const RECT& rectangle, std::int32_t edge, std::int32_t flags) {
  if (form_.Model().recorder != nullptr) form_.Model().recorder->DrawEdge(rectangle, edge, flags);
}

void Windows::InflateRect(RECT& rectangle, std::int32_t dx, std::int32_t dy) const {
  rectangle.left -= dx;
  rectangle.top -= dy;
  rectangle.right += dx;
  rectangle.bottom += dy;
}

}  // namespace gabarito::memory
