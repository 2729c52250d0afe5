// The list of fields of the interactive form, and what is printed of its values.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>

#include "cli/form/form_list.h"
#include "cli/form/form_output.h"
#include "gabarito/control/especie.h"
#include "hosts/terminal/form_model.h"

namespace gabarito::cli {
namespace {

// clang-format off
TEST(FormList, RefusesWhatIsNoneAndSaysWhere) {
  constexpr std::pair<const char*, const char*> kBad[] = {
      {"[", "not valid JSON at line 1, column 2"}, {"7", "takes an array of fields"},
      {"{\"fields\":\n [{]}", "not valid JSON at line 2, column 4"},
      {"[{\"name\":\"\xFF\"}]", "not valid JSON"},
      {"{}", "no field"}, {R"({"campos":[]})", "unknown key \"campos\" (a form has title, finish"},
      {R"({"titel":"x"})", "unknown key \"titel\"; did you mean title?"}, {"[]", "no field"},
      {"[1]", "field 1: a field is an object"}, {R"([{"mask":"gbcfp"}])", "field 1: unknown mask 'gbcfp'"},
      {R"([{"mask":100},{"name":"b"}])", "field 2 (\"b\"): mask is missing"},
      {R"([{"mask":1.5}])", "field 1: mask takes"}, {R"([{"mask":2147483648}])", "field 1: mask takes"},
      {R"([{"mask":100,"name":"a"},{"mask":100},{"mask":100,"label":"a"}])",
       "field 3 (\"a\"): has the name of field 1 (\"a\")"},
      {R"([{"mask":100,"name":"a"},{"group":"g","fields":[{"mask":100,"name":"a"}]}])",
       "field 2 (\"a\"): has the name of field 1 (\"a\")"},
      {R"([{"mask":100,"Require":true}])", "field 1: unknown key \"Require\"; did you mean required?"},
      {R"([{"mask":100,"required":1}])", "field 1: required takes true or false"},
      {R"([{"mask":100,"default":1}])", "field 1: default takes a text"},
      {R"([{"mask":100,"placeholder":[1]}])", "field 1: placeholder takes a text"},
      {R"([{"group":"g"}])", "group \"g\": has no field"}, {R"([{"group":1}])", "group takes a text"},
      {R"([{"group":"g","fields":[{"group":"h"}]}])", "group \"h\": stands inside another group"},
      {R"([{"group":"g","feilds":[]}])", "group \"g\": unknown key \"feilds\"; did you mean fields?"},
      {R"([{"mask":100,"name":1}])", "field 1: name takes a text"},
      {R"([{"mask":100,"set":[]}])", "field 1: set takes an object"},
      {R"([{"mask":100,"label":"a\nb","cor":1}])", "field 1 (\"a\\nb\"): unknown key \"cor\""},
      {R"([{"mask":100,"set":{"Cor":1}}])", "field 1: there is no property 'Cor'"},
      {R"([{"mask":100,"set":{"Enabled":1}}])", "field 1: Enabled takes true or false"},
      {R"([{"mask":100,"set":{"MaxLength":-32768}}])", "field 1: MaxLength: error 6"}};
  for (const auto& [json, message] : kBad) {
    try {
      terminal::FormModel(ForTerminal(ReadFormList(json)), [] { return Date(); });
      ADD_FAILURE() << "taken: " << json;
    } catch (const UsageError& error) {
      const std::string_view told = error.what();
      EXPECT_TRUE(told.find(message) != told.npos && told.find('\n') == told.npos) << json << ": " << told;
    }
  }
}
// clang-format on

TEST(FormList, NameAndLabelStandInForEachOther) {
  const auto fields =
      ReadFormList(R"({"fields":[{"mask":"gbCPF","label":"Nº"},{"mask":9,"name":"n"},{"mask":9}]})").fields;
  ASSERT_EQ(fields.size(), 3U);
  EXPECT_EQ(fields[0].mask, gbCPF);
  EXPECT_EQ(fields[1].spec.label, u"n");
  EXPECT_EQ(fields[0].spec.name + fields[2].spec.name, "Nºfield_3");
}

TEST(FormList, TheFormOfItsOwnHoldsEveryKindOnceUnderNamesThatAShellTakes) {
  const auto fields = BuiltInForm().fields;
  EXPECT_EQ(fields.size(), Especies().size());
  for (const EspecieDescrita& kind : Especies()) {
    EXPECT_EQ(std::ranges::count(fields, kind.valor, &ListedField::mask), 1) << kind.nome;
  }
  EXPECT_NO_THROW(CheckNames(ForTerminal(BuiltInForm()).fields, FormFormat::kEnv));
}

TEST(FormList, StartsFromAFileOfValuesBesideTheList) {
  const std::filesystem::path directory = ::testing::TempDir();
  const auto read = [&](std::string_view values) {
    std::ofstream(directory / "valores.json") << values;
    return ReadFormList(R"({"values":"valores.json","fields":[{"name":"nome","mask":100,"default":"x"},
                                                              {"name":"cpf","mask":"gbCPF","default":"y"}]})",
                        directory);
  };
  const auto fields = read(R"({"cpf":null,"nome":"Ana"})").fields;
  EXPECT_EQ(fields[0].spec.value, u"Ana");
  EXPECT_EQ(fields[1].spec.value, u"");
  for (const auto& [values, message] : std::initializer_list<std::pair<const char*, const char*>>{
           {R"({"nomes":"Ana"})", "valores.json: there is no field \"nomes\"; did you mean nome?"},
           {R"({"nome":1})", "valores.json: \"nome\" takes a text"},
           {"[]", "valores.json: takes an object"},
           {"{", "valores.json: not valid JSON at line 1, column 2"}}) {
    try {
      read(values);
      ADD_FAILURE() << "taken: " << values;
    } catch (const UsageError& error) {
      EXPECT_NE(std::string_view(error.what()).find(message), std::string_view::npos) << error.what();
    }
  }
  EXPECT_THROW(ReadFormList(R"({"values":"no such file","fields":[{"mask":100}]})", directory),
               std::system_error);
}

TEST(FormOutput, HasAShapeForEachReader) {
  const std::vector<terminal::FieldValue> values = {
      {"nome", u"D'Ávila\t\"x\"\n", false}, {"cpf", u"", true}, {"uf", u"MG", false}};
  const std::pair<FormOutput, std::string> kRows[] = {
      {{}, "{\"nome\":\"D'Ávila\\t\\\"x\\\"\\n\",\"cpf\":\"\",\"uf\":\"MG\"}\n"},
      {{.nulls = true}, "{\"nome\":\"D'Ávila\\t\\\"x\\\"\\n\",\"cpf\":null,\"uf\":\"MG\"}\n"},
      {{.format = FormFormat::kEnv}, "nome='D'\\''Ávila\t\"x\"\n'\ncpf=''\nuf='MG'\n"},
      {{.format = FormFormat::kTsv}, "nome\tD'Ávila\\t\"x\"\\n\ncpf\t\nuf\tMG\n"},
      {{.format = FormFormat::kPrint0}, std::string("D'Ávila\t\"x\"\n\0\0MG\0", 18)},
  };
  for (const auto& [output, text] : kRows) EXPECT_EQ(Rendered(values, output), text);
  for (const char* name : {"e-mail", "1a", "", "x;rm", "ação"}) {
    std::vector<terminal::FieldSpec> fields(1);
    fields[0].name = name;
    EXPECT_THROW(CheckNames(fields, FormFormat::kEnv), UsageError) << name;
    EXPECT_NO_THROW(CheckNames(fields, FormFormat::kJson));
  }
}

}  // namespace
}  // namespace gabarito::cli
