#include "gabarito/control/gabarito.h"

#include "gabarito/combo/palavras.h"
#include "gabarito/control/estado.h"
#include "gabarito/control/porta_do_valor.h"
#include "gabarito/control/propriedades.h"
#include "gabarito/control/sobre.h"
#include "gabarito/control/vazio.h"
#include "gabarito/rules/primitivas.h"
#include "gabarito/state/apaga_campos.h"

namespace gabarito {

template <class Poe, class Valor>
void Gabarito::Publica(Poe poe, Valor valor) {
  const auto vivo = Vivo();
  try {
    poe(*vivo, valor);
  } catch (...) {
    vivo->UserControl->Settle();
    throw;
  }
  vivo->UserControl->Settle();
}

Gabarito::Gabarito(const Host& host) : c(std::make_shared<Estado>(host)) {}
Gabarito::~Gabarito() = default;

void Gabarito::ApagaCampos() { gabarito::ApagaCampos(*Vivo()); }
void Gabarito::Sobre() { MostraSobre(*Vivo()); }
std::u16string Gabarito::pfTiraAcentoDeFrase(std::u16string_view s) const {
  return gabarito::pfTiraAcentoDeFrase(s);
}

std::int16_t Gabarito::MaxLength() const { return c->mMaxLength; }
void Gabarito::MaxLength(std::int16_t t) { Publica(PoeMaxLength, t); }

Variant Gabarito::ComboItens() const { return LeComboItens(*c); }
void Gabarito::ComboItens(const Variant& itens) { GuardaComboItens(*Vivo(), itens); }

std::int16_t Gabarito::ComboListCount() const { return c->Combo1->ListCount(); }

std::int16_t Gabarito::ComboListIndex() const { return c->Combo1->ListIndex(); }
void Gabarito::ComboListIndex(std::int16_t valor) { PoeComboListIndex(*Vivo(), valor); }

bool Gabarito::Enabled() const { return c->mEntrada1->Enabled(); }
void Gabarito::Enabled(bool valor) { Publica(PoeEnabled, valor); }

Color Gabarito::BackColor() const { return c->Combo1->BackColor(); }
void Gabarito::BackColor(Color lCor) { PoeBackColor(*Vivo(), lCor); }

std::u16string Gabarito::Text() {
  const auto vivo = Vivo();
  gabarito::UserControl_ExitFocus(*vivo);
  return vivo->mValor;
}
void Gabarito::Text(std::u16string_view dado) { EscreveText(*Vivo(), dado); }

bool Gabarito::MostraVazio() const { return gabarito::MostraVazio(*c); }

std::int32_t Gabarito::Mask() const { return c->mMask; }
void Gabarito::Mask(std::int32_t M) { Publica(PoeMask, M); }

std::u16string Gabarito::MaskText() const { return std::u16string(c->MaskEdBox1->Mask()); }
void Gabarito::MaskText(std::u16string_view mascara) { Publica(PoeMaskText, mascara); }

bool Gabarito::UsarFundoPastel() const { return c->mUsarFundoPastel; }
void Gabarito::UsarFundoPastel(bool valor) { Publica(PoeUsarFundoPastel, valor); }

bool Gabarito::PreencherDatasInvalidasComDataDeHoje() const {
  return c->mPreencherDatasInvalidasComDataDeHoje;
}
void Gabarito::PreencherDatasInvalidasComDataDeHoje(bool valor) {
  c->mPreencherDatasInvalidasComDataDeHoje = valor;
  Vivo()->UserControl->PropertyChanged(u"PreencherDatasInvalidasComDataDeHoje");
}

std::int32_t Gabarito::Appearance() const { return c->mAppearance; }
void Gabarito::Appearance(std::int32_t valor) { Publica(PoeAppearance, valor); }

FontRef Gabarito::Font() const { return c->UserControl->Font(); }
void Gabarito::Font(const FontRef& sFnt) { PoeFont(*Vivo(), sFnt); }

bool Gabarito::TrataEnterComoTab() const { return c->mTrataEnterComoTab; }
void Gabarito::TrataEnterComoTab(bool valor) {
  c->mTrataEnterComoTab = valor;
  Vivo()->UserControl->PropertyChanged(u"TrataEnterComoTab");
}

bool Gabarito::CNPJAlfanumerico() const { return c->mCNPJAlfanumerico; }
void Gabarito::CNPJAlfanumerico(bool valor) { PoeCNPJAlfanumerico(*Vivo(), valor); }

void Gabarito::KeyUp(KeyUpHandler handler) { c->aoKeyUp.Poe(std::move(handler)); }

}  // namespace gabarito
