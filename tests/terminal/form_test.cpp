// The form without a terminal: what is drawn, and a person's way through it.
#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <functional>
#include <map>

#include "cli/form/field_list.h"
#include "gabarito/platform/virtual_keys.h"
#include "hosts/kit/utf8.h"
#include "hosts/terminal/form_session.h"
#include "hosts/terminal/message_box.h"
#include "hosts/terminal/palette.h"

namespace gabarito::terminal {
namespace {

constexpr Color kPastel = 0x00D2FFFF;

Date Now() { return DateFromParts({2024, 3, 5, 10, 20, 30}); }

std::vector<FieldSpec> Listed(const std::string& list) { return cli::ForForm(cli::ReadFieldList(list)); }

// Name=value of each field, as the command gets them.
std::string Told(FormModel& model) {
  std::string told;
  for (const auto& [name, value] : model.Values()) told += name + "=" + kit::ToUtf8(value) + ";";
  return told;
}

// A person who has typed everything beforehand, and a screen that keeps what was shown last.
class TypedDisplay final : public Display {
 public:
  TypedDisplay& Add(const Input& input) { return inputs_.push_back(input), *this; }
  TypedDisplay& Key(std::int16_t vk) { return Add({.kind = Input::Kind::kKey, .vk = vk}); }
  TypedDisplay& Click(int x, int y) { return Add({.kind = Input::Kind::kClick, .at = {x, y}}); }
  TypedDisplay& Leave() { return Add({.kind = Input::Kind::kLeave}); }
  TypedDisplay& Text(std::u16string_view text) {
    for (const char16_t c : text) Add({.kind = Input::Kind::kCharacter, .character = c});
    return *this;
  }
  // `look` runs when all that stands before it has been taken and shown.
  TypedDisplay& Then(std::function<void()> look) {
    looks_[inputs_.size() + 1] = std::move(look);
    return Add({});
  }

  int Width() const override { return 80; }
  int Height() const override { return 24; }
  void Show(const Screen& screen) override { shown = screen.grid; }
  void Beep() override { ++beeps; }
  Input Next() override {
    if (taken_ == inputs_.size()) throw Interrupted{SIGTERM};
    const Input input = inputs_[taken_++];
    if (looks_.contains(taken_)) looks_[taken_]();
    return input;
  }
  // Whether the person got out of the form.
  bool Runs(FormModel& model) {
    try {
      FormSession(model, *this).Run();
      return true;
    } catch (const Interrupted&) {
      return false;
    }
  }
  bool Shows(std::string_view text) const {
    int y = 0;
    while (y < shown.Height() && shown.Row(y).find(text) == std::string::npos) ++y;
    return y < shown.Height();
  }

  Grid shown{1, 1};
  int beeps = 0;

 private:
  std::vector<Input> inputs_;
  std::size_t taken_ = 0;
  std::map<std::size_t, std::function<void()>> looks_;  // by the number of inputs taken
};

// A form of the fields, and what is drawn of it.
struct Drawn {
  explicit Drawn(const char* list) : Drawn(Listed(list)) {}
  explicit Drawn(std::vector<FieldSpec> fields) : model(std::move(fields), Now) {}
  Grid Draw(int height = 24) { return view.Draw(80, height).grid; }

