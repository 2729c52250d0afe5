#include "hosts/memory/windows.h"

#include "hosts/memory/combo_widget.h"
#include "hosts/memory/environment.h"

namespace gabarito::memory {
namespace {

constexpr std::int32_t kWindowProcIndex = -4;
constexpr std::int32_t kWindowGoes = 130;  // WM_NCDESTROY
constexpr float kTwipsAPixel = 15;

// The procedure of every window that nobody has hooked.
std::int32_t StockProcedure(User32&, WindowHandle, std::int32_t, std::int32_t, std::int32_t) { return 0; }

WindowProc AddressOf(WindowProcedure procedure) { return reinterpret_cast<WindowProc>(procedure); }

}  // namespace

WindowHandle Windows::Open(ComboWidget* combo) {
  windows_.push_back({.combo = combo, .procedure = AddressOf(StockProcedure), .properties = {}});
  return static_cast<WindowHandle>(windows_.size());
}

void Windows::Close(WindowHandle window) {
  Send(window, kWindowGoes, 0, 0);
  if (Window* found = Find(window)) *found = {.open = false, .properties = {}};
}

Windows::Window* Windows::Find(WindowHandle window) {
  if (window < 1 || window > static_cast<WindowHandle>(windows_.size())) return nullptr;
  Window& found = windows_[static_cast<std::size_t>(window) - 1];
  return found.open ? &found : nullptr;
}

std::int32_t Windows::Send(WindowHandle window, std::int32_t message, std::int32_t wParam,
                           std::int32_t lParam) {
  const Window* found = Find(window);
  if (found == nullptr) return 0;
  return reinterpret_cast<WindowProcedure>(found->procedure)(*this, window, message, wParam, lParam);
}

std::int32_t Windows::SendMessageA(WindowHandle window, std::int32_t message, std::int32_t wParam,
                                   std::u16string_view text) {
  const Window* found = Find(window);
  const bool search = message == kCbFindString && wParam == -1;
  if (found == nullptr || found->combo == nullptr) return search ? -1 : 0;
  if (search) return found->combo->FindBeginning(text);
  if (message == kCbShowDropDown) found->combo->DropDown(wParam != 0);
  return 0;
}

void Windows::LockWindowUpdate(WindowHandle window) {
  // Whoever locked the painting to fill a list has filled it: what was reserved for more can go.
  if (window == 0) {
    if (const Window* found = Find(locked_); found != nullptr && found->combo != nullptr) {
      found->combo->TrimList();
    }
  }
  locked_ = window;
}

std::int32_t Windows::SendInput(std::span<const INPUT> events, std::int32_t size) {
  if (size != static_cast<std::int32_t>(sizeof(INPUT))) return 0;
  if (environment_.recorder != nullptr) environment_.recorder->SendInput(events);
  environment_.keyboard.Send(events);
  return static_cast<std::int32_t>(events.size());
}

std::int16_t Windows::VkKeyScanA(std::uint8_t character) const {
  return environment_.keyboard.Layout().VkKeyScan(character);
}

std::int32_t Windows::GetKeyboardLayout(std::int32_t) const { return environment_.keyboard.Layout().handle; }

std::int32_t Windows::MapVirtualKeyExA(std::int32_t key, std::int32_t mapType, std::int32_t) const {
  return mapType == 0 ? environment_.keyboard.Layout().ScanCode(key) : 0;
}

std::int16_t Windows::GetKeyState(std::int32_t key) const { return environment_.keyboard.KeyState(key); }

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
  if (procedure == AddressOf(StockProcedure) && environment_.recorder != nullptr) {
    environment_.recorder->OldWindowProc(message);
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
  const Window* found = Find(window);
  if (found == nullptr || found->combo == nullptr) return;
  rectangle.right = static_cast<std::int32_t>(found->combo->Bounds().width / kTwipsAPixel);
  rectangle.bottom = static_cast<std::int32_t>(found->combo->LineHeight() / kTwipsAPixel);
}

void Windows::DrawEdge(DeviceContext, const RECT& rectangle, std::int32_t edge, std::int32_t flags) {
  if (environment_.recorder != nullptr) environment_.recorder->DrawEdge(rectangle, edge, flags);
}

void Windows::InflateRect(RECT& rectangle, std::int32_t dx, std::int32_t dy) const {
  rectangle.left -= dx;
  rectangle.top -= dy;
  rectangle.right += dx;
  rectangle.bottom += dy;
}

}  // namespace gabarito::memory
