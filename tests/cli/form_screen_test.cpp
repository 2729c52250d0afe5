// The interactive form without a terminal: the list of fields, what is drawn, and a person's way through it.
#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <functional>
#include <map>

#include "cli/form/form_session.h"
#include "cli/form/message_box.h"
#include "cli/form/palette.h"
#include "cli/utf8.h"
#include "gabarito/control/especie.h"
#include "gabarito/platform/user32.h"

namespace gabarito::cli {
namespace {

constexpr Color kPastel = 0x00D2FFFF;

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

// clang-format off
TEST(FieldList, RefusesWhatIsNoneAndSaysWhere) {
  constexpr std::pair<const char*, const char*> kBad[] = {
      {"[", "not valid JSON at line 1, column 2"}, {"7", "takes an array of fields"},
      {"{\"fields\":\n [{]}", "not valid JSON at line 2, column 4"},
      {"[{\"name\":\"\xFF\"}]", "not valid JSON"},
      {"{}", "takes an array of fields"}, {R"({"campos":[]})", "unknown key \"campos\""}, {"[]", "no field"},
      {"[1]", "field 1: a field is an object"}, {R"([{"mask":"gbcpf"}])", "field 1: unknown mask 'gbcpf'"},
      {R"([{"mask":100},{"name":"b"}])", "field 2 (\"b\"): mask is missing"},
      {R"([{"mask":1.5}])", "field 1: mask takes"}, {R"([{"mask":2147483648}])", "field 1: mask takes"},
      {R"([{"mask":100,"name":1}])", "field 1: name takes a text"},
      {R"([{"mask":100,"set":[]}])", "field 1: set takes an object"},
      {R"([{"mask":100,"label":"a\nb","cor":1}])", "field 1 (\"a\\nb\"): unknown key \"cor\""},
      {R"([{"mask":100,"set":{"Cor":1}}])", "field 1: there is no property 'Cor'"},
      {R"([{"mask":100,"set":{"Enabled":1}}])", "field 1: Enabled takes true or false"},
      {R"([{"mask":100,"set":{"MaxLength":-32768}}])", "field 1: MaxLength: error 6"}};
  for (const auto& [json, message] : kBad) {
    try {
      FormModel(ReadFieldList(json));
      ADD_FAILURE() << "taken: " << json;
    } catch (const UsageError& error) {
      const std::string_view told = error.what();
      EXPECT_TRUE(told.find(message) != told.npos && told.find('\n') == told.npos) << json << ": " << told;
    }
  }
}
// clang-format on

TEST(FieldList, NameAndLabelStandInForEachOther) {
  const auto fields =
      ReadFieldList(R"({"fields":[{"mask":"gbCPF","label":"Nº"},{"mask":9,"name":"n"},{"mask":9}]})");
  ASSERT_EQ(fields.size(), 3U);
  EXPECT_EQ(fields[0].mask, gbCPF);
  EXPECT_EQ(fields[1].label, u"n");
  EXPECT_EQ(fields[0].name + fields[2].name, "Nºfield_3");
}

TEST(FieldList, TheFormOfItsOwnHoldsEveryKindOnce) {
  const auto fields = BuiltInFields();
  EXPECT_EQ(fields.size(), Especies().size());
  for (const Especie& kind : Especies()) {
    EXPECT_EQ(std::ranges::count(fields, kind.valor, &FieldSpec::mask), 1) << kind.nome;
  }
}

// A form of the fields, and what is drawn of it.
struct Drawn {
  explicit Drawn(const std::vector<FieldSpec>& fields) : model(fields) {}
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
    Drawn drawn(ReadFieldList(std::string(R"([{"label":"C",)") + field + "}]"));
    EXPECT_EQ(drawn.Draw().Row(2), std::string("  ") + row) << field;
  }
}

TEST(FormView, MarksFocusSelectionAndSeparatorsByTheColoursOfTheChildren) {
  Drawn drawn(ReadFieldList(R"([{"label":"C","mask":"gbData","set":{"Text":"29/02/2024"}},
                                {"label":"D","mask":"gbCPF"}])"));
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
  Drawn drawn(ReadFieldList(R"([{"label":"C","mask":100}])"));
  drawn.form.Tab(false);
  for (int i = 0; i < 5; ++i) drawn.form.Type(u"abcdefghij");
  EXPECT_EQ(drawn.Draw().Row(2), "▸ C │defghijabcdefghijabcdefghijabcdefghij│");
  EXPECT_EQ(drawn.Draw().caret, (Point{42, 2}));
  drawn.form.Press(36);  // Home
  EXPECT_EQ(drawn.Draw().Row(2), "▸ C │abcdefghijabcdefghijabcdefghijabcdefg│");
  EXPECT_EQ(drawn.Draw().caret, (Point{5, 2}));
}

TEST(FormView, AListOpensWhereThereIsRoomWithItsSelectionOnShow) {
  Drawn drawn(std::vector<FieldSpec>(12, ReadFieldList(R"([{"label":"C","mask":"gbEstado"}])")[0]));
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
  Drawn drawn(BuiltInFields());
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
  FormModel model(ReadFieldList(R"([{"name":"cpf","mask":"gbCPF"},{"name":"cpf","mask":"gbLetra"}])"));
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
  EXPECT_EQ(model.Values().dump(), R"({"cpf":"111.444.777-35","cpf_2":"abc"})");
}

TEST(FormSession, LeavingTellsARefusalFirstAndLeavesFromItsMessage) {
  FormModel model(ReadFieldList(R"([{"name":"a","mask":"gbCPF"}])"));
  TypedDisplay display;
  display.Text(u"123").Leave().Then([&] { EXPECT_TRUE(display.Shows("inválido")); });
  display.Key(kVkReturn).Then([&] { EXPECT_TRUE(display.Shows("▸ a │123 ")); });
  display.Leave().Leave();
  EXPECT_TRUE(display.Runs(model));
  EXPECT_EQ(model.Values().dump(), R"({"a":""})");
}

TEST(FormSession, TheMouseFocusesPlacesTheCaretOpensAndPicks) {
  FormModel model(ReadFieldList(R"([{"name":"a","mask":100,"set":{"Text":"abc"}},
                                    {"name":"b","mask":"gbEstado"},{"name":"c","mask":100}])"));
  TypedDisplay display;
  display.Click(6, 2).Text(u"X").Click(42, 3).Click(8, 5).Click(6, 6);
  EXPECT_TRUE(display.Runs(model)) << "the last click is on Sair";
  EXPECT_EQ(model.Values().dump(), R"({"a":"AXBC","b":"RJ","c":""})");
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
}  // namespace gabarito::cli
