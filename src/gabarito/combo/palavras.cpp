#include "gabarito/combo/palavras.h"

#include <limits>

#include "gabarito/platform/pula_erros.h"
#include "gabarito/state/ajusta_como_combo.h"

namespace gabarito {
namespace {

using Limites16 = std::numeric_limits<std::int16_t>;

// The array of a value that is one with one dimension and bounds of 16 bits; else null.
const VariantArray* ComoLista(const Variant& itens) {
  const auto* lista = std::get_if<std::shared_ptr<const VariantArray>>(&itens);
  if (lista == nullptr || *lista == nullptr || (*lista)->dimensions != 1) return nullptr;
  if ((*lista)->lowerBound < Limites16::min() || (*lista)->UpperBound() > Limites16::max()) return nullptr;
  return lista->get();
}

}  // namespace

void GuardaComboItens(Campo& c, const Variant& itens) {
  PulaErros pula;
  c.mComboItens = std::make_unique<Collection>();
  if (const VariantArray* lista = ComoLista(itens)) {
    for (const Variant& item : lista->items) c.mComboItens->Add(item);
  }
  pula([&] { c.UserControl->PropertyChanged(u"ComboItens"); });
}

Variant LeComboItens(const Campo& c) {
  if (c.mComboItens == nullptr || c.mComboItens->Count() < 1) return Empty{};
  std::vector<Variant> textos(static_cast<std::size_t>(c.mComboItens->Count()), Variant(std::u16string()));
  PulaErros pula;
  std::size_t i = 0;
  for (const Variant& item : *c.mComboItens) {
    pula([&] { textos[i] = ToText(item, c.Regional->decimal); });
    ++i;
  }
  return MakeArray(std::move(textos));
}

void AjustaComoListaDePalavrasNoCombo(Campo& c) {
  AjustaComoCombo(c);
  if (c.mComboItens == nullptr) {
    throw Erro(kErroSemItens, u"Bitola::AjustaComoListaDePalavrasNoCombo",
               u"Erro interno: não há itens no combo. Utilize a propriedade COMBOITENS para adicionar itens "
               u"ao mesmo.");
  }
  c.Combo1->Clear();
  for (const Variant& item : *c.mComboItens) c.Combo1->AddItem(ToText(item, c.Regional->decimal));
  c.mSegmentos = 0;
}

}  // namespace gabarito
