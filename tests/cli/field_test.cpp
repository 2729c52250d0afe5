// `gabarito field` and `gabarito masks`.
#include <gtest/gtest.h>

#include <sstream>

#include "cli/commands.h"
#include "cli/properties.h"
#include "gabarito/control/interface.h"
#include "gabarito/platform/erro.h"

namespace gabarito::cli {
namespace {

struct Outcome {
  int status;
  std::string out, err;
  friend bool operator==(const Outcome&, const Outcome&) = default;
  friend std::ostream& operator<<(std::ostream& out, const Outcome& o) {
    return out << o.status << '\n' << o.out << o.err;
  }
};

Outcome Field(const FieldCommandOptions& options) {
  std::ostringstream out, err;
  const int status = RunField(options, out, err);
  return {status, out.str(), err.str()};
}

TEST(Field, PrintsTheValueOfWhatItTakes) {
  const struct {
    FieldCommandOptions options;
    std::string value;
  } rows[] = {
      {{{"gbCPF", {}}, "11144477735", {}}, "111.444.777-35\n"},
      {{{"gbCPF", {}}, {}, {}}, "\n"},
      {{{"gbCPF", {}}, {}, "111x44477735"}, "111.444.777-35\n"},
      {{{"gbCEP", {}}, {}, "01310-100"}, "01310-100\n"},
      {{{"gbData", {}}, {}, "05{TAB}03{TAB}2024"}, "05/03/2024\n"},
      {{{"gbNenhuma", {}}, "ab", "{END}c"}, "ABC\n"},
      {{{"gbEstado", {"ComboListIndex=1"}}, {}, {}}, "RJ\n"},
      {{{"gbNenhuma", {"MaxLength=2"}}, {}, "abc"}, "AB\n"},
      {{{"gbDefUsr", {"MaskText=##/##"}}, {}, "12"}, "12/\n"},
      {{{"gbCPF", {"MaskText=##/##"}}, "11144477735", {}}, "111.444.777-35\n"},
      {{{"gbCidadeEstadoPopulado", {}}, {}, "sao jose dos ca"}, "SAO JOSE DOS CAMPOS/SP\n"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(Field(row.options), (Outcome{0, row.value, ""})) << row.options.field.mask << ' ' << row.value;
  }
}

TEST(Field, TellsEachMessageBoxOnOneLine) {
  const struct {
    FieldCommandOptions options;
    Outcome outcome;
  } rows[] = {
      {{{"gbCPF", {}}, "11144477736", {}}, {1, "\n", "Entrada inválida: O CPF informado é inválido.\n"}},
      {{{"gbEnderecoEmail", {}}, "ana", {}},
       {1, "\n",
        "Endereço de email: Este endereço de email não parece ser válido. Deseja utilizá-lo mesmo assim?\n"}},
      {{{"gbCPF", {}}, std::string(40'000, '1'), {}},
       {1, "\n", "Gabarito: Erro 6 (Estouro) em Gabarito::Text Máscara: 240\n"}},
  };
  for (const auto& row : rows) EXPECT_EQ(Field(row.options), row.outcome) << row.options.field.mask;
}

TEST(Field, RefusesACommandThatIsWrong) {
  EXPECT_THROW(Field({{"gbCPF", {}}, "\xFF", {}}), UsageError);
  EXPECT_THROW(Field({{"gbCPF", {}}, {}, "\xFF"}), UsageError);
  EXPECT_THROW(Field({{"gbNada", {}}, {}, {}}), UsageError);
  EXPECT_THROW(Field({{"gbCPF", {"ComboListCount=1"}}, {}, {}}), UsageError);
  EXPECT_THROW(Field({{"gbCPF", {}}, {}, "{TAB 40000}"}), Erro);
}

TEST(Masks, ListsTheKindsAndTheMembersOfTheClass) {
  std::ostringstream text, json;
  EXPECT_EQ(RunMasks(ListForm::kText, text), 0);
  EXPECT_NE(text.str().find("\ngbCPF                   240  "), std::string::npos) << text.str();
  EXPECT_EQ(RunMasks(ListForm::kJson, json), 0);
  const Json lists = Json::parse(json.str());
  EXPECT_EQ(lists["masks"].size(), 23u);
  EXPECT_EQ(lists["masks"][3]["name"], "gbData");
  EXPECT_EQ(lists["masks"][3]["number"], 130);
  EXPECT_EQ(lists["members"].size(), MembrosDaInterface().size());
  EXPECT_EQ(lists["members"][2], Json::parse(R"({"name":"MaxLength","is":"property","type":"int16"})"));
  EXPECT_EQ(lists["events"][0]["name"], "KeyUp");
}

}  // namespace
}  // namespace gabarito::cli
