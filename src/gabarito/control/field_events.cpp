#include "gabarito/control/field_events.h"

#include "gabarito/combo/autocompleta.h"
#include "gabarito/control/ajusta_mascara.h"
#include "gabarito/control/aparencia.h"
#include "gabarito/control/especie.h"
#include "gabarito/control/estado.h"
#include "gabarito/control/foco.h"
#include "gabarito/control/persistencia.h"
#include "gabarito/control/porta_do_valor.h"
#include "gabarito/keyboard/filtro.h"
#include "gabarito/keyboard/navegacao.h"
#include "gabarito/subclass/combo_subclass.h"

namespace gabarito {

FieldEvents::FieldEvents(const Gabarito& field) : c(field.c) {}

void FieldEvents::UserControl_Initialize() { gabarito::UserControl_Initialize(*c); }
void FieldEvents::UserControl_ReadProperties(const PropertyBag& PropBag) {
  gabarito::UserControl_ReadProperties(*c, PropBag);
}
void FieldEvents::UserControl_Show() { AjustaMascara(*c); }
void FieldEvents::UserControl_Resize() { AjustaMascara(*c); }
void FieldEvents::UserControl_WriteProperties(PropertyBag& PropBag) const {
  gabarito::UserControl_WriteProperties(*c, PropBag);
}
void FieldEvents::UserControl_Terminate() { gabarito::UserControl_Terminate(*c); }
void FieldEvents::UserControl_AmbientChanged(std::u16string_view PropertyName) {
  gabarito::UserControl_AmbientChanged(*c, PropertyName);
}
void FieldEvents::UserControl_GotFocus() { gabarito::UserControl_GotFocus(*c); }
void FieldEvents::UserControl_ExitFocus() { gabarito::UserControl_ExitFocus(*c); }

void FieldEvents::txt_entrada_GotFocus(std::int16_t Index) { EntradaGotFocus(*c, Index); }
void FieldEvents::txt_entrada3D_GotFocus(std::int16_t Index) { EntradaGotFocus(*c, Index); }

void FieldEvents::txt_entrada_KeyDown(std::int16_t, std::int16_t& KeyCode, std::int16_t& Shift) {
  EntradaKeyDown(*c, KeyCode, Shift);
}
void FieldEvents::txt_entrada3D_KeyDown(std::int16_t, std::int16_t& KeyCode, std::int16_t& Shift) {
  EntradaKeyDown(*c, KeyCode, Shift);
}

void FieldEvents::txt_entrada_KeyPress(std::int16_t Index, std::int16_t& KeyAscii) {
  KeyPressDaCaixa(*c, EspecieDe(c->mMask).regra, CaixaDe(c->txt_entrada, Index),
                  CaixaDe(c->txt_entrada3D, Index), Index, KeyAscii);
}
void FieldEvents::txt_entrada3D_KeyPress(std::int16_t Index, std::int16_t& KeyAscii) {
  KeyPressDaCaixa(*c, EspecieDe(c->mMask).regra, CaixaDe(c->txt_entrada3D, Index),
                  CaixaDe(c->txt_entrada, Index), Index, KeyAscii);
}

void FieldEvents::MaskEdBox1_GotFocus() { gabarito::MaskEdBox1_GotFocus(*c); }
void FieldEvents::MaskEdBox1_KeyPress(std::int16_t& KeyAscii) { gabarito::MaskEdBox1_KeyPress(*c, KeyAscii); }

void FieldEvents::Combo1_Click() { gabarito::Combo1_Click(*c); }
void FieldEvents::Combo1_KeyPress(std::int16_t& KeyAscii) { gabarito::Combo1_KeyPress(*c, KeyAscii); }
void FieldEvents::Combo1_KeyUp(std::int16_t& KeyCode, std::int16_t& Shift) {
  gabarito::Combo1_KeyUp(*c, KeyCode, Shift);
}
void FieldEvents::Combo1_LostFocus() { gabarito::Combo1_LostFocus(*c); }

void FieldEvents::HookCombo() { gabarito::HookCombo(*c); }
void FieldEvents::UnhookCombo() { gabarito::UnhookCombo(*c); }
std::int32_t FieldEvents::ComboWindowProc(WindowHandle hWnd, std::int32_t uMsg, std::int32_t wParam,
                                          std::int32_t lParam) {
  return gabarito::ComboWindowProc(*c, hWnd, uMsg, wParam, lParam);
}

}  // namespace gabarito
