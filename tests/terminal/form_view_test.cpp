// What is drawn of a form.
#include <gtest/gtest.h>

#include <array>

#include "hosts/terminal/form_view.h"
#include "hosts/terminal/message_box.h"
#include "hosts/terminal/palette.h"
#include "typed_display.h"

namespace gabarito::terminal {
namespace {

constexpr Color kPastel = 0x00D2FFFF;
constexpr std::int16_t kVkHome = 36, kVkF4 = 115;

// A form of the fields, and what is drawn of it.
struct Drawn {
  explicit Drawn(const std::string& list) : Drawn(Listed(list)) {}
  explicit Drawn(FormSpec spec) : model(std::move(spec), Now) {}
  Grid Draw(int width = 80, int height = 24) { return view.Draw(width, height).grid; }

  FormModel model;
  Notices notices;
  FormView view{model, notices, [] {}};
  memory::Form& form = model.Form();
};

TEST(FormView, DrawsEachLayoutInOneRhythm) {
  // The field without its label, which is C; its row behind the label.
  constexpr std::pair<const char*, const char*> kRows[] = {
      {R"("mask":"gbCPF","default":"11144477735")", "│111.444.777-35                        │"},
      {R"("mask":"gbData","default":"29/02/2024")", "│29│ / │02│ / │2024│"},
      {R"("mask":"gbData","default":"29/02/2024","set":{"Appearance":0})", "│29│ / │02│ / │2024│"},
      {R"("mask":"gbHora","default":"7:05")", "│7 │ : │5 │"},
      {R"("mask":"gbCEP","default":"01310-100")", "│01310│ - │100│"},
      {R"("mask":"gbIntervaloNumerico","default":"1#20")", "de │1         │ a │20        │"},
      {R"("mask":"gbCidadeEstado","default":"Ouro Preto/MG","set":{"Appearance":0})",
       "│Ouro Preto                   │ / │MG ▾│"},
      {R"("mask":"gbListaNoCombo","default":"B","set":{"ComboItens":["A","B"]})",
       "│B                                    ▾│"},
      {R"("mask":"gbDefUsr","set":{"MaskText":"##/##"})", "│__/__                                 │"},
      {R"("mask":"gbNenhuma","default":"1234567890123456789012345678901234567890")",
       "│12345678901234567890123456789012345678›"},
      {R"("mask":"gbNenhuma","placeholder":"como no documento")", "│como no documento                     │"},
      {R"("mask":"gbData","placeholder":["dd","mm","aaaa"])", "│dd│ / │mm│ / │aaaa│"},
  };
  for (const auto& [field, row] : kRows) {
    Drawn drawn(std::string(R"([{"label":"C",)") + field + "}]");
    EXPECT_EQ(drawn.Draw().Row(2), std::string("  C         ") + row) << field;
  }
}

TEST(FormView, FitsANarrowWindowWithLabelsAboveTheBoxes) {
  constexpr std::pair<const char*, const char*> kRows[] = {
      {R"("mask":"gbNenhuma","default":"1234567890123456789012345678901234567890")",
       "  │12345678901234567890123456789012345›"},
      {R"("mask":"gbData","default":"29/02/2024")", "  │29│ / │02│ / │2024│"},
      {R"("mask":"gbIntervaloNumerico")", "  de │          │ a │          │"},
      {R"("mask":"gbCidadeEstado","default":"Ouro Preto/MG")", "  │Ouro Preto                │ / │MG ▾│"},
  };
  for (const auto& [field, row] : kRows) {
    Drawn drawn(std::string(R"([{"label":"Um rótulo mais longo que o costume",)") + field + "}]");
    const Grid grid = drawn.Draw(40, 10);
    EXPECT_EQ(grid.Row(1), "  Um rótulo mais longo que o costume");
    EXPECT_EQ(grid.Row(2), row);
  }
}

TEST(FormView, EveryBoxOfTheBuiltInFormIsWholeWithItsCaretFrom40ColumnsOn) {
  Drawn drawn(cli::ForTerminal(cli::BuiltInForm()));
  for (int stop = 0; stop < 60; ++stop) {
    drawn.form.Tab(false);
    for (const int width : {40, 57, 80}) {
      const Grid grid = drawn.Draw(width, 10);
      const bool button = drawn.form.Focused() == &drawn.model.Finish();
      ASSERT_EQ(grid.caret.has_value(), !button) << width << ", stop " << stop;
      if (!grid.caret) continue;
      EXPECT_TRUE(grid.caret->x < width - 1 && grid.caret->y < 8);
      const std::string row = grid.Row(grid.caret->y);
      EXPECT_EQ(row.substr(0, 3), "▸");
      EXPECT_NE(row.find("┃", row.find("┃") + 1), std::string::npos) << "both edges: " << row;
    }
  }
}

TEST(FormView, ShowsTitleGroupsProgressHelpAndWhatIsRequired) {
  Drawn drawn(R"({"title":"Cliente","finish":"Gravar","fields":[
      {"name":"nome","mask":100,"label":"Nome","required":true,"help":"Como no documento."},
      {"group":"Endereço","fields":[{"name":"cep","mask":"gbCEP","label":"CEP"}]}]})");
  drawn.form.Tab(false);
  const Grid grid = drawn.Draw();
  EXPECT_EQ(grid.Row(0).substr(0, 8), " Cliente");
  EXPECT_NE(grid.Row(0).find("campo 1 de 2"), std::string::npos);
  EXPECT_EQ(grid.Row(2).substr(0, 11), "▸ Nome * ");
  EXPECT_EQ(grid.Row(4).find("  Endereço ────"), 0U);
  EXPECT_EQ(grid.Row(5).substr(0, 5), "  CEP");
  EXPECT_NE(grid.Row(7).find("[ Gravar ]"), std::string::npos);
  EXPECT_EQ(grid.Row(22), "  Como no documento.");
}

TEST(FormView, TheFootNamesOnlyKeysThatWorkWhereTheFocusIs) {
  Drawn drawn(R"([{"name":"a","mask":100},{"name":"b","mask":100,"set":{"TrataEnterComoTab":false}},
                  {"name":"c","mask":"gbEstado"}])");
  const auto foot = [&] { return drawn.Draw(60).Row(23); };
  drawn.form.Tab(false);
  EXPECT_EQ(foot(), " Enter avança · F10 conclui · F1 ajuda · Esc desiste");
  EXPECT_EQ(drawn.Draw(40).Row(23), " Enter avança · F10 conclui · F1 ajuda");
  drawn.form.Tab(false);
  EXPECT_EQ(foot().substr(0, 12), " Tab avança");
  drawn.form.Tab(false);
  EXPECT_EQ(foot().substr(0, 31), " Tab avança · F4 abre a lista");
  drawn.form.Press(kVkF4);
  EXPECT_EQ(foot(), " ↑↓ escolhe · Enter fecha a lista · Tab avança · F1 ajuda");
  drawn.form.Tab(false);
  EXPECT_EQ(foot().substr(0, 14), " Enter conclui");
}

TEST(FormView, MarksFocusAndSelectionByTheColoursOfTheChildren) {
  Drawn drawn(R"([{"label":"C","mask":"gbData","default":"29/02/2024"},{"label":"D","mask":"gbCPF"}])");
  drawn.form.Tab(false);
  Grid grid = drawn.Draw();
  EXPECT_EQ(grid.At(0, 2).glyph, U'▸');
  EXPECT_EQ(grid.At(12, 2).glyph, U'┃');
  EXPECT_EQ(grid.At(13, 2).style, (Style{kPastel, kEntry | kActive | kSelected}));
  EXPECT_EQ(grid.At(19, 2).glyph, U'│');
  EXPECT_EQ(grid.At(20, 2).style, (Style{kWindowBackground, kEntry})) << "the month has no focus";
  EXPECT_EQ(grid.caret, (Point{15, 2}));
  drawn.form.Tab(false);
  grid = drawn.Draw();
  EXPECT_EQ(grid.At(13, 2).style.back, kWindowBackground);
  EXPECT_EQ(grid.At(20, 2).style.back, kPastel);
}

TEST(FormView, ScrollsALongTextWithItsCaret) {
  Drawn drawn(R"([{"label":"C","mask":100}])");
  drawn.form.Tab(false);
  for (int i = 0; i < 5; ++i) drawn.form.Type(u"abcdefghij");
  EXPECT_EQ(drawn.Draw().Row(2), "▸ C         ‹cdefghijabcdefghijabcdefghijabcdefghij┃");
  EXPECT_EQ(drawn.Draw().caret, (Point{51, 2}));
  drawn.form.Press(kVkHome);
  EXPECT_EQ(drawn.Draw().Row(2), "▸ C         ┃abcdefghijabcdefghijabcdefghijabcdefgh›");
  EXPECT_EQ(drawn.Draw().caret, (Point{13, 2}));
}

TEST(FormView, AListOpensWhereThereIsRoomWithBarCountAndSelection) {
  FormSpec spec = Listed(R"([{"label":"C","mask":"gbEstado"}])");
  spec.fields.resize(12, spec.fields[0]);
  Drawn drawn(std::move(spec));
  drawn.form.Tab(false);
  drawn.form.Type(u"b");  // BA is the last of 27
  Grid grid = drawn.Draw(80, 14);
  EXPECT_EQ(grid.Row(1), "▸ C         ┃BA                                   ▾┃");
  EXPECT_EQ(grid.Row(2).substr(0, 17), "  C         │PI");
  EXPECT_EQ(grid.Row(9), "  C         │BA                                    █");
  EXPECT_NE(grid.Row(10).find("── 27 de 27 ┘"), std::string::npos);
  EXPECT_EQ(grid.At(13, 9).style.marks, kSelected);
  EXPECT_EQ(grid.At(14, 1).style.marks & kSelected, kSelected) << "the completion";
  drawn.view.Wheel(-100);
  EXPECT_EQ(drawn.Draw(80, 14).Row(2).substr(0, 17), "  C         │MG");
  for (int i = 0; i < 11; ++i) drawn.form.Tab(false);
  drawn.form.Press(kVkF4);
  grid = drawn.Draw(80, 14);
  EXPECT_EQ(grid.At(0, 11).glyph, U'▸');
  EXPECT_EQ(grid.Row(3), "  C         │MG                                    █");
  EXPECT_NE(grid.Row(2).find("── 27 ┐"), std::string::npos) << "nothing is selected";
}

TEST(FormView, NoSizeIsTooSmall) {
  Drawn drawn(cli::ForTerminal(cli::BuiltInForm()));
  for (int i = 0; i < 30; ++i) {
    drawn.form.Tab(false);
    drawn.form.Press(kVkF4);
    for (int size = 1; size < 60; size += 3) {
      Screen screen = drawn.view.Draw(size, size / 2);
      MessageBox(U"Uma mensagem de muitas palavras, mais larga que a janela", kMsgQuestion, {}).Draw(screen);
      EXPECT_EQ(screen.grid.Width(), size);
    }
  }
  EXPECT_EQ(drawn.Draw(23, 20).Row(0), "janela pequena demais");
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
    MessageBox box(U"?", row.flags, U"T");
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
