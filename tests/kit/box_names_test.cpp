#include "hosts/kit/box_names.h"

#include <gtest/gtest.h>

#include <set>

#include "gabarito/control/especie.h"
#include "hosts/kit/visit_input.h"
#include "hosts/memory/form.h"

namespace gabarito::kit {
namespace {

TEST(BoxNames, TellTheBoxesOfAFieldApart) {
  memory::Form form;
  memory::Field& field = form.AddField("field");
  for (const EspecieDescrita& kind : Especies()) {
    field.Create();
    field->Mask(kind.valor);
    std::multiset<std::u16string_view> names;
    for (InputModel* const child : field.Parts().InTabOrder()) {
      if (VisitInput(*child, [](auto& box) { return box.IsVisible(); }))
        names.insert(BoxName(kind.valor, *child));
    }
    if (names.size() < 2) continue;
    EXPECT_EQ(std::set(names.begin(), names.end()).size(), names.size()) << kind.valor;
    EXPECT_FALSE(names.contains(u"")) << kind.valor;
  }
}

}  // namespace
}  // namespace gabarito::kit
