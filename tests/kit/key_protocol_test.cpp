// The key protocol as a host with native widgets uses it.
#include "hosts/kit/key_protocol.h"

#include <gtest/gtest.h>

#include "gabarito/platform/virtual_keys.h"
#include "hosts/memory/form.h"

namespace gabarito::kit {
namespace {

struct Native : testing::Test {
  memory::Form form;
  memory::Field& field = form.AddField("field");
  std::u16string clipboard;
  int beeps = 0;

  void Enter(std::int32_t mask) {
    form.System().dialogs.onBeep = [this] { ++beeps; };
    field.Create();
    field->Mask(mask);
    form.SetFocus(*field.Surface());
  }
  InputModel& Child() { return *form.Focused()->Input(); }
};

TEST_F(Native, AWidgetInsertsWhatPassesAndNothingElse) {
  Enter(gbCPF);
  const struct {
    const char* name;
    std::u16string_view held;
    char16_t typed;
    CharacterAction action;
  } rows[] = {
      {"a digit", u"1", u'2', CharacterAction::kInsert},
      {"a letter", u"1", u'x', CharacterAction::kNothing},
      {"a character outside the page", u"", u'\u4E00', CharacterAction::kNothing},
      {"Backspace", u"12", 8, CharacterAction::kInsert},
  };
  for (const auto& row : rows) {
    Child().HandOver(row.held, static_cast<std::int32_t>(row.held.size()), 0);
    EXPECT_EQ(KeyGoesDown(Child(), row.typed == 8 ? kVkBack : std::int16_t{'2'}, 0, clipboard),
              KeyAction::kNative);
    EXPECT_EQ(CharacterArrives(Child(), row.typed).action, row.action) << row.name;
  }
  field->MaxLength(3);
  Child().HandOver(u"123", 3, 0);
  EXPECT_EQ(CharacterArrives(Child(), u'4').action, CharacterAction::kNothing) << "full";
  Child().HandOver(u"123", 0, 1);
  EXPECT_EQ(CharacterArrives(Child(), u'4').action, CharacterAction::kInsert) << "over a selection";
}

TEST_F(Native, AKeyThatTheProgramChangesIsActedOnByTheModel) {
  Enter(gbCPF);
  std::int16_t into = 0;
  field->KeyUp([&](std::int16_t& code, std::int16_t&) { code = into; });
  Child().HandOver(u"123", 3, 0);
  EXPECT_EQ(KeyGoesDown(Child(), kVkLeft, 0, clipboard), KeyAction::kDone) << "taken";
  EXPECT_EQ(Child().AsChild().SelStart(), 3);
  into = kVkHome;
  EXPECT_EQ(KeyGoesDown(Child(), kVkLeft, 0, clipboard), KeyAction::kDone);
  EXPECT_EQ(Child().AsChild().SelStart(), 0);
}

TEST_F(Native, TextWithoutAKeyIsFilteredAndInsertedAsOneEdit) {
  const struct {
    const char* name;
    std::int32_t mask;
    std::u16string_view held;
    std::int32_t caret, selected;
    std::u16string_view arrives, text;
    std::int32_t start, removed;
    std::u16string_view inserted;
  } rows[] = {
      {"dropped into a text", gbCPF, u"19", 1, 0, u"2x3", u"1239", 1, 0, u"23"},
      {"over a selection", gbCPF, u"1999", 1, 2, u"5", u"159", 1, 2, u"5"},
      {"over a selection, the same in part", gbCPF, u"1239", 1, 2, u"25", u"1259", 2, 1, u"5"},
      {"up to a line break", gbNenhuma, u"", 0, 0, u"ab\r\ncd", u"ab", 0, 0, u"ab"},
      {"more than there is room", gbData, u"1", 1, 0, u"2345", u"12", 1, 0, u"2"},
      {"control characters", gbNenhuma, u"a", 1, 0, u"\t\x08z", u"az", 1, 0, u"z"},
  };
  for (const auto& row : rows) {
    Enter(row.mask);
    Child().HandOver(row.held, row.caret, row.selected);
    InputModel& child = Child();
    const TextEdit edit = TextArrives(child, row.arrives);
    EXPECT_EQ(child.AsChild().Text(), row.text) << row.name;
    EXPECT_TRUE(edit.changes) << row.name;
    EXPECT_EQ(edit.start, row.start) << row.name;
    EXPECT_EQ(edit.removed, row.removed) << row.name;
    EXPECT_EQ(edit.inserted, row.inserted) << row.name;
  }
  Enter(gbCPF);
  EXPECT_FALSE(TextArrives(Child(), u"abc").changes);
  EXPECT_GT(beeps, 0);
}

TEST_F(Native, ModelsNoteWhatAHostHasToShow) {
  Enter(gbData);
  FieldParts& parts = field.Parts();
  parts.txt_entrada3D[0].TakeChanges();
  parts.Combo1.TakeChanges();
  EXPECT_FALSE(parts.txt_entrada3D[0].TakeChanges().Any());
  field->Text(u"05/03/2024");
  const Changes written = parts.txt_entrada3D[0].TakeChanges();
  EXPECT_TRUE(written.Has(Change::kText));
  EXPECT_FALSE(written.Has(Change::kFont));
  parts.txt_entrada3D[0].HandOver(u"7", 1, 0);
  EXPECT_FALSE(parts.txt_entrada3D[0].TakeChanges().Any()) << "the widget holds it already";
  field->Mask(gbEstado);
  const Changes list = parts.Combo1.TakeChanges();
  EXPECT_TRUE(list.Has(Change::kList) && list.Has(Change::kVisible) && list.Has(Change::kGeometry));
}

}  // namespace
}  // namespace gabarito::kit
