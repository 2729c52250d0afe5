#include "hosts/web/municipios.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "gabarito/combo/municipios.h"
#include "gabarito/platform/erro.h"

namespace gabarito {
namespace web {
namespace {

struct Table {
  std::u16string text;
  std::vector<std::uint32_t> starts;
};

Table& TheTable() {
  static Table table;
  return table;
}

}  // namespace

bool OwnMunicipios(std::u16string_view lines) {
  if (HasMunicipios() || std::count(lines.begin(), lines.end(), u'\n') != kMunicipios) return HasMunicipios();
  Table& table = TheTable();
  table.starts = {0};
  for (const char16_t c : lines) {
    if (c == u'\n') {
      table.starts.push_back(static_cast<std::uint32_t>(table.text.size()));
    } else {
      table.text.push_back(c);
    }
  }
  return true;
}

bool HasMunicipios() { return !TheTable().starts.empty(); }

}  // namespace web

// Stands in for the core's own, which carries the table inside: an empty list until the page has fetched it.
std::u16string_view LoadResString(std::int32_t id) {
  const auto& table = web::TheTable();
  if (id < 1 || id > kMunicipios || table.starts.empty()) Fail(kInvalidProcedureCall);
  const auto at = static_cast<std::size_t>(id);
  return std::u16string_view(table.text)
      .substr(table.starts[at - 1], table.starts[at] - table.starts[at - 1]);
}

}  // namespace gabarito
