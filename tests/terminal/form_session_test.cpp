// A person's way through a form.
#include <gtest/gtest.h>

#include <iterator>
#include <random>

#include "typed_display.h"

namespace gabarito::terminal {
namespace {

constexpr std::int16_t kVkHome = 36, kVkDown = 40, kVkF4 = 115;
constexpr char16_t kCtrlC = 3, kCtrlE = 5, kCtrlK = 11, kCtrlU = 21;

TEST(FormSession, ARefusalStandsUnderItsFieldUntilThatChanges) {
  TypedDisplay display;
  display.Text(u"11144477736").Key(kVkReturn).Then([&] {
    EXPECT_EQ(display.shown.Row(3), "            ✗ O CPF informado é inválido.");
    EXPECT_EQ(display.shown.At(14, 3).style.marks, kAlarm);
    EXPECT_EQ(display.shown.At(0, 2).glyph, U'▸') << "the person stays";
  });
  display.Key(kVkHome).Then([&] { EXPECT_TRUE(display.Shows("✗ O CPF")) << "nothing has changed"; });
  display.Text(u"1").Then([&] { EXPECT_FALSE(display.Shows("✗")); });
  display.Text({&kCtrlU, 1}).Text({&kCtrlK, 1}).Text(u"11144477735").Key(kVkTab).Text(u"abc").Key(kVkTab);
  display.Then([&] { EXPECT_EQ(display.RowOf("▸"), 5); }).Key(kVkReturn);
  EXPECT_EQ(display.Run(R"([{"name":"cpf","mask":"gbCPF"},{"name":"letra","mask":"gbLetra"}])"),
            "cpf=111.444.777-35;letra=abc;");
}

TEST(FormSession, FinishingTakesAFormThatPassesAndLeadsToWhatDoesNot) {
  TypedDisplay display;
  display.Finish().Then([&] {
    EXPECT_EQ(display.RowOf("✗ preencha este campo"), 2) << "beside it";
    EXPECT_EQ(display.RowOf("▸ nome *"), 2);
  });
  display.Text(u"ana").Finish().Then([&] {
    EXPECT_EQ(display.RowOf("✗ O CPF informado é inválido."), 4) << "a field that was never visited";
    EXPECT_EQ(display.RowOf("▸ cpf"), 3);
  });
  display.Text(u"11144477735").Key(kVkTab).Text(u"31022024").Finish().Then([&] {
    EXPECT_EQ(display.RowOf("✗ A data informada é inválida!"), 4);
    EXPECT_EQ(display.RowOf("▸ data      ┃05┃ / │03│ / │2024│"), 4) << "the field itself has filled in today";
  });
  display.Finish();
  EXPECT_EQ(display.Run(R"([{"name":"nome","mask":100,"required":true},
                            {"name":"cpf","mask":"gbCPF","default":"11144477736"},{"name":"data","mask":"gbData"}])"),
            "nome=ANA;cpf=111.444.777-35;data=05/03/2024;");
}

TEST(FormSession, GivingUpTakesAYesOrCtrlCWithNothingSelected) {
  const std::string list = R"([{"name":"a","mask":100},{"name":"b","mask":"gbEstado"}])";
  TypedDisplay display;
  display.Key(kVkEscape)
      .Then([&] {
        EXPECT_TRUE(display.Shows("Desistir?") &&
                    display.shown.Row(23) == " Tab troca · Enter escolhe · Esc não");
      })
      .Key(kVkEscape)
      .Text(u"x")
      .Finish();
  EXPECT_EQ(display.Run(list), "a=X;b=-;");
  EXPECT_EQ(TypedDisplay().Key(kVkEscape).Text(u"s").Run(list), "given up");
  EXPECT_EQ(TypedDisplay().Text({&kCtrlC, 1}).Run(list), "given up");
  EXPECT_EQ(TypedDisplay().Key(kVkEscape).Text({&kCtrlC, 1}).Run(list), "given up") << "in the question";
  // What is selected is copied: leaving and coming back selects it.
  TypedDisplay copying;
  copying.Text(u"x").Key(kVkTab).Click(14, 2).Text({&kCtrlC, 1}).Text({&kCtrlE, 1}).Text(u"\x16").Finish();
  EXPECT_EQ(copying.Run(list), "a=XX;b=-;");
  // Escape closes an open list first.
  TypedDisplay open;
  open.Key(kVkTab).Key(kVkF4).Key(kVkEscape).Then([&] { EXPECT_FALSE(open.Shows("Desistir?")); }).Finish();
  EXPECT_EQ(open.Run(list), "a=-;b=-;");
}

TEST(FormSession, AQuestionIsABoxAndIsNotAskedTwice) {
  const std::string list = R"([{"name":"e","mask":"gbEnderecoEmail"},{"name":"a","mask":100}])";
  TypedDisplay display;
  display.Text(u"ana").Key(kVkTab).Then([&] { EXPECT_TRUE(display.Shows("Endereço de email")); });
  display.Text(u"n").Then([&] { EXPECT_EQ(display.RowOf("▸ e"), 2) << "a no keeps the person"; });
  display.Key(kVkTab).Text(u"s").Finish();
  EXPECT_EQ(display.Run(list), "e=ana;a=-;");
}

TEST(FormSession, ARefusedKeyTellsWhyForAMoment) {
  constexpr struct {
    const char* field;
    std::u16string_view keys;
    const char* why;
  } kRows[] = {
      {R"("mask":"gbCPF")", u"x", "! só números"},
      {R"("mask":"gbData")", u"4", ""},
      {R"("mask":"gbData")", u"35", "! não cabe aqui"},
      {R"("mask":"gbLetra")", u"5", "! só letras"},
      {R"("mask":"gbMoeda")", u"x", "! só números, vírgula e ponto"},
      {R"("mask":"gbInteiro","set":{"MaxLength":2})", u"123", "! o campo já está cheio"},
      {R"("mask":"gbEstado")", u"x", "! não está na lista"},
      {R"("mask":"gbDataAtual")", u"1", "! a data é sempre a de hoje"},
      {R"("mask":"gbDefUsr","set":{"MaskText":"##"})", u"x", "! não cabe no formato do campo"},
  };
  for (const auto& row : kRows) {
    TypedDisplay display;
    const std::string why = row.why;
    display.Text(row.keys).Then([&] {
      EXPECT_EQ(display.RowOf("! ") > 0, !why.empty()) << row.field;
      EXPECT_TRUE(display.Shows(why)) << row.field << display.shown.Row(3);
      EXPECT_EQ(display.waits.has_value(), !why.empty());
    });
    display.Time().Then([&] { EXPECT_FALSE(display.Shows("! ")); });
    EXPECT_EQ(display.Run(std::string(R"([{"label":"C",)") + row.field + "}]"), "signal");
  }
}

TEST(FormSession, EmptyFieldsGiveNothingWhateverStandsBetweenTheirBoxes) {
  EXPECT_EQ(TypedDisplay().Finish().Run(R"([
      {"name":"a","mask":"gbIntervaloNumerico"},{"name":"b","mask":"gbCidadeEstado"},{"name":"c","mask":"gbCEP"},
      {"name":"d","mask":"gbDefUsr","set":{"MaskText":"##/##"}},{"name":"e","mask":"gbCartaoCredito","default":""},
      {"name":"f","mask":"gbNenhuma","default":"   "},{"name":"g","mask":"gbMesAno"},{"name":"h","mask":"gbHora"}])"),
            "a=-;b=-;c=-;d=-;e=-;f=-;g=-;h=-;");
}

TEST(FormSession, TheKeysOfALineEditAndStepByWords) {
  constexpr struct {
    const char* what;
    std::u16string_view before, keys;
    const char* value;
  } kRows[] = {
      {"Ctrl+A then type", u"BC", u"\1A", "a=ABC;"},
      {"Ctrl+E from the start", u"AB", u"\1\5C", "a=ABC;"},
      {"Ctrl+U", u"UM DOIS", u"\x15X", "a=X;"},
      {"Ctrl+U at the start takes nothing", u"AB", u"\1\x15", "a=AB;"},
      {"Ctrl+K", u"UM DOIS", u"\1\xB", "a=-;"},
      {"Ctrl+K at the end takes nothing", u"AB", u"\xB", "a=AB;"},
      {"Ctrl+W", u"UM DOIS  ", u"\x17X", "a=UM X;"},
      {"Ctrl+G is no key here", u"A", u"\7B", "a=AB;"},
  };
  for (const auto& row : kRows) {
    TypedDisplay display;
    EXPECT_EQ(display.Text(row.before).Text(row.keys).Finish().Run(R"([{"name":"a","mask":100}])"), row.value)
        << row.what;
    EXPECT_EQ(display.beeps, 0) << row.what;
  }
  TypedDisplay steps;
  steps.Text(u"UM DOIS")
      .WordStep(-1)
      .Text(u"X")
      .WordStep(-1)
      .WordStep(-1)
      .Text(u"Y")
      .WordStep(1)
      .Text(u"Z")
      .Finish();
  EXPECT_EQ(steps.Run(R"([{"name":"a","mask":100}])"), "a=YUMZ XDOIS;");
}

TEST(FormSession, APasteIsOnePasteAndLeavesTheClipboardAlone) {
  TypedDisplay display;
  display.Text(u"x").Key(kVkTab).Click(14, 2).Text({&kCtrlC, 1}).Paste(u"rua a  1").Text(u"\x16").Finish();
  EXPECT_EQ(display.Run(R"([{"name":"a","mask":100},{"name":"b","mask":100}])"), "a=RUA A  1X;b=-;");
}

TEST(FormSession, TheMouseFocusesPlacesTheCaretOpensTurnsAndPicks) {
  TypedDisplay display;
  display.Click(14, 2).Text(u"X").Click(50, 3).Wheel(2).Then(
      [&] { EXPECT_EQ(display.shown.Row(4).substr(0, 17), "  c         │SC") << "six entries down"; });
  display.Click(16, 5).Click(14, 6);
  EXPECT_EQ(display.Run(R"([{"name":"a","mask":100,"default":"abc"},
                            {"name":"b","mask":"gbEstado"},{"name":"c","mask":100}])"),
            "a=AXBC;b=MT;c=-;")
      << "the last click is on the button";
}