  FormModel model;
  FormView view{model, [] {}};
  memory::Form& form = model.Form();
};

TEST(FormView, DrawsEachLayoutFromItsChildren) {
  // The field without its label, which is C; its row from the label on.
  constexpr std::pair<const char*, const char*> kRows[] = {
      {R"("mask":"gbCPF","set":{"Text":"11144477735"})", "C │111.444.777-35                       │"},
      {R"("mask":"gbData","set":{"Text":"29/02/2024"})", "C │29│ /│02│ /│2024│"},
      {R"("mask":"gbData","set":{"Text":"29/02/2024","Appearance":0})", "C  29  / 02  / 2024"},
      {R"("mask":"gbHora","set":{"Text":"7:05"})", "C │7 │ :│5 │"},
      {R"("mask":"gbCEP","set":{"Text":"01310-100"})", "C │01310 │-│100│"},
      {R"("mask":"gbIntervaloNumerico","set":{"Text":"1#20"})", "C  de│1              │ a│20             │"},
      {R"("mask":"gbCidadeEstado","set":{"Text":"Ouro Preto/MG","Appearance":0})",
       "C  Ouro Preto                    /MG    ▾"},
      {R"("mask":"gbListaNoCombo","set":{"Text":"B","ComboItens":["A","B"]})",
       "C  B                                    ▾"},
      {R"("mask":"gbDefUsr","set":{"MaskText":"##/##"})", "C │__/__                                │"},
      {R"("mask":"gbNenhuma","set":{"Text":"1234567890123456789012345678901234567890"})",
       "C │1234567890123456789012345678901234567│"},
  };
  for (const auto& [field, row] : kRows) {
    Drawn drawn(Listed(std::string(R"([{"label":"C",)") + field + "}]"));
    EXPECT_EQ(drawn.Draw().Row(2), std::string("  ") + row) << field;
  }
}

TEST(FormView, MarksFocusSelectionAndSeparatorsByTheColoursOfTheChildren) {
  Drawn drawn(R"([{"label":"C","mask":"gbData","set":{"Text":"29/02/2024"}},
                                {"label":"D","mask":"gbCPF"}])");
  drawn.form.Tab(false);
  Grid grid = drawn.Draw();
  EXPECT_EQ(grid.At(0, 2).glyph, U'▸');
  EXPECT_EQ(grid.At(5, 2).style, (Style{kPastel, kEntry | kActive | kSelected}));
  EXPECT_EQ(grid.At(8, 2).style, (Style{kButtonFace, kPlain})) << "the separator is in the ambient colour";
  EXPECT_EQ(grid.At(11, 2).style, (Style{kWindowBackground, kEntry})) << "the month has no focus";
  EXPECT_EQ(grid.caret, (Point{7, 2}));
  drawn.form.Tab(false);
  grid = drawn.Draw();
  EXPECT_EQ(grid.At(5, 2).style.back, kWindowBackground);
  EXPECT_EQ(grid.At(11, 2).style.back, kPastel);
}

TEST(FormView, ScrollsALongTextWithItsCaret) {
  Drawn drawn(R"([{"label":"C","mask":100}])");
  drawn.form.Tab(false);
  for (int i = 0; i < 5; ++i) drawn.form.Type(u"abcdefghij");
  EXPECT_EQ(drawn.Draw().Row(2), "▸ C │defghijabcdefghijabcdefghijabcdefghij│");
  EXPECT_EQ(drawn.Draw().caret, (Point{42, 2}));
  drawn.form.Press(36);  // Home
  EXPECT_EQ(drawn.Draw().Row(2), "▸ C │abcdefghijabcdefghijabcdefghijabcdefg│");
  EXPECT_EQ(drawn.Draw().caret, (Point{5, 2}));
}

TEST(FormView, AListOpensWhereThereIsRoomWithItsSelectionOnShow) {
  Drawn drawn(std::vector<FieldSpec>(12, Listed(R"([{"label":"C","mask":"gbEstado"}])")[0]));
  drawn.form.Tab(false);
  drawn.form.Type(u"b");  // BA is the last of 27
  Grid grid = drawn.Draw(14);
  EXPECT_EQ(grid.Row(2), "▸ C  BA                                   ▾");
  EXPECT_EQ(grid.Row(3), "  C │PI                                    ▲");
  EXPECT_EQ(grid.Row(10), "  C │BA                                    │");
  EXPECT_TRUE(grid.Row(11).find("└──") != std::string::npos) << grid.Row(11);
  EXPECT_EQ(grid.At(5, 10).style.marks, kSelected);
  EXPECT_EQ(grid.At(6, 2).style.marks & kSelected, kSelected) << "the completion";
  for (int i = 0; i < 11; ++i) drawn.form.Tab(false);
  drawn.form.Press(115);  // F4
  grid = drawn.Draw(14);
  EXPECT_EQ(grid.At(0, 11).glyph, U'▸');
  EXPECT_EQ(grid.Row(3), "  C │MG                                    │");
  EXPECT_EQ(grid.Row(10), "  C │MT                                    ▼");
}

TEST(FormView, NoSizeIsTooSmall) {
  Drawn drawn(cli::ForForm(cli::BuiltInFields()));
  drawn.form.Tab(false);
  for (int i = 0; i < 60; ++i) {
    drawn.form.Tab(false);
    drawn.form.Press(115);
    for (int size = 1; size < 60; size += 3) {
      Screen screen = drawn.view.Draw(size, size / 2);
      MessageBox(u"Uma mensagem de muitas palavras, mais larga que a janela", kMsgQuestion, {}).Draw(screen);
      EXPECT_EQ(screen.grid.Width(), size);
    }
  }
  EXPECT_EQ(drawn.view.Draw(35, 20).grid.Row(0), "janela pequena demais");
}

TEST(FormSession, AWrongCPFIsToldCorrectedAndLeft) {
  FormModel model(Listed(R"([{"name":"cpf","mask":"gbCPF"},{"name":"letra","mask":"gbLetra"}])"), Now);
  TypedDisplay display;
  display.Text(u"11144477736x").Key(kVkReturn).Then([&] {
    EXPECT_EQ(display.beeps, 1);
    EXPECT_TRUE(display.Shows("Entrada inválida") && display.Shows("O CPF informado é inválido."));
  });
  display.Key(kVkReturn).Text(u"11144477735").Key(kVkTab).Then([&] {
    EXPECT_TRUE(display.Shows("│111.444.777-35 ") && !display.Shows("inválid"));
  });
  display.Text(u"abc").Key(kVkTab).Key(kVkReturn);
  EXPECT_TRUE(display.Runs(model)) << "Enter presses Sair";
  EXPECT_EQ(Told(model), "cpf=111.444.777-35;letra=abc;");
}

TEST(FormSession, LeavingTellsARefusalFirstAndLeavesFromItsMessage) {
  FormModel model(Listed(R"([{"name":"a","mask":"gbCPF"}])"), Now);
  TypedDisplay display;
  display.Text(u"123").Leave().Then([&] { EXPECT_TRUE(display.Shows("inválido")); });
  display.Key(kVkReturn).Then([&] { EXPECT_TRUE(display.Shows("▸ a │123 ")); });
  display.Leave().Leave();
  EXPECT_TRUE(display.Runs(model));
  EXPECT_EQ(Told(model), "a=;");
}

TEST(FormSession, TheMouseFocusesPlacesTheCaretOpensAndPicks) {
  FormModel model(Listed(R"([{"name":"a","mask":100,"set":{"Text":"abc"}},
                                    {"name":"b","mask":"gbEstado"},{"name":"c","mask":100}])"),
                  Now);
  TypedDisplay display;
  display.Click(6, 2).Text(u"X").Click(42, 3).Click(8, 5).Click(6, 6);
  EXPECT_TRUE(display.Runs(model)) << "the last click is on Sair";
  EXPECT_EQ(Told(model), "a=AXBC;b=RJ;c=;");
}

TEST(MessageBox, AnswersByKeyLetterAndDefault) {
  // clang-format off
  constexpr struct { int flags; std::int16_t vk; char16_t character; int answer; } kRows[] = {
      {kMsgCritical, kVkReturn, 0, kAnswerOk}, {kMsgCritical, kVkEscape, 0, kAnswerOk},
      {kMsgQuestion, kVkReturn, 0, kAnswerNo}, {kMsgQuestion, kVkEscape, 0, kAnswerNo},
      {kMsgQuestion, kVkTab, u' ', kAnswerYes}, {kMsgQuestion, 0, u's', kAnswerYes},
      {kMsgQuestion, 0, u'N', kAnswerNo}};
  // clang-format on
  for (const auto& row : kRows) {
    MessageBox box(u"?", row.flags, u"T");
    box.Type(u'z');
    if (row.vk != 0) box.Press(row.vk);
    if (row.character != 0) box.Type(row.character);
    EXPECT_EQ(box.Answer(), row.answer) << "row " << &row - kRows;
  }
  using Lines = std::vector<std::u32string>;
  EXPECT_EQ(Wrapped(U"um dois\r\n\ntrês", 4), (Lines{U"um", U"dois", U"", U"três"}));
  EXPECT_EQ(Wrapped(U"abcdefgh i", 3), (Lines{U"abc", U"def", U"gh", U"i"}));
}

TEST(Palette, KeepsPastelWindowAndFaceApart) {
  // The number of colours, and which of them are the window's, the face's and the pastel.
  for (const auto& row :
       std::initializer_list<std::array<int, 4>>{{256, 231, 252, 230}, {16, 15, 7, 11}, {8, 6, 7, 3}}) {
    const auto color = [&](Color given) { return TerminalColor(given, row[0]); };
    const std::array given{row[0], color(kWindowBackground), color(kButtonFace), color(kPastel)};
    EXPECT_EQ(given, row);
  }
  EXPECT_EQ(TerminalColor(0x00800000, 256), 18) << "red is in the low byte";
  EXPECT_TRUE(IsDark(0x00800000) && !IsDark(kPastel));
}

}  // namespace
}  // namespace gabarito::terminal
