// `gabarito batch`, `gabarito field` and `gabarito masks`.
#include <gtest/gtest.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <memory>
#include <sstream>
#include <string>
#include <system_error>

#include "cli/commands.h"
#include "cli/line_reader.h"
#include "cli/memory_stage.h"
#include "cli/names.h"
#include "gabarito/control/interface.h"
#include "gabarito/platform/erro.h"
#include "script/json.h"
#include "script/script.h"

namespace gabarito::cli {
namespace {

// What a command ends with and writes.
struct Outcome {
  int status;
  std::string out, err = {};
  friend bool operator==(const Outcome&, const Outcome&) = default;
  friend std::ostream& operator<<(std::ostream& to, const Outcome& o) {
    return to << o.status << '\n' << o.out << o.err;
  }
};

// A file without a name, gone at the end.
struct TemporaryFile {
  explicit TemporaryFile(const std::string& content = {}) {
    std::fwrite(content.data(), 1, content.size(), file.get());
    std::rewind(file.get());
  }
  int Descriptor() const { return fileno(file.get()); }

  std::unique_ptr<std::FILE, int (*)(std::FILE*)> file{std::tmpfile(), std::fclose};
};

Outcome Batch(const FieldOptions& field, const std::string& input) {
  const TemporaryFile in(input), out;
  const int status = RunBatch({.field = field, .file = ""}, in.Descriptor(), out.Descriptor());
  std::string content(static_cast<std::size_t>(lseek(out.Descriptor(), 0, SEEK_END)), '\0');
  EXPECT_EQ(pread(out.Descriptor(), content.data(), content.size(), 0), std::ssize(content));
  return {status, content};
}

// clang-format off
TEST(Batch, GivesTheValueOfALineThatPassesTellsWhyOneIsRefusedAndGoesOn) {
  const std::string lost = "\t\tValor não aceito pela máscara.\n", good = "11144477735\t111.444.777-35\t\n";
  const struct { int status; const char* mask; std::string input, output; } rows[] = {
      {0, "gbCPF", "", ""}, {0, "gbCPF", "11144477735\n", good},
      {0, "gbCPF", "\xEF\xBB\xBF" "11144477735", good},
      {0, "gbCPF", "11144477735\r\n\r\n52998224725", good + "\t\t\n52998224725\t529.982.247-25\t\n"},
      {0, "gbCPF", " \t\n", " \\t\t\t\n"}, {0, "gbNenhuma", "a\tb\n", "a\\tb\tA\\tB\t\n"},
      {0, "gbData", "5 de março de 2024\n\n", "5 de março de 2024\t05/03/2024\t\n\t\t\n"},
      {0, "gbIntervaloNumerico", "1#250\n#\n", "1#250\t0000000001#0000000250\t\n#\t#\t\n"},
      {0, "190", "01310-100\n01310\n", "01310-100\t01310-100\t\n01310\t01310\t\n"},
      {1, "gbCPF", "11144477736\n11144477735\n", "11144477736\t\tO CPF informado é inválido.\n" + good},
      {1, "gbCPF", "x\n", "x" + lost}, {1, "gbData", "31/02/2024\n", "31/02/2024" + lost},
      {1, "gbCPF", "\n\xFF" "1\xC3\n11144477735", "\t\t\n\uFFFD1\uFFFD\t\tlinha 2: não é UTF-8\n" + good},
      {1, "gbDataAtual", "hoje\n", "hoje" + lost}, {1, "gbEstado", "SP\nXX\n", "SP\tSP\t\nXX" + lost},
      {1, "gbCidadeEstado", "Ana1/SP\n", "Ana1/SP\t\tCaractere inválido.\n"},
      {1, "gbEnderecoEmail", "a@b.com.br\nana\n", "a@b.com.br\ta@b.com.br\t\nana\t\tEste endereço de email "
                                                 "não parece ser válido. Deseja utilizá-lo mesmo assim?\n"},
      {1, "123", "a\n", "a\t\tErro na propriedade TEXT - máscara não definida! Contacte o autor.\n"}};
  for (const auto& row : rows)
    EXPECT_EQ(Batch({row.mask, {}}, row.input), (Outcome{row.status, row.output})) << row.input;
}
// clang-format on

TEST(Batch, SetsThePropertiesFirst) {
  EXPECT_EQ(Batch({"gbListaNoCombo", {R"(ComboItens=["São Paulo"])"}}, "SAO PAULO\n").out,
            "SAO PAULO\tSão Paulo\t\n");
  EXPECT_EQ(Batch({"gbDefUsr", {"MaskText=##/##"}}, "12/34\n5\n").out, "12/34\t12/34\t\n5\t5_/\t\n");
  for (const FieldOptions& bad : {FieldOptions{"gbCPF", {"Cor=1"}}, {"gbCPF", {"MaxLength"}}, {"gbNada", {}}})
    EXPECT_THROW(Batch(bad, ""), UsageError) << bad.mask;
}

TEST(Batch, TakesLinesLongerThanItsBlocks) {
  const std::string digits(40'000, '1');
  EXPECT_EQ(Batch({"gbCPF", {}}, digits + "\n").out,
            digits + "\t\tErro 6 (Estouro) em Gabarito::Text Máscara: 240\n");
  const std::string letters(1'000'000, 'A');
  EXPECT_EQ(Batch({"gbNenhuma", {}}, letters + "\nB\n" + letters),
            (Outcome{0, letters + "\t" + letters + "\t\nB\tB\t\n" + letters + "\t" + letters + "\t\n"}));
}

TEST(Batch, FailsOnWhatItCannotReadOrWrite) {
  const TemporaryFile file("1\n");
  const auto run = [&](const std::string& name, int in, int out) {
    RunBatch({.field = {"gbCPF", {}}, .file = name}, in, out);
  };
  EXPECT_THROW(run("/nowhere/at/all", 0, file.Descriptor()), std::system_error);
  EXPECT_THROW(run("/", 0, file.Descriptor()), std::system_error);
  EXPECT_THROW(run("", -1, file.Descriptor()), std::system_error);
  EXPECT_THROW(run("", file.Descriptor(), -1), std::system_error);
}

TEST(LineReader, GivesAWholeLineBeforeTheInputEnds) {
  int ends[2];
  ASSERT_EQ(pipe(ends), 0);
  ASSERT_EQ(write(ends[1], "one\r\ntw", 7), 7);
  LineReader reader(ends[0], "pipe");
  std::string_view line;
  EXPECT_TRUE(!reader.Next(line) && reader.Fill() && reader.Next(line)) << line;
  EXPECT_EQ(line, "one");
  EXPECT_FALSE(reader.Next(line));
  close(ends[1]);
  EXPECT_TRUE(!reader.Fill() && reader.Rest(line)) << line;
  EXPECT_EQ(line, "tw");
  EXPECT_FALSE(reader.Rest(line));
  close(ends[0]);
}

Outcome Field(const FieldCommandOptions& options) {
  std::ostringstream out, err;
  const int status = RunField(options, out, err);
  return {status, out.str(), err.str()};
}

// clang-format off
TEST(Field, PrintsTheValueAndEachMessageBoxOnOneLine) {
  const struct { FieldCommandOptions options; Outcome outcome; } rows[] = {
      {{{"gbCPF", {}}, "11144477735", {}}, {0, "111.444.777-35\n"}}, {{{"gbCPF", {}}, {}, {}}, {0, "\n"}},
      {{{"gbCPF", {}}, {}, "111x44477735"}, {0, "111.444.777-35\n"}},
      {{{"gbNenhuma", {}}, "ab", "{END}c"}, {0, "ABC\n"}},
      {{{"gbCEP", {}}, {}, "01310-100"}, {0, "01310-100\n"}},
      {{{"gbData", {}}, {}, "05{TAB}03{TAB}2024"}, {0, "05/03/2024\n"}},
      {{{"gbEstado", {"ComboListIndex=1"}}, {}, {}}, {0, "RJ\n"}},
      {{{"gbDefUsr", {"MaskText=##/##"}}, {}, "12"}, {0, "12/\n"}},
      {{{"gbNenhuma", {"MaxLength=2"}}, {}, "abc"}, {0, "AB\n"}},
      {{{"gbCPF", {"MaskText=##/##"}}, "11144477735", {}}, {0, "111.444.777-35\n"}},
      {{{"gbCidadeEstadoPopulado", {}}, {}, "sao jose dos ca"}, {0, "SAO JOSE DOS CAMPOS/SP\n"}},
      {{{"cpf", {}}, "11144477735", {}}, {0, "111.444.777-35\n"}},
      {{{"GBINTERVALONUMERICO", {}}, "#", {}}, {0, "#\n"}}, {{{"data", {}}, " ", {}}, {0, "\n"}},
      {{{"gbHora", {}}, "00:00", {}}, {0, "00:00\n"}},
      {{{"gbData", {}}, "31/02/2024", {}}, {1, "\n", "Valor não aceito pela máscara.\n"}},
      {{{"gbCPF", {}}, "x", "11144477735"}, {1, "111.444.777-35\n", "Valor não aceito pela máscara.\n"}},
      {{{"gbNenhuma", {}}, {}, "({X}){FOO}{b}{tab}"}, {0, "{X}FB\n", "gabarito field: --keys: no key is called "
                                                     "{FOO}: its first character is typed\n"}},
      {{{"gbCPF", {}}, "11144477736", {}}, {1, "\n", "Entrada inválida: O CPF informado é inválido.\n"}},
      {{{"gbEnderecoEmail", {}}, "ana", {}}, {1, "\n", "Endereço de email: Este endereço de email não parece "
                                                       "ser válido. Deseja utilizá-lo mesmo assim?\n"}},
      {{{"gbCPF", {}}, std::string(40'000, '1'), {}},
       {1, "\n", "Gabarito: Erro 6 (Estouro) em Gabarito::Text Máscara: 240\n"}}};
  for (const auto& row : rows) EXPECT_EQ(Field(row.options), row.outcome) << row.options.field.mask;
}

TEST(Field, RefusesACommandThatIsWrong) {
  const FieldCommandOptions rows[] = {{{"gbCPF", {}}, "\xFF", {}}, {{"gbCPF", {}}, {}, "\xFF"},
                                      {{"gbNada", {}}, {}, {}}, {{"gbCPF", {"ComboListCount=1"}}, {}, {}}};
  for (const auto& row : rows) EXPECT_THROW(Field(row), UsageError) << "row " << &row - rows;
  EXPECT_THROW(Field({{"gbCPF", {}}, {}, "{TAB 40000}"}), Erro);
}
// clang-format on

TEST(Json, KeepsTheOrderOfItsKeysAndTakesManyInATimeThatGrowsWithThem) {
  std::string text = "{";
  for (int i = 0; i < 100'000; ++i)
    text += "\"k" + std::to_string(i * 7919 % 100'000) + "\":" + std::to_string(i) + ",";
  const auto start = std::chrono::steady_clock::now();
  Json object = Json::parse(text + "\"k7919\":-1}");
  object["new"] = object.at("k99999");
  object.erase("k0");
  // Key by key, each compared with all before, would take a minute in this build.
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
  EXPECT_EQ(object.size(), 100'000u);
  EXPECT_TRUE(!object.contains("k0") && object.find("new") != object.end() && object["k7919"] == -1);
  EXPECT_EQ(object.begin().key() + "," + std::prev(object.end()).key(), "k7919,new");
  EXPECT_EQ(Json({{"b", 1}, {"a", Json{{"c", 2}}}}).dump(), R"({"b":1,"a":{"c":2}})");
}

TEST(Script, TakesAByteOrderMarkAndBlanksInFrontOfALine) {
  std::istringstream in(
      "\xEF\xBB\xBFnew\n  \t# a remark\n\t get Mask\n \nkeys {NO}\n  \xEF\xBB\xBFget Mask\n");
  std::ostringstream out, err;
  const auto stage = [] { return std::make_unique<MemoryStage>(); };
  EXPECT_EQ(script::RunScripts({}, stage, in, out, err, "gabarito script"), 2);
  EXPECT_NE(out.str().find("\n{\"get\":\"Mask\",\"value\":100}\n"), std::string::npos) << out.str();
  EXPECT_EQ(err.str(),
            "gabarito script: line 5: no key is called {NO}: its first character is typed\n"
            "gabarito script: line 6: unknown action '\xEF\xBB\xBFget'\n");
}

TEST(Masks, ListsTheKindsAndTheMembersOfTheClass) {
  std::ostringstream text, json;
  EXPECT_EQ(RunMasks(ListForm::kText, Language::kEnglish, text), 0);
  EXPECT_NE(text.str().find("\ngbCPF                   240  "), std::string::npos) << text.str();
  EXPECT_EQ(RunMasks(ListForm::kJson, Language::kPortuguese, json), 0);
  const Json lists = Json::parse(json.str());
  EXPECT_EQ(lists["masks"].size(), 23u);
  EXPECT_EQ(lists["masks"][3]["name"], "gbData");
  EXPECT_EQ(lists["masks"][3]["number"], 130);
  EXPECT_EQ(lists["members"].size(), MembrosDaInterface().size());
  EXPECT_EQ(lists["members"][2], Json::parse(R"({"name":"MaxLength","is":"property","type":"int16"})"));
  EXPECT_EQ(lists["members"][13]["arguments"][0]["name"], "s") << lists["members"][13];
  EXPECT_EQ(lists["members"][14]["type"], "Appearance");
  EXPECT_EQ(lists["enumerations"], Json::parse(R"({"Appearance":{"Flat":0,"3D":1}})"));
  EXPECT_EQ(lists["events"], Json::parse(R"([{"name":"KeyUp","arguments":[
      {"name":"KeyCode","type":"int16","byReference":true},
      {"name":"Shift","type":"int16","byReference":true}]}])"));
}

}  // namespace
}  // namespace gabarito::cli
