#include "gabarito/control/gabarito.h"

#include <gtest/gtest.h>

#include <functional>
#include <new>
#include <string>
#include <vector>

#include "hosts/memory/form.h"

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

TEST_F(Fields, AHandlerOfKeyUpMayBeReplacedWhileItRuns) {
  std::string calls;
  // What a handler carries goes with it, not while it runs, and may set the next one when it goes.
  auto last_words = std::shared_ptr<void>(
      nullptr, [&](void*) { field->KeyUp([&calls](std::int16_t&, std::int16_t&) { calls += "after"; }); });
  const auto first = [&calls, this, large = std::string(100, 'x')](std::int16_t&, std::int16_t&) {
    field->KeyUp({});
    calls += large.substr(99);
  };
  field->KeyUp([first, carried = std::move(last_words)](std::int16_t& code, std::int16_t& shift) {
    first(code, shift);
  });
  form.Type(u"a");
  EXPECT_EQ(calls, "x");
  form.Type(u"b");
  EXPECT_EQ(calls, "xafter");
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

// Carets and lengths are 16-bit in the filter: one that is too large for that is not read.
TEST_F(Fields, AKeyInAVeryLongTextIsJudgedByItself) {
  struct Keys final : kit::Recorder {
    std::string told;
    void Beep() override { told += "beep "; }
    void SendInput(std::span<const INPUT> events) override { told += std::to_string(events.size()) + " "; }
  } keys;
  form.Model().recorder = &keys;
  kit::TextBoxModel& box = field.Parts().txt_entrada3D[0];
  const struct {
    const char* name;
    std::int32_t mask;
    std::size_t length;
    std::int32_t start, selected, limit;
    std::int16_t key;
    const char* told;
  } rows[] = {
      {"Backspace at 32,767", gbNenhuma, 40000, 32767, 0, 0, 8, ""},
      {"Backspace at a caret that counts as 0", gbNenhuma, 40000, 40000, 0, 0, 8, "4 "},
      {"a full box of 32,767", gbData, 32767, 5, 0, 32767, u'3', "beep beep "},
      {"a full box of 32,768, compared with nothing", gbData, 32768, 5, 0, 32768, u'3', ""},
      {"the last that fills", gbCEP, 32766, 5, 0, 32767, u'3', "2 "},
      {"the next, beyond the counter", gbCEP, 32767, 5, 0, 32768, u'3', ""},
  };
  for (const auto& row : rows) {
    field->Mask(row.mask);
    box.Text(std::u16string(row.length, u'1'));
    box.SelStart(row.start);
    box.SelLength(row.selected);
    box.MaxLength(row.limit);
    keys.told.clear();
    std::int16_t key = row.key;
    field.Events().txt_entrada3D_KeyPress(0, key);
    EXPECT_EQ(keys.told, row.told) << row.name;
  }
  form.Model().recorder = nullptr;
}

TEST_F(Fields, AnExitReadsTheBoxesFromTheFirstToTheLast) {
  form.MakeFieldsBreakable();
  field.Create();
  for (const std::int32_t mask : {gbData, gbMesAno, gbHora}) {
    field->Mask(mask);
    field->Text(mask == gbMesAno ? u"02/2003" : u"01/02/2003");
    std::vector<std::string> operations;
    form.System().faults.Watch(&operations);
    field.Events().UserControl_ExitFocus();
    form.System().faults.Watch(nullptr);
    std::string read;
    for (const std::string& operation : operations) {
      if (operation.ends_with(").Text")) read += operation[operation.size() - 7];
    }
    EXPECT_EQ(read, mask == gbData ? "0012" : "001") << mask;
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
      {"terminated", [](Gabarito& g) { FieldEvents(g).UserControl_Terminate(); }},
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

constexpr std::int32_t kPaint = 15;

// A procedure of somebody else, over whatever was in place when it came.
WindowProc under = 0;
std::int32_t Foreign(WindowHook& hook, WindowHandle window, std::int32_t message, std::int32_t wParam,
                     std::int32_t lParam) {
  return hook.CallWindowProcA(under, window, message, wParam, lParam);
}

struct Drawing : kit::Recorder {
  std::string told;
  std::function<void()> fails = [] {};
  void DrawEdge(const RECT&, std::int32_t, std::int32_t) override {
    told += "edge ";
    fails();
  }
  void OldWindowProc(std::int32_t message) override { told += "old" + std::to_string(message) + " "; }
  void Trace(std::u16string_view text) override {
    told.append(text.begin(), text.end()) += ' ';
    fails();
  }
};

TEST_F(Fields, AHookUnderSomebodyElsesIsNotPutOnOnceMore) {
  Drawing drawing;
  form.Model().recorder = &drawing;
  Windows& windows = form.AllWindows();
  const WindowHandle window = field.Parts().Combo1.hWnd();
  field.Events().HookCombo();
  under = windows.SetWindowLongA(window, -4, reinterpret_cast<WindowProc>(&Foreign));
  field.Events().HookCombo();
  windows.Send(window, kPaint, 0, 0);
  EXPECT_EQ(drawing.told, "old15 edge edge ");
  // Once it is off it may go on again.
  field.Events().UnhookCombo();
  field.Events().HookCombo();
  drawing.told.clear();
  windows.Send(window, kPaint, 0, 0);
  EXPECT_EQ(drawing.told, "old15 edge edge ");
  form.Model().recorder = nullptr;
}

TEST_F(Fields, NothingEscapesTheWindowProcedure) {
  const struct {
    std::function<void()> fails;
    const char* told;
  } rows[] = {
      {[] { throw Erro(5); }, "#5 "}, {[] { throw std::bad_alloc(); }, "#7 "}, {[] { throw 5; }, "#51 "}};
  Drawing drawing;
  form.Model().recorder = &drawing;
  for (const auto& row : rows) {
    drawing.fails = row.fails;
    field.Events().HookCombo();
    EXPECT_NO_THROW(form.AllWindows().Send(field.Parts().Combo1.hWnd(), kPaint, 0, 0)) << row.told;
    EXPECT_NE(drawing.told.find(std::string("old15 edge Unhook on Error, ") + row.told), std::string::npos)
        << drawing.told;
    EXPECT_EQ(form.AllWindows().OpenContexts(), 0) << row.told;
    drawing.told.clear();
    form.AllWindows().Send(field.Parts().Combo1.hWnd(), kPaint, 0, 0);
    EXPECT_EQ(drawing.told, "") << row.told;
  }
  form.Model().recorder = nullptr;
}

}  // namespace
}  // namespace gabarito::memory
