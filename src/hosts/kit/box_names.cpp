#include "hosts/kit/box_names.h"

#include "gabarito/state/mascaras.h"
#include "hosts/kit/text_box_model.h"

namespace gabarito::kit {
namespace {

struct Names {
  std::int32_t mask;
  std::u16string_view boxes[3];
  std::u16string_view list;
};

constexpr Names kNames[] = {
    {gbData, {u"dia", u"mês", u"ano"}, {}},
    {gbDataAtual, {u"dia", u"mês", u"ano"}, {}},
    {gbMesAno, {u"mês", u"ano"}, {}},
    {gbHora, {u"hora", u"minuto"}, {}},
    {gbCEP, {u"CEP, cinco primeiros dígitos", u"CEP, três últimos dígitos"}, {}},
    {gbIntervaloNumerico, {u"de", u"até"}, {}},
    {gbCidadeEstado, {u"cidade"}, u"UF"},
    {gbEstado, {}, u"UF"},
    {gbCidadeEstadoPopulado, {}, u"município"},
};

}  // namespace

std::u16string_view BoxName(std::int32_t mask, InputModel& child) {
  for (const Names& names : kNames) {
    if (names.mask != mask) continue;
    if (child.Kind() == InputKind::kCombo) return names.list;
    if (child.Kind() != InputKind::kTextBox) return {};
    return names.boxes[static_cast<TextBoxModel&>(child).Index()];
  }
  return {};
}

}  // namespace gabarito::kit
