// The interactive form without a terminal: the list of fields, what is drawn, and a person's way through it.
#include <gtest/gtest.h>

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
  TypedDisplay& Text(std::u16string_view text) {
    for (const char16_t c : text) inputs_.push_back({.kind = Input::Kind::kCharacter, .character = c});
    return *this;
  }
  TypedDisplay& Key(std::int16_t vk, std::int16_t shift = 0) {
    inputs_.push_back({.kind = Input::Kind::kKey, .vk = vk, .shift = shift});
    return *this;
  }
  TypedDisplay& Click(int x, int y) {
    inputs_.push_back({.kind = Input::Kind::kClick, .at = {x, y}});
    return *this;
  }
  // `look` runs when all that stands before it has been taken and shown.
  TypedDisplay& Then(std::function<void()> look) {
    inputs_.push_back({});
    looks_[inputs_.size()] = std::move(look);
    return *this;
  }
  TypedDisplay& Leave() {
    inputs_.push_back({.kind = Input::Kind::kLeave});
    return *this;
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
    for (int y = 0; y < shown.Height(); ++y) {
      if (shown.Row(y).find(text) != std::string::npos) return true;
    }
    return false;
  }

  Grid shown{1, 1};
  int beeps = 0;

 private:
  std::vector<Input> inputs_;
  std::size_t taken_ = 0;
  std::map<std::size_t, std::function<void()>> looks_;  // by the number of inputs taken
};

TEST(FieldList, RefusesWhatIsNoneAndSaysWhere) {
  constexpr struct {
    const char* json;
    const char* message;
  } kBad[] = {
      {"[", "not valid JSON at line 1, column 2"},
      {"{\"fields\":\n [{]}", "not valid JSON at line 2, column 4"},
      {"[{\"name\":\"\xFF\"}]", "not valid JSON"},
      {"7", "takes an array of fields"},
      {"{}", "takes an array of fields"},
      {R"({"campos":[]})", "unknown key \"campos\""},
      {"[]", "no field"},
      {"[1]", "field 1: a field is an object"},
      {R"([{"mask":100},{"name":"b"}])", "field 2 (\"b\"): mask is missing"},
      {R"([{"mask":"gbcpf"}])", "field 1: unknown mask 'gbcpf'"},
      {R"([{"mask":1.5}])", "field 1: mask takes"},
      {R"([{"mask":2147483648}])", "field 1: mask takes"},
      {R"([{"mask":100,"name":1}])", "field 1: name takes a text"},
      {R"([{"mask":100,"set":[]}])", "field 1: set takes an object"},
      {R"([{"mask":100,"label":"a\nb","cor":1}])", "field 1 (\"a\\nb\"): unknown key \"cor\""},
      {R"([{"mask":100,"set":{"Cor":1}}])", "field 1: there is no property 'Cor'"},
      {R"([{"mask":100,"set":{"Enabled":1}}])", "field 1: Enabled takes true or false"},
      {R"([{"mask":100,"set":{"MaxLength":-32768}}])", "field 1: MaxLength: error 6"},
  };
  for (const auto& row : kBad) {
    try {
      FormModel(ReadFieldList(row.json));
      ADD_FAILURE() << "taken: " << row.json;
    } catch (const UsageError& error) {
      EXPECT_NE(std::string_view(error.what()).find(row.message), std::string_view::npos)
          << row.json << " gave " << error.what();
      EXPECT_EQ(std::string_view(error.what()).find('\n'), std::string_view::npos) << row.json;
    }
  }
}

TEST(FieldList, NameAndLabelStandInForEachOther) {
  const auto fields =
      ReadFieldList(R"({"fields":[{"mask":"gbCPF","label":"Nº"},{"mask":9,"name":"n"},{"mask":9}]})");
  ASSERT_EQ(fields.size(), 3U);
  EXPECT_EQ(fields[0].name, "Nº");
  EXPECT_EQ(fields[0].mask, gbCPF);
  EXPECT_EQ(fields[1].label, u"n");
  EXPECT_EQ(fields[2].name, "field_3");
}

