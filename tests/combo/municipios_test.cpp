#include "gabarito/combo/municipios.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>

#include "gabarito/platform/erro.h"

namespace gabarito {
namespace {

struct Municipio {
  std::string nome, estado;
};

Municipio MunicipioDe(std::int32_t id) {
  const std::u16string_view linha = LoadResString(id);
  const std::string texto(linha.begin(), linha.end());
  const std::size_t barra = texto.find('/');
  return {texto.substr(0, barra), texto.substr(std::min(barra, texto.size() - 1) + 1)};
}

TEST(Municipios, EveryLineIsANameASlashAndAStateCodeInCapitals) {
  std::size_t total = 0, shortest = 100, longest = 0;
  for (std::int32_t id = 1; id <= kMunicipios; ++id) {
    const std::u16string_view linha = LoadResString(id);
    total += linha.size();
    shortest = std::min(shortest, linha.size());
    longest = std::max(longest, linha.size());
    const auto isAllowed = [](char16_t c) {
      return (c >= u'A' && c <= u'Z') || c == u' ' || c == u'-' || c == u'/';
    };
    EXPECT_TRUE(std::all_of(linha.begin(), linha.end(), isAllowed)) << id;
    EXPECT_EQ(std::count(linha.begin(), linha.end(), u'/'), 1) << id;
    EXPECT_EQ(MunicipioDe(id).estado.size(), id == 3262 ? 3u : 2u) << id;
  }
  EXPECT_EQ(total, 82706u);
  EXPECT_EQ(shortest, 6u);
  EXPECT_EQ(longest, 35u);
}

TEST(Municipios, LinesAreCountedByStateAndByName) {
  std::map<std::string, int> byState;
  std::map<std::string, std::set<std::string>> statesOf;
  for (std::int32_t id = 1; id <= kMunicipios; ++id) {
    const Municipio municipio = MunicipioDe(id);
    ++byState[municipio.estado.substr(0, 2)];
    statesOf[municipio.nome].insert(municipio.estado);
  }
  const std::map<std::string, int> expected = {
      {"MG", 854}, {"GO", 307}, {"PE", 186}, {"ES", 79},  {"SP", 646}, {"SC", 294}, {"CE", 185},
      {"MS", 79},  {"RS", 498}, {"PI", 224}, {"RN", 168}, {"SE", 76},  {"BA", 418}, {"PB", 224},
      {"PA", 144}, {"AM", 63},  {"PR", 400}, {"MA", 218}, {"MT", 142}, {"RO", 53},  {"AC", 23},
      {"AL", 103}, {"TO", 140}, {"AP", 17},  {"RR", 16},  {"RJ", 93},  {"DF", 1},   {"IG", 1}};
  EXPECT_EQ(byState, expected);
  EXPECT_EQ(statesOf.size(), 5294u);
  EXPECT_EQ(
      std::count_if(statesOf.begin(), statesOf.end(), [](const auto& row) { return row.second.size() > 1; }),
      287);
}

TEST(Municipios, LinesAreSortedByNameWithoutHyphensThenByState) {
  const auto keyOf = [](std::int32_t id) {
    Municipio municipio = MunicipioDe(id);
    std::erase(municipio.nome, '-');
    return std::pair(municipio.nome, municipio.estado);
  };
  for (std::int32_t id = 2; id <= kMunicipios; ++id) EXPECT_LT(keyOf(id - 1), keyOf(id)) << id;
}

TEST(Municipios, TellingLinesStandAtTheirIds) {
  const std::map<std::int32_t, std::u16string_view> rows = {{1, u"ABADIA DE GOIAS/GO"},
                                                            {767, u"BRASILIA/DF"},
                                                            {2180, u"IGNORADO OU EXTERIOR/IG"},
                                                            {3253, u"MUNICIPIO IGNORADO/AC"},
                                                            {3262, u"MUNICIPIO IGNORADO/MG "},
                                                            {3278, u"MUNICIPIO IGNORADO/TO"},
                                                            {5652, u"ZORTEA/SC"}};
  for (const auto& [id, linha] : rows) EXPECT_EQ(LoadResString(id), linha) << id;
  for (const std::int32_t id : {0, -1, 5653, 2147483647}) EXPECT_THROW(LoadResString(id), Erro) << id;
}

}  // namespace
}  // namespace gabarito
