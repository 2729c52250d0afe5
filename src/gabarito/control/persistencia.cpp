#include "gabarito/control/persistencia.h"

#include "gabarito/control/propriedades.h"
#include "gabarito/platform/pula_erros.h"

namespace gabarito {
namespace {

constexpr std::u16string_view kFont = u"Font";
constexpr std::u16string_view kAppearance = u"Appearance";
constexpr std::u16string_view kMaskText = u"MaskText";
constexpr std::u16string_view kMask = u"Mask";
constexpr std::u16string_view kBackColor = u"BackColor";
constexpr std::u16string_view kEnabled = u"Enabled";
constexpr std::u16string_view kTrataEnterComoTab = u"TrataEnterComoTab";
constexpr std::u16string_view kCNPJAlfanumerico = u"CNPJAlfanumerico";

// A new object on each call, so that nobody's change of a font reaches the default.
FontRef FontePadrao() {
  auto fonte = std::make_shared<StdFont>();
  fonte->Name = u"MS Sans Serif";
  fonte->Size = 8;
  return fonte;
}

// The value as the type that its property has. Raises 13 on any other, so that the property stays as it was:
// a stored form is not a text that somebody typed, and nothing in it is worth a guess.
template <class Tipo>
const Tipo& Como(const Variant& valor) {
  const Tipo* certo = std::get_if<Tipo>(&valor);
  if (certo == nullptr) Fail(kTypeMismatch);
  return *certo;
}

Variant ComoVariant(Color cor) { return static_cast<std::int32_t>(cor); }

}  // namespace

void UserControl_Initialize(Campo& c) {
  PulaErros pula;
  pula([&] { PoeFont(c, c.UserControl->Ambient().Font()); });
  pula([&] { c.MaskEdBox1->Text(u""); });
  pula([&] { c.Combo1->ListIndex(-1); });
  for (std::size_t i = 0; i < 3; ++i) {
    pula([&] { c.txt_entrada[i]->Text(u""); });
    pula([&] { c.txt_entrada3D[i]->Text(u""); });
    pula([&] { c.lbl_controle[i]->Caption(u""); });
  }
  c.mPreencherDatasInvalidasComDataDeHoje = true;
  c.mUsarFundoPastel = true;
  c.mMask = gbNenhuma;
  c.mAppearance = 1;
  c.mMaxLength = 64;
}

void UserControl_ReadProperties(Campo& c, const PropertyBag& PropBag) {
  PulaErros pula;
  const FontRef padrao = FontePadrao();
  pula([&] { PoeFont(c, Como<FontRef>(PropBag.ReadProperty(kFont, padrao))); });
  pula([&] { PoeAppearance(c, Como<std::int32_t>(PropBag.ReadProperty(kAppearance, std::int32_t{1}))); });
  pula([&] { PoeMaskText(c, Como<std::u16string>(PropBag.ReadProperty(kMaskText, std::u16string()))); });
  // Takes back the gbDefUsr of the step before, without a layout.
  pula([&] { c.mMask = Como<std::int32_t>(PropBag.ReadProperty(kMask, std::int32_t{gbNenhuma})); });
  pula([&] {
    const Variant cor = PropBag.ReadProperty(kBackColor, ComoVariant(c.Combo1->BackColor()));
    PoeBackColor(c, static_cast<Color>(Como<std::int32_t>(cor)));
  });
  pula([&] {
    const auto& caixas = c.mAppearance == 1 ? c.txt_entrada3D : c.txt_entrada;
    PoeEnabled(c, Como<bool>(PropBag.ReadProperty(kEnabled, caixas[0]->Enabled())));
  });
  pula([&] { c.mTrataEnterComoTab = Como<bool>(PropBag.ReadProperty(kTrataEnterComoTab, true)); });
  pula([&] { c.mCNPJAlfanumerico = Como<bool>(PropBag.ReadProperty(kCNPJAlfanumerico, false)); });
}

void UserControl_WriteProperties(const Campo& c, PropertyBag& PropBag) {
  PulaErros pula;
  const FontRef padrao = FontePadrao();
  pula([&] { PropBag.WriteProperty(kFont, c.UserControl->Font(), padrao); });
  pula([&] { PropBag.WriteProperty(kAppearance, c.mAppearance, std::int32_t{1}); });
  pula([&] { PropBag.WriteProperty(kMaskText, std::u16string(c.MaskEdBox1->Mask()), std::u16string()); });
  pula([&] { PropBag.WriteProperty(kMask, c.mMask, std::int32_t{gbNenhuma}); });
  // The present value is its own default: no stored form holds these two.
  pula([&] {
    const Variant cor = ComoVariant(c.Combo1->BackColor());
    PropBag.WriteProperty(kBackColor, cor, cor);
  });
  pula([&] {
    const Variant ligado = c.mEntrada1->Enabled();
    PropBag.WriteProperty(kEnabled, ligado, ligado);
  });
  pula([&] { PropBag.WriteProperty(kTrataEnterComoTab, c.mTrataEnterComoTab, true); });
  // False is not stored, so a form that does not ask for letters keeps the stored form that it had.
  pula([&] { PropBag.WriteProperty(kCNPJAlfanumerico, c.mCNPJAlfanumerico, false); });
}

void UserControl_Terminate(Campo& c) {
  c.mComboItens.reset();
  c.mEntrada1.Solta();
  c.mEntrada2.Solta();
  c.mEntrada3.Solta();
}

}  // namespace gabarito