TEST(FormSession, ADateThatIsEmptiedKeepsItsSeparators) {
  TypedDisplay display;
  display.Text(u"31").Text(u"02").Text(u"2024").Key(kVkTab).Then([&] {
    EXPECT_EQ(display.shown.Row(2), "▸ d         ┃  ┃ / │  │ / │    │  ✗ A data informada é inválida!");
    EXPECT_TRUE(display.Shows("✗ A data informada é inválida!"));
  });
  EXPECT_EQ(display.Run(R"([{"name":"d","mask":"gbData","set":{"PreencherDatasInvalidasComDataDeHoje":false}},
                            {"name":"e","mask":100}])"),
            "signal");
}

TEST(FormSession, HelpIsAPageThatTurnsInASmallWindow) {
  TypedDisplay display;
  display.width = 40;
  display.height = 10;
  display.Help().Then(
      [&] { EXPECT_TRUE(display.Shows("Ajuda") && display.Shows("O seu.") && display.Shows("[ OK ]")); });
  for (int i = 0; i < 30; ++i) display.Key(kVkDown);
  display.Then([&] { EXPECT_TRUE(display.Shows("obrigatórios.")); }).Key(kVkReturn).Finish();
  EXPECT_EQ(display.Run(R"([{"name":"a","mask":100,"help":"O seu."}])"), "a=-;");
}

