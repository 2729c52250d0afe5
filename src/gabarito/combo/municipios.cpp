#include "gabarito/combo/municipios.h"

#include <iterator>

#include "gabarito/platform/erro.h"

namespace gabarito {
namespace {

// kTexto, all lines in one, and kInicio, where each line starts, with the end of the last one behind them.
// Offsets and not views: a table of pointers would be written over by the loader at every start.
#include "municipios_tabela.inc"

static_assert(std::size(kInicio) == kMunicipios + 1);
static_assert(std::size(kTexto) == kInicio[kMunicipios] + 1, "a line with a character beyond ASCII");

}  // namespace

std::u16string_view LoadResString(std::int32_t id) {
  if (id < 1 || id > kMunicipios) Fail(kInvalidProcedureCall);
  return {kTexto + kInicio[id - 1], kInicio[id] - kInicio[id - 1]};
}

}  // namespace gabarito
