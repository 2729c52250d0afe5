// What the program says in Portuguese.
#include <gtest/gtest.h>

#include <cstdlib>
#include <sstream>
#include <string>

#include "cli/language.h"
#include "cli/names.h"
#include "cli/portuguese.h"

namespace gabarito::cli {
namespace {

// clang-format off
TEST(Portuguese, TellsAMessageWithItsPlaceAndItsEnd) {
  const struct { const char* english; const char* portuguese; } rows[] = {
      {"gabarito: unknown command 'bach'; did you mean batch?; the commands are masks, field",
       "gabarito: comando desconhecido: 'bach'; você quis dizer batch?; os comandos são masks, field"},
      {"gabarito script: a.txt: line 12: MaxLength takes a number from 0 to 9",
       "gabarito script: a.txt: linha 12: MaxLength recebe um número de 0 a 9"},
      {"gabarito: f.json: field 2 (\"cpf\"): unknown key \"masc\"; did you mean mask? (a field has name, mask)",
       "gabarito: f.json: campo 2 (\"cpf\"): chave desconhecida: \"masc\"; você quis dizer mask? "
       "(um campo tem name, mask)"},
      {"gabarito: f.json: field 2: required takes true or false",
       "gabarito: f.json: campo 2: required recebe true ou false"},
      {"gabarito: cannot open a:b.txt: No such file or directory; see --help",
       "gabarito: não foi possível abrir a:b.txt: arquivo ou diretório inexistente; veja --help"},
      {"gabarito: form: standard input is no terminal", "gabarito: form: a entrada padrão não é um terminal"},
      {"Entrada inválida: O CPF informado é inválido.", "Entrada inválida: O CPF informado é inválido."},
      {"a text that nobody has put into the table", "a text that nobody has put into the table"}};
  for (const auto& row : rows) {
    EXPECT_EQ(Told(row.english, Language::kPortuguese), row.portuguese);
    EXPECT_EQ(Told(row.english, Language::kEnglish), row.english);
  }
}
// clang-format on

TEST(Portuguese, EachRowRepeatsWhatItFoundAndIsReached) {
  for (const Phrase& phrase : PortuguesePhrases()) {
    std::string example, expected(phrase.portuguese);
    char number = '1';
    for (std::size_t i = 0; i < phrase.english.size(); ++i) {
      if (!phrase.english.substr(i).starts_with("{}")) {
        example += phrase.english[i];
        continue;
      }
      const std::string word = std::string("w") + number, place = std::string("{") + number;
      example += word;
      for (const std::string& form : {place + "}", place + "!}"}) {
        if (const std::size_t at = expected.find(form); at != std::string::npos)
          expected.replace(at, form.size(), word);
      }
      EXPECT_NE(expected.find(word), std::string::npos) << phrase.portuguese;
      ++number;
      ++i;
    }
    EXPECT_EQ(Told(example, Language::kPortuguese), expected) << phrase.english;
  }
}

TEST(Language, IsThatOfItsNameOrOfTheEnvironment) {
  for (const char* name : {"pt", "pt_BR", "pt_BR.UTF-8", "pt-BR"})
    EXPECT_EQ(LanguageOf(name), Language::kPortuguese);
  for (const char* name : {"en", "en_US"}) EXPECT_EQ(LanguageOf(name), Language::kEnglish);
  for (const char* name : {"", "ptx", "de", "C"}) EXPECT_THROW(LanguageOf(name), UsageError) << name;
  const struct {
    const char *all, *messages, *lang;
    Language language;
  } rows[] = {{"", "", "pt_BR.UTF-8", Language::kPortuguese},
              {"", "pt_BR", "en_US", Language::kPortuguese},
              {"C", "pt_BR", "pt_BR", Language::kEnglish},
              {"", "", "", Language::kEnglish}};
  for (const auto& row : rows) {
    setenv("LC_ALL", row.all, 1);
    setenv("LC_MESSAGES", row.messages, 1);
    setenv("LANG", row.lang, 1);
    EXPECT_EQ(LanguageOfEnvironment(), row.language) << "row " << &row - rows;
  }
}

TEST(TellsIn, PutsEachLineOfAStreamIntoTheLanguage) {
  std::ostringstream out;
  {
    const TellsIn tells(out, Language::kPortuguese);
    out << "line " << 1 << ": a field "
        << "is an object\nIs a directory\nunfinished";
  }
  out << "; see --help";
  EXPECT_EQ(out.str(), "linha 1: um campo é um objeto\né um diretório\nunfinished; see --help");
}

}  // namespace
}  // namespace gabarito::cli
