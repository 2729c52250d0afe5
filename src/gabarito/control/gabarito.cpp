#include "gabarito/control/gabarito.h"

#include "gabarito/combo/autocompleta.h"
#include "gabarito/combo/palavras.h"
#include "gabarito/control/ajusta_mascara.h"
#include "gabarito/control/aparencia.h"
#include "gabarito/control/especie.h"
#include "gabarito/control/foco.h"
#include "gabarito/control/persistencia.h"
#include "gabarito/control/propriedades.h"
#include "gabarito/control/sobre.h"
#include "gabarito/control/texto.h"
#include "gabarito/keyboard/filtro.h"
#include "gabarito/keyboard/navegacao.h"
#include "gabarito/rules/texto.h"
#include "gabarito/state/apaga_campos.h"
#include "gabarito/subclass/combo_subclass.h"

namespace gabarito {

template <class Operacao>
void Gabarito::Publica(Operacao operacao) {
  try {
    operacao();
  } catch (...) {
    c.UserControl->Settle();
    throw;
  }
  c.UserControl->Settle();
}

Gabarito::Gabarito(const Host& host) : c(host) {}
Gabarito::~Gabarito() = default;

void Gabarito::ApagaCampos() { gabarito::ApagaCampos(c); }
void Gabarito::Sobre() { MostraSobre(c); }
std::u16string Gabarito::pfTiraAcentoDeFrase(std::u16string_view s) const {
  return gabarito::pfTiraAcentoDeFrase(s);
}

std::int16_t Gabarito::MaxLength() const { return c.mMaxLength; }
void Gabarito::MaxLength(std::int16_t t) {
  Publica([&] { PoeMaxLength(c, t); });
}

Variant Gabarito::ComboItens() const { return LeComboItens(c); }
void Gabarito::ComboItens(const Variant& itens) { GuardaComboItens(c, itens); }

std::int16_t Gabarito::ComboListCount() const { return c.Combo1->ListCount(); }

std::int16_t Gabarito::ComboListIndex() const { return c.Combo1->ListIndex(); }
void Gabarito::ComboListIndex(std::int16_t valor) { PoeComboListIndex(c, valor); }

bool Gabarito::Enabled() const { return c.mEntrada1->Enabled(); }
void Gabarito::Enabled(bool valor) {
  Publica([&] { PoeEnabled(c, valor); });
}

Color Gabarito::BackColor() const { return c.Combo1->BackColor(); }
void Gabarito::BackColor(Color lCor) { PoeBackColor(c, lCor); }

std::u16string Gabarito::Text() {
  gabarito::UserControl_ExitFocus(c);
  return c.mValor;
}
void Gabarito::Text(std::u16string_view dado) { EscreveText(c, dado); }

std::int32_t Gabarito::Mask() const { return c.mMask; }
void Gabarito::Mask(std::int32_t M) {
  Publica([&] { PoeMask(c, M); });
}

std::u16string Gabarito::MaskText() const { return std::u16string(c.MaskEdBox1->Mask()); }
void Gabarito::MaskText(std::u16string_view mascara) {
  Publica([&] { PoeMaskText(c, mascara); });
}

bool Gabarito::UsarFundoPastel() const { return c.mUsarFundoPastel; }
void Gabarito::UsarFundoPastel(bool valor) {
  Publica([&] { PoeUsarFundoPastel(c, valor); });
}

bool Gabarito::PreencherDatasInvalidasComDataDeHoje() const {
  return c.mPreencherDatasInvalidasComDataDeHoje;
}
void Gabarito::PreencherDatasInvalidasComDataDeHoje(bool valor) {
  c.mPreencherDatasInvalidasComDataDeHoje = valor;
  c.UserControl->PropertyChanged(u"PreencherDatasInvalidasComDataDeHoje");
}

std::int32_t Gabarito::Appearance() const { return c.mAppearance; }
void Gabarito::Appearance(std::int32_t valor) {
  Publica([&] { PoeAppearance(c, valor); });
}

FontRef Gabarito::Font() const { return c.UserControl->Font(); }
void Gabarito::Font(const FontRef& sFnt) { PoeFont(c, sFnt); }

bool Gabarito::TrataEnterComoTab() const { return c.mTrataEnterComoTab; }
void Gabarito::TrataEnterComoTab(bool valor) {
  c.mTrataEnterComoTab = valor;
  c.UserControl->PropertyChanged(u"TrataEnterComoTab");
}

void Gabarito::KeyUp(KeyUpHandler handler) {
  c.aoKeyUp = handler ? std::make_shared<const KeyUpHandler>(std::move(handler)) : nullptr;
}

void Gabarito::UserControl_Initialize() { gabarito::UserControl_Initialize(c); }
void Gabarito::UserControl_ReadProperties(const PropertyBag& PropBag) {
  gabarito::UserControl_ReadProperties(c, PropBag);
}
void Gabarito::UserControl_Show() { AjustaMascara(c); }
void Gabarito::UserControl_Resize() { AjustaMascara(c); }
void Gabarito::UserControl_WriteProperties(PropertyBag& PropBag) const {
  gabarito::UserControl_WriteProperties(c, PropBag);
}
void Gabarito::UserControl_Terminate() { gabarito::UserControl_Terminate(c); }
void Gabarito::UserControl_AmbientChanged(std::u16string_view PropertyName) {
  gabarito::UserControl_AmbientChanged(c, PropertyName);
}
void Gabarito::UserControl_GotFocus() { gabarito::UserControl_GotFocus(c); }
void Gabarito::UserControl_ExitFocus() { gabarito::UserControl_ExitFocus(c); }

void Gabarito::txt_entrada_GotFocus(std::int16_t Index) { EntradaGotFocus(c, Index); }
void Gabarito::txt_entrada3D_GotFocus(std::int16_t Index) { EntradaGotFocus(c, Index); }

void Gabarito::txt_entrada_KeyDown(std::int16_t, std::int16_t& KeyCode, std::int16_t& Shift) {
  EntradaKeyDown(c, KeyCode, Shift);
}
void Gabarito::txt_entrada3D_KeyDown(std::int16_t, std::int16_t& KeyCode, std::int16_t& Shift) {
  EntradaKeyDown(c, KeyCode, Shift);
}

void Gabarito::txt_entrada_KeyPress(std::int16_t Index, std::int16_t& KeyAscii) {
  KeyPressDaCaixa(c, EspecieDe(c.mMask).regra, CaixaDe(c.txt_entrada, Index), CaixaDe(c.txt_entrada3D, Index),
                  Index, KeyAscii);
}
void Gabarito::txt_entrada3D_KeyPress(std::int16_t Index, std::int16_t& KeyAscii) {
  KeyPressDaCaixa(c, EspecieDe(c.mMask).regra, CaixaDe(c.txt_entrada3D, Index), CaixaDe(c.txt_entrada, Index),
                  Index, KeyAscii);
}

void Gabarito::MaskEdBox1_GotFocus() { gabarito::MaskEdBox1_GotFocus(c); }
void Gabarito::MaskEdBox1_KeyPress(std::int16_t& KeyAscii) { gabarito::MaskEdBox1_KeyPress(c, KeyAscii); }

void Gabarito::Combo1_Click() { gabarito::Combo1_Click(c); }
void Gabarito::Combo1_KeyPress(std::int16_t& KeyAscii) { gabarito::Combo1_KeyPress(c, KeyAscii); }
void Gabarito::Combo1_KeyUp(std::int16_t& KeyCode, std::int16_t& Shift) {
  gabarito::Combo1_KeyUp(c, KeyCode, Shift);
}
void Gabarito::Combo1_LostFocus() { gabarito::Combo1_LostFocus(c); }

void Gabarito::HookCombo() { gabarito::HookCombo(c); }
void Gabarito::UnhookCombo() { gabarito::UnhookCombo(*c.User32, c.Combo1->hWnd()); }
std::int32_t Gabarito::ComboWindowProc(WindowHandle hWnd, std::int32_t uMsg, std::int32_t wParam,
                                       std::int32_t lParam) {
  return gabarito::ComboWindowProc(c, hWnd, uMsg, wParam, lParam);
}

}  // namespace gabarito
