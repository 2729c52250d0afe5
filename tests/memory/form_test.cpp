#include "hosts/memory/form.h"

#include <gtest/gtest.h>

#include "hosts/memory/plain_box.h"

namespace gabarito::memory {
namespace {

TEST(Form, TwoFieldsThatRefuseToBeLeftDoNotThrowTheFocusAtEachOther) {
  Form form;
  Field& first = form.AddField("first");
  Field& second = form.AddField("second");
  for (Field* field : {&first, &second}) {
    field->Create();
    (*field)->Mask(gbCPF);
    (*field)->Text(u"111.444.777-36");
  }
  form.SetFocus(*first.Surface());
  form.Tab(false);
  EXPECT_EQ(form.Focused(), &first.Parts().txt_entrada3D[0]);
}

TEST(Form, TabGoesRoundThroughWhatCanTakeTheFocus) {
  Form form;
  PlainBox& before = form.AddBox("before");
  Field& field = form.AddField("field");
  form.SetFocus(before);
  form.Tab(false);
  EXPECT_EQ(form.Focused(), &before) << "there is no field yet";
  field.Create();
  field->Mask(gbHora);
  for (const char* const name : {"txt_entrada3D(0)", "txt_entrada3D(1)", "before"}) {
    form.Tab(false);
    EXPECT_EQ(form.Focused()->Name(), name);
  }
  form.Tab(true);
  EXPECT_EQ(form.Focused()->Name(), "txt_entrada3D(1)");
  field.End();
  EXPECT_EQ(form.Focused(), nullptr);
  form.Type(u"nobody is there");
}

TEST(Form, AHookedListGivesBackItsDrawingContextAndLetsNoErrorOut) {
  Form form;
  Field& field = form.AddField("field");
  field.Create();
  field.Events().HookCombo();
  const WindowHandle window = field.Parts().Combo1.hWnd();
  form.AllWindows().Send(window, 15, 0, 0);
  EXPECT_EQ(form.AllWindows().OpenContexts(), 0);
  form.AllWindows().SetPropA(window, "ObjectPointer", 0);
  EXPECT_NO_THROW(form.AllWindows().Send(window, 15, 0, 0));
}

}  // namespace
}  // namespace gabarito::memory
