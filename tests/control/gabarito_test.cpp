#include "gabarito/control/gabarito.h"

#include <gtest/gtest.h>

#include <functional>

#include "hosts/memory/field.h"

namespace gabarito::memory {
namespace {

struct Fields : testing::Test {
  Form form;
  Field& field = form.AddField("field");
  void SetUp() override {
    field.Create();
    form.SetFocus(*field.Surface());
  }
};

TEST_F(Fields, AHandlerOfKeyUpMayTakeItselfAway) {
  int calls = 0;
  const std::string large(100, 'x');  // what the handler carries goes with it, not while it runs
  field->KeyUp([&calls, this, large](std::int16_t&, std::int16_t&) {
    field->KeyUp({});
    calls += static_cast<int>(large.size()) / 100;
  });
  form.Type(u"ab");
  EXPECT_EQ(calls, 1);
}

TEST_F(Fields, TextTakesWhatAChildShows) {
  field->Text(u"a text of some length");
  field->Text(field.Parts().txt_entrada3D[0].Text());
  EXPECT_EQ(field->Text(), u"A TEXT OF SOME LENGTH");
}

TEST_F(Fields, ASeparatorBeyondTheCounterIsAnOverflow) {
  std::u16string told;
  form.System().dialogs.onMsgBox = [&](std::u16string_view text, auto, auto) {
    told = text;
    return kAnswerOk;
  };
  const struct {
    std::int32_t mask;
    const char16_t* separator;
  } rows[] = {{gbCEP, u"-"}, {gbIntervaloNumerico, u"#"}, {gbCidadeEstado, u"/"}};
  for (const auto& row : rows) {
    told.clear();
    field->Mask(row.mask);
    field->Text(std::u16string(32767, u'1') + row.separator);
    EXPECT_EQ(told.substr(0, 16), u"Erro 6 (Estouro)") << row.mask;
    told.clear();
    field->Text(std::u16string(32766, u'1') + row.separator);
    EXPECT_EQ(told, u"") << row.mask;
  }
}

// The message loop goes on while a box is open: the program may do anything to the field from there.
TEST_F(Fields, AProgramMayTurnTheFieldOverWhileAMessageBoxIsOpen) {
  const struct {
    const char* name;
    std::function<void(Gabarito&)> act;
  } rows[] = {
      {"another kind", [](Gabarito& g) { g.Mask(gbEstado); }},
      {"the other look", [](Gabarito& g) { g.Appearance(0); }},
      {"emptied", [](Gabarito& g) { g.ApagaCampos(); }},
      {"disabled", [](Gabarito& g) { g.Enabled(false); }},
      {"another value", [](Gabarito& g) { g.Text(u"1"); }},
      {"read again", [](Gabarito& g) { g.Text(); }},
      {"terminated", [](Gabarito& g) { g.UserControl_Terminate(); }},
  };
  for (const auto& row : rows) {
    for (const std::int32_t mask : {gbCPF, gbData, gbMesAno, gbHora, gbCEP, gbLetra, gbEnderecoEmail}) {
      field.Create();
      field->Mask(mask);
      field.Parts().txt_entrada3D[0].Text(u"9 9");
      int boxes = 0;
      form.System().dialogs.onMsgBox = [&](auto, auto, auto) {
        if (++boxes == 1) row.act(*field);
        return kAnswerNo;
      };
      field->Text();
      EXPECT_GE(boxes, 1) << row.name << " under " << mask;
      EXPECT_EQ(field->Mask() == mask, row.name != std::string("another kind")) << mask;
    }
  }
}

}  // namespace
}  // namespace gabarito::memory
