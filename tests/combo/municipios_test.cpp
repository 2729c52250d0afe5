#include "gabarito/combo/municipios.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>

#include "gabarito/platform/erro.h"

namespace gabarito {
namespace {

TEST(Municipios, TheTableIsTheSortedPublicListInCapitals) {
  std::size_t total = 0, shortest = 100, longest = 0;
  std::map<std::string, int> byState;
  std::map<std::string, std::set<std::string>> statesOf;
  std::pair<std::string, std::string> before;
  for (std::int32_t id = 1; id <= kMunicipios; ++id) {
    const std::u16string_view linha = LoadResString(id);
    total += linha.size();
    shortest = std::min(shortest, linha.size());
    longest = std::max(longest, linha.size());
    EXPECT_EQ(linha.find_first_not_of(u"ABCDEFGHIJKLMNOPQRSTUVWXYZ -/"), std::u16string_view::npos) << id;
    const std::size_t barra = linha.find(u'/');
    ASSERT_EQ(barra, linha.size() - (id == 3262 ? 4 : 3)) << id;
    std::string nome(linha.begin(), linha.begin() + barra);
    const std::string estado(linha.begin() + barra + 1, linha.end());
    ++byState[estado.substr(0, 2)];
    statesOf[nome].insert(estado);
    std::erase(nome, '-');
    EXPECT_LT(before, std::pair(nome, estado)) << id;
    before = {nome, estado};
  }
  EXPECT_EQ(total, 82706u);
  EXPECT_EQ(shortest, 6u);
  EXPECT_EQ(longest, 35u);
  EXPECT_EQ(statesOf.size(), 5294u);
  EXPECT_EQ(std::ranges::count_if(statesOf, [](const auto& row) { return row.second.size() > 1; }), 287);
  const std::map<std::string, int> expected = {
      {"MG", 854}, {"GO", 307}, {"PE", 186}, {"ES", 79},  {"SP", 646}, {"SC", 294}, {"CE", 185},
      {"MS", 79},  {"RS", 498}, {"PI", 224}, {"RN", 168}, {"SE", 76},  {"BA", 418}, {"PB", 224},
      {"PA", 144}, {"AM", 63},  {"PR", 400}, {"MA", 218}, {"MT", 142}, {"RO", 53},  {"AC", 23},
      {"AL", 103}, {"TO", 140}, {"AP", 17},  {"RR", 16},  {"RJ", 93},  {"DF", 1},   {"IG", 1}};
  EXPECT_EQ(byState, expected);
}

TEST(Municipios, TellingLinesStandAtTheirIds) {
  const std::pair<std::int32_t, std::u16string_view> rows[] = {{1, u"ABADIA DE GOIAS/GO"},
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
