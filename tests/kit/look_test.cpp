// The value without its check: what the check would give, and nobody notices the look.
#include "hosts/kit/look.h"

#include <gtest/gtest.h>

#include "gabarito/control/especie.h"
#include "hosts/kit/message_buttons.h"
#include "hosts/memory/form.h"

namespace gabarito::kit {
namespace {

struct Shown {
  std::vector<std::u16string> texts;
  std::int32_t caret;
  const Focusable* focused;
  bool operator==(const Shown&) const = default;
};

struct Looked : testing::Test {
  memory::Form form;
  memory::Field& field = form.AddField("field");
  int messages = 0;

  Looked() {
    form.System().dialogs.onMsgBox = [this](auto, std::int32_t flags, auto) {
      ++messages;
      return DefaultAnswer(flags);
    };
  }
  void Enter(std::int32_t mask, std::u16string_view typed) {
    field.Create();
    field->Mask(mask);
    form.SetFocus(*field.Surface());
    form.Type(typed);
  }
  Shown What() {
    Shown shown{{}, form.Focused()->Input()->AsChild().SelStart(), form.Focused()};
    for (InputModel* const child : field.Parts().InTabOrder())
      shown.texts.emplace_back(child->AsChild().Text());
    return shown;
  }
};

TEST_F(Looked, GivesWhatTheCheckWouldAndChangesNothing) {
  for (const EspecieDescrita& kind : Especies()) {
    for (const std::u16string_view typed :
         {u"", u"7", u"31122024", u"31022024", u"11144477735", u"1,5", u"s", u"a@b"}) {
      Enter(kind.valor, typed);
      messages = 0;
      const Shown before = What();
      const std::u16string seen = ValueNow(field);
      EXPECT_EQ(What(), before) << kind.valor;
      EXPECT_EQ(messages, 0) << kind.valor;
      EXPECT_EQ(seen, field->Text()) << kind.valor << " holding " << before.texts[0].size() << " characters";
    }
  }
}

TEST_F(Looked, ByTheSettingsOfTheField) {
  const struct {
    const char* name;
    std::int32_t mask;
    void (*set)(Gabarito&);
    std::u16string_view typed, value;
  } rows[] = {
      {"letters in the number", gbCNPJ, [](Gabarito& f) { f.CNPJAlfanumerico(true); }, u"12ABC34501DE35",
       u"12.ABC.345/01DE-35"},
      {"a mask of the author's own", gbDefUsr, [](Gabarito& f) { f.MaskText(u"##-?"); }, u"12x", u"12-x"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    Enter(row.mask, {});
    row.set(*field);
    form.SetFocus(*field.Surface());
    form.Type(row.typed);
    EXPECT_EQ(ValueNow(field), row.value);
    EXPECT_EQ(field->Text(), row.value);
  }
}

}  // namespace
}  // namespace gabarito::kit
