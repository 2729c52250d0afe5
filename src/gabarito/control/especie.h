// One kind of field: everything in which it differs from the others, as a row of data.
#ifndef GABARITO_CONTROL_ESPECIE_H
#define GABARITO_CONTROL_ESPECIE_H

#include <cstdint>
#include <span>
#include <string_view>

#include "gabarito/keyboard/regra_de_tecla.h"
#include "gabarito/state/campo.h"

namespace gabarito {

// What becomes of a failure behind the load of a value, when the write of Text is reported.
enum class FimDaEscrita {
  kConta,  // told in the message box, as a failure of the load is
  kPula    // skipped: the load is in skip-on-error mode, which lasts to the end of the write
};

struct Especie {
  std::int32_t valor;  // an EMascaras; 0 in the default row
  void (*layout)(Campo&);
  void (*carrega)(Campo&, std::u16string_view dado);
  void (*sai)(Campo&);
  RegraDeTecla regra;
  FimDaEscrita fim = FimDaEscrita::kConta;
};

// A row as lists of kinds show it. Apart, so that a program without such lists carries none of the words.
struct EspecieDescrita : Especie {
  std::string_view nome;
  std::string_view toma;  // what the field takes, in a few English words
};

// The 23 kinds in the order of their values.
std::span<const EspecieDescrita> Especies();

// The row of a value of Mask; the default row for any number outside EMascaras: the single box, the exit
// and the keys of gbNenhuma, and a load that tells of the unknown mask.
const Especie& EspecieDe(std::int32_t mascara);

}  // namespace gabarito

#endif  // GABARITO_CONTROL_ESPECIE_H
