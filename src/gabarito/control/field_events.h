// The host's face of a field: the handlers that a host raises, in the life of the field and for its children.
//
//   FieldEvents events(field);
//   events.UserControl_Initialize();
//   events.UserControl_Show();
//
// An object of it is small and may be copied; each shares the field's state and keeps it, and through it the
// children, for as long as it lives. A host that raises a handler which may end the field (any of them may: a
// message box can be open inside) raises it on a copy of its own.
#ifndef GABARITO_CONTROL_FIELD_EVENTS_H
#define GABARITO_CONTROL_FIELD_EVENTS_H

#include <cstdint>
#include <memory>
#include <string_view>

#include "gabarito/control/gabarito.h"

namespace gabarito {

struct Campo;

class FieldEvents {
 public:
  explicit FieldEvents(const Gabarito& field);

  void UserControl_Initialize();
  void UserControl_ReadProperties(const PropertyBag& PropBag);
  void UserControl_Show();
  void UserControl_Resize();
  void UserControl_WriteProperties(PropertyBag& PropBag) const;
  void UserControl_Terminate();
  void UserControl_AmbientChanged(std::u16string_view PropertyName);
  void UserControl_GotFocus();
  void UserControl_ExitFocus();

  // `Index` is the position of the box in its array, 0 to 2. KeyAscii, KeyCode and Shift hold afterwards what
  // the host goes on with.
  void txt_entrada_GotFocus(std::int16_t Index);
  void txt_entrada_KeyDown(std::int16_t Index, std::int16_t& KeyCode, std::int16_t& Shift);
  void txt_entrada_KeyPress(std::int16_t Index, std::int16_t& KeyAscii);
  void txt_entrada3D_GotFocus(std::int16_t Index);
  void txt_entrada3D_KeyDown(std::int16_t Index, std::int16_t& KeyCode, std::int16_t& Shift);
  void txt_entrada3D_KeyPress(std::int16_t Index, std::int16_t& KeyAscii);
  void MaskEdBox1_GotFocus();
  void MaskEdBox1_KeyPress(std::int16_t& KeyAscii);
  void Combo1_Click();
  void Combo1_KeyPress(std::int16_t& KeyAscii);
  void Combo1_KeyUp(std::int16_t& KeyCode, std::int16_t& Shift);
  void Combo1_LostFocus();

  // The flat edge of Combo1, for hosts that want it: see subclass/combo_subclass.h. Nothing in the field
  // calls them. They raise 445 on a host without Host::WindowHook.
  void HookCombo();
  void UnhookCombo();
  std::int32_t ComboWindowProc(WindowHandle hWnd, std::int32_t uMsg, std::int32_t wParam,
                               std::int32_t lParam);

  // What the field remembers (state/campo.h), for hosts and tests that show it.
  const Campo& Estado() const { return *c; }

 private:
  std::shared_ptr<Campo> c;
};

}  // namespace gabarito

#endif  // GABARITO_CONTROL_FIELD_EVENTS_H