TEST(FormSession, AValueToStartFromThatIsNotTakenIsTold) {
  TypedDisplay display;
  display.Then([&] { EXPECT_TRUE(display.Shows("✗ valor inicial não aceito: 31/02/2024")); });
  EXPECT_EQ(display.Finish().Run(R"([{"name":"d","mask":"gbData","default":"31/02/2024"}])"), "d=-;");
}

// Anything in any order, in windows of any size.
class RestlessPerson final : public Display {
 public:
  explicit RestlessPerson(unsigned seed) : random_(seed) {}

  int Width() const override { return width_; }
  int Height() const override { return height_; }
  void Show(const Screen& screen) override {
    const Grid& grid = screen.grid;
    EXPECT_TRUE(grid.Width() == width_ && grid.Height() == height_);
    if (grid.caret) {
      EXPECT_TRUE(grid.caret->x >= 0 && grid.caret->x < width_ && grid.caret->y >= 0 &&
                  grid.caret->y < height_);
    }
  }
  void Beep() override {}
  Input Next(std::optional<std::chrono::milliseconds>) override {
    if (++steps_ > 3000) throw Interrupted{SIGTERM};
    constexpr std::int16_t kKeys[] = {8, 9, 9, 13, 13, 33, 34, 35, 36, 37, 38, 39, 40, 46, 115};
    constexpr std::u16string_view kTyped = u"0123456789/:-.,ab \u00e9\x01\x05\x0b\x15\x17\x16\x18S";
    switch (Below(12)) {
      case 0:
        return {.kind = Input::Kind::kClick, .at = {Below(width_ + 2), Below(height_ + 2)}};
      case 1:
        return {.kind = Input::Kind::kWheel, .turns = Below(2) * 2 - 1};
      case 2:
        return {.kind = Input::Kind::kPaste,
                .text = std::u16string(kTyped.substr(static_cast<std::size_t>(Below(12))))};
      case 3:
        return {.kind = Input::Kind::kWordStep,
                .shift = static_cast<std::int16_t>(Below(2)),
                .turns = Below(2) * 2 - 1};
      case 4:
        return {.kind = Below(9) == 0 ? Input::Kind::kFinish : Input::Kind::kHelp};
      case 5:
        width_ = 1 + Below(90);
        height_ = 1 + Below(30);
        return {};
      case 6:
      case 7:
      case 8:
        return {.kind = Input::Kind::kKey,
                .vk = kKeys[Below(static_cast<int>(std::size(kKeys)))],
                .shift = static_cast<std::int16_t>(Below(4) == 0 ? 1 : 0)};
      default:
        return {.kind = Input::Kind::kCharacter,
                .character = kTyped[static_cast<std::size_t>(Below(static_cast<int>(kTyped.size())))]};
    }
  }

 private:
  int Below(int end) { return static_cast<int>(random_() % static_cast<unsigned>(end)); }

  std::mt19937 random_;
  int width_ = 80, height_ = 24;
  int steps_ = 0;
};

TEST(FormSession, StandsWhateverComesInWhateverOrder) {
  for (unsigned seed = 1; seed <= 4; ++seed) {
    FormModel model(cli::ForTerminal(cli::BuiltInForm()), Now);
    RestlessPerson person(seed);
    try {
      FormSession(model, person).Run();
    } catch (const Interrupted& end) {
      EXPECT_EQ(end.signal, SIGTERM);
    }
  }
}

}  // namespace
}  // namespace gabarito::terminal
