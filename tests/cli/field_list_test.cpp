// The list of fields of the interactive form.
#include <gtest/gtest.h>

#include <algorithm>

#include "cli/form/field_list.h"
#include "gabarito/control/especie.h"

namespace gabarito::cli {
namespace {

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
      {R"([{"mask":100,"name":"a"},{"mask":100},{"mask":100,"label":"a"}])",
       "field 3 (\"a\"): has the name of field 1 (\"a\")"},
      {R"([{"mask":100,"name":1}])", "field 1: name takes a text"},
      {R"([{"mask":100,"set":[]}])", "field 1: set takes an object"},
      {R"([{"mask":100,"label":"a\nb","cor":1}])", "field 1 (\"a\\nb\"): unknown key \"cor\""},
      {R"([{"mask":100,"set":{"Cor":1}}])", "field 1: there is no property 'Cor'"},
      {R"([{"mask":100,"set":{"Enabled":1}}])", "field 1: Enabled takes true or false"},
      {R"([{"mask":100,"set":{"MaxLength":-32768}}])", "field 1: MaxLength: error 6"}};
  for (const auto& [json, message] : kBad) {
    try {
      terminal::FormModel(ForForm(ReadFieldList(json)), [] { return Date(); });
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
    EXPECT_EQ(std::ranges::count(fields, kind.valor, &ListedField::mask), 1) << kind.nome;
  }
}

}  // namespace
}  // namespace gabarito::cli
