// A field that ends, is replaced or is deleted while something of its own runs.
#include <gtest/gtest.h>

#include <functional>
#include <memory>

#include "gabarito/platform/erro.h"
#include "hosts/kit/key_protocol.h"
#include "hosts/memory/form.h"
#include "hosts/memory/plain_box.h"

namespace gabarito::kit {
namespace {

struct Scene {
  memory::Form form;
  memory::PlainBox& elsewhere = form.AddBox("elsewhere");
  // Owned here, so that it can be deleted; the form outlives it.
  std::unique_ptr<FieldModel> field = std::make_unique<FieldModel>(
      std::shared_ptr<FormModel>(std::shared_ptr<void>(), &form.Model()), "field");
  bool struck = false;

  void Enter(std::int32_t mask, std::u16string_view text) {
    field->Create();
    (*field)->Mask(mask);
    form.SetFocus(*field->Surface());
    form.Type(text);
  }
};

struct Blow {
  const char* name;
  std::function<void(Scene&)> fall;
};

const Blow kBlows[] = {{"ended", [](Scene& s) { s.field->End(); }},
                       {"replaced", [](Scene& s) { s.field->Create(); }},
                       {"deleted", [](Scene& s) { s.field.reset(); }}};

struct Occasion {
  const char* name;
  std::function<void(Scene&, std::function<void()> strike)> arrange;
  std::function<void(Scene&)> happen;
};

void OnMessage(Scene& s, std::function<void()> strike) {
  s.form.System().dialogs.onMsgBox = [strike](auto, auto, auto) {
    strike();
    return kAnswerOk;
  };
}

void OnKeyUp(Scene& s, std::function<void()> strike) {
  (*s.field)->KeyUp([strike](std::int16_t&, std::int16_t&) { strike(); });
}

const Occasion kOccasions[] = {
    {"a key down",
     [](Scene& s, auto strike) {
       s.Enter(gbCPF, u"1");
       OnKeyUp(s, strike);
     },
     [](Scene& s) { s.form.Type(u"23"); }},
    {"a Tab of the field's own behind a key",
     [](Scene& s, auto strike) {
       s.Enter(gbData, u"0");
       OnKeyUp(s, strike);
     },
     [](Scene& s) { s.form.Type(u"503"); }},
    {"a key in the list",
     [](Scene& s, auto strike) {
       s.Enter(gbEstado, u"M");
       OnKeyUp(s, strike);
     },
     [](Scene& s) { s.form.Press(kVkDown); }},
    {"a message while the focus leaves",
     [](Scene& s, auto strike) {
       s.Enter(gbCPF, u"123");
       OnMessage(s, strike);
     },
     [](Scene& s) { s.form.SetFocus(s.elsewhere); }},
    {"a message of a read",
     [](Scene& s, auto strike) {
       s.Enter(gbCNPJ, u"123");
       OnMessage(s, strike);
     },
     [](Scene& s) { EXPECT_EQ((*s.field)->Text(), u""); }},
    {"a message of a write",
     [](Scene& s, auto strike) {
       s.Enter(gbCPF, u"");
       OnMessage(s, strike);
     },
     [](Scene& s) { (*s.field)->Text(std::u16string(40000, u'1')); }},
    {"a message of a date that is emptied",
     [](Scene& s, auto strike) {
       s.Enter(gbData, u"99");
       OnMessage(s, strike);
     },
     [](Scene& s) { s.form.SetFocus(s.elsewhere); }},
    {"a message of the about box",
     [](Scene& s, auto strike) {
       s.Enter(gbCPF, u"");
       OnMessage(s, strike);
     },
     [](Scene& s) { (*s.field)->Sobre(); }},
    {"text without a key",
     [](Scene& s, auto strike) {
       s.Enter(gbCPF, u"");
       OnKeyUp(s, strike);
     },
     [](Scene& s) {
       const auto held = s.field->SharedParts();
       TextArrives(held->txt_entrada3D[0], u"123");
     }},
};

TEST(FieldLife, ComesToItsEndWhateverRuns) {
  for (const Occasion& occasion : kOccasions) {
    for (const Blow& blow : kBlows) {
      SCOPED_TRACE(std::string(blow.name) + " in " + occasion.name);
      Scene scene;
      scene.form.SetFocus(scene.elsewhere);
      occasion.arrange(scene, [&] {
        if (std::exchange(scene.struck, true)) return;
        blow.fall(scene);
      });
      EXPECT_NO_THROW(occasion.happen(scene));
      EXPECT_TRUE(scene.struck);
      EXPECT_EQ(scene.field != nullptr && scene.field->Exists(), blow.name == std::string("replaced"));
      // The form goes on.
      scene.form.SetFocus(scene.elsewhere);
      scene.form.Type(u"on");
      EXPECT_EQ(scene.elsewhere.Line().Text(), u"on");
    }
  }
}

TEST(FieldLife, AnErrorOutOfAKeyDoesNotHoldTheNextKeysBack) {
  Scene scene;
  struct Broken final : memory::OwnControl {
    using OwnControl::OwnControl;
    void Character(char16_t c) override {
      if (c == u'!') throw Erro(51);
      typed += c;
    }
    std::u16string typed;
  } broken("broken");
  scene.form.SetFocus(broken);
  for (const char16_t c : std::u16string_view(u"a!b!c")) scene.form.Model().keyboard.PressCharacter(c);
  EXPECT_THROW(scene.form.Run(), Erro);
  EXPECT_EQ(broken.typed, u"abc");
  scene.form.SetFocus(scene.elsewhere);
}

}  // namespace
}  // namespace gabarito::kit