TEST(FieldList, TheFormOfItsOwnHoldsEveryKindOnce) {
  const auto fields = BuiltInFields();
  EXPECT_EQ(fields.size(), Especies().size());
  for (const Especie& kind : Especies()) {
    EXPECT_EQ(std::ranges::count(fields, kind.valor, &FieldSpec::mask), 1) << kind.nome;
  }
}

TEST(FormView, DrawsEachLayoutFromItsChildren) {
  constexpr struct {
    const char* field;  // without its label, which is C
    const char* row;    // from the label on
  } kRows[] = {
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
  for (const auto& row : kRows) {
    FormModel model(ReadFieldList(std::string(R"([{"label":"C",)") + row.field + "}]"));
    FormView view(model, [] {});
    EXPECT_EQ(view.Draw(80, 24).grid.Row(2), std::string("  ") + row.row) << row.field;
  }
}

TEST(FormView, MarksFocusSelectionAndSeparatorsByTheColoursOfTheChildren) {
  FormModel model(ReadFieldList(R"([{"label":"C","mask":"gbData","set":{"Text":"29/02/2024"}},
                                    {"label":"D","mask":"gbCPF"}])"));
  FormView view(model, [] {});
  model.Form().Tab(false);
  Grid grid = view.Draw(80, 24).grid;
  EXPECT_EQ(grid.At(0, 2).glyph, U'▸');
  EXPECT_EQ(grid.At(5, 2).style, (Style{kPastel, kEntry | kActive | kSelected}));
  EXPECT_EQ(grid.At(8, 2).style, (Style{kButtonFace, kPlain})) << "the separator is in the ambient colour";
  EXPECT_EQ(grid.At(11, 2).style, (Style{kWindowBackground, kEntry})) << "the month has no focus";
  EXPECT_EQ(grid.caret, (Point{7, 2}));
  model.Form().Tab(false);
  grid = view.Draw(80, 24).grid;
  EXPECT_EQ(grid.At(5, 2).style.back, kWindowBackground);
  EXPECT_EQ(grid.At(11, 2).style.back, kPastel);
}

TEST(FormView, ScrollsALongTextWithItsCaret) {
  FormModel model(ReadFieldList(R"([{"label":"C","mask":100}])"));
  FormView view(model, [] {});
  model.Form().Tab(false);
  for (int i = 0; i < 5; ++i) model.Form().Type(u"abcdefghij");
  Grid grid = view.Draw(80, 24).grid;
  EXPECT_EQ(grid.Row(2), "▸ C │defghijabcdefghijabcdefghijabcdefghij│");
  EXPECT_EQ(grid.caret, (Point{42, 2}));
  model.Form().Press(36);  // Home
  grid = view.Draw(80, 24).grid;
  EXPECT_EQ(grid.Row(2), "▸ C │abcdefghijabcdefghijabcdefghijabcdefg│");
  EXPECT_EQ(grid.caret, (Point{5, 2}));
}

TEST(FormView, AListOpensWhereThereIsRoomWithItsSelectionOnShow) {
  std::string list = "[";
  for (int i = 0; i < 12; ++i) list += R"({"label":"C","mask":"gbEstado"},)";
  list.back() = ']';
  FormModel model(ReadFieldList(list));
  FormView view(model, [] {});
  model.Form().Tab(false);
  model.Form().Type(u"b");  // BA is the last of 27
  Screen screen = view.Draw(80, 14);
  EXPECT_EQ(screen.grid.Row(2), "▸ C  BA                                   ▾");
  EXPECT_EQ(screen.grid.Row(3), "  C │PI                                    ▲");
  EXPECT_EQ(screen.grid.Row(10), "  C │BA                                    │");
  EXPECT_TRUE(screen.grid.Row(11).find("└──") != std::string::npos) << screen.grid.Row(11);
  EXPECT_EQ(screen.grid.At(5, 10).style.marks, kSelected);
  EXPECT_EQ(screen.grid.At(6, 2).style.marks & kSelected, kSelected) << "the completion";
  for (int i = 0; i < 11; ++i) model.Form().Tab(false);
  model.Form().Press(115);  // F4
  screen = view.Draw(80, 14);
  EXPECT_EQ(screen.grid.At(0, 11).glyph, U'▸');
  EXPECT_EQ(screen.grid.Row(3), "  C │MG                                    │");
  EXPECT_EQ(screen.grid.Row(10), "  C │MT                                    ▼");
}

TEST(FormView, NoSizeIsTooSmall) {
  FormModel model(BuiltInFields());
  FormView view(model, [] {});
  model.Form().Tab(false);
  for (int i = 0; i < 60; ++i) {
    model.Form().Tab(false);
    model.Form().Press(115);
    for (int size = 1; size < 60; size += 3) {
      Screen screen = view.Draw(size, size / 2);
      MessageBox(u"Uma mensagem de muitas palavras, mais larga que a janela", kMsgQuestion, {}).Draw(screen);
      EXPECT_EQ(screen.grid.Width(), size);
    }
  }
  EXPECT_EQ(view.Draw(35, 20).grid.Row(0), "janela pequena demais");
}

TEST(FormSession, AWrongCPFIsToldCorrectedAndLeft) {
  FormModel model(ReadFieldList(R"([{"name":"cpf","mask":"gbCPF"},{"name":"cpf","mask":"gbLetra"}])"));
  TypedDisplay display;
  display.Text(u"11144477736x").Key(kVkReturn).Then([&] {
    EXPECT_EQ(display.beeps, 1);
    EXPECT_TRUE(display.Shows("Entrada inválida"));
    EXPECT_TRUE(display.Shows("O CPF informado é inválido."));
  });
  display.Key(kVkReturn).Text(u"11144477735").Key(kVkTab).Then([&] {
    EXPECT_TRUE(display.Shows("│111.444.777-35 "));
    EXPECT_FALSE(display.Shows("inválid"));
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
  constexpr struct {
    std::int32_t flags;
    std::int16_t vk;
    char16_t character;
    std::int32_t answer;
  } kRows[] = {
      {kMsgCritical, kVkReturn, 0, kAnswerOk},  {kMsgCritical, kVkEscape, 0, kAnswerOk},
      {kMsgQuestion, kVkReturn, 0, kAnswerNo},  {kMsgQuestion, kVkEscape, 0, kAnswerNo},
      {kMsgQuestion, kVkTab, u' ', kAnswerYes}, {kMsgQuestion, 0, u's', kAnswerYes},
      {kMsgQuestion, 0, u'N', kAnswerNo},
  };
  for (const auto& row : kRows) {
    MessageBox box(u"?", row.flags, u"T");
    box.Type(u'z');
    if (row.vk != 0) box.Press(row.vk);
    if (row.character != 0) box.Type(row.character);
    EXPECT_EQ(box.Answer(), row.answer) << row.flags << " " << row.vk << " " << int(row.character);
  }
  using Lines = std::vector<std::u32string>;
  EXPECT_EQ(Wrapped(U"um dois\r\n\ntrês", 4), (Lines{U"um", U"dois", U"", U"três"}));
  EXPECT_EQ(Wrapped(U"abcdefgh i", 3), (Lines{U"abc", U"def", U"gh", U"i"}));
}

TEST(Palette, KeepsPastelWindowAndFaceApart) {
  constexpr struct {
    int colors, window, face, pastel;
  } kRows[] = {{256, 231, 252, 230}, {16, 15, 7, 11}, {8, 6, 7, 3}};
  for (const auto& row : kRows) {
    EXPECT_EQ(TerminalColor(kWindowBackground, row.colors), row.window) << row.colors;
    EXPECT_EQ(TerminalColor(kButtonFace, row.colors), row.face) << row.colors;
    EXPECT_EQ(TerminalColor(kPastel, row.colors), row.pastel) << row.colors;
  }
  EXPECT_EQ(TerminalColor(0x00800000, 256), 18) << "red is in the low byte";
  EXPECT_TRUE(IsDark(0x00800000));
  EXPECT_FALSE(IsDark(kPastel));
}

}  // namespace
}  // namespace gabarito::cli
