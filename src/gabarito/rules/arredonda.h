// Rounding of money: half away from zero, scaled in decimal arithmetic, judged by one digit.
#ifndef GABARITO_RULES_ARREDONDA_H
#define GABARITO_RULES_ARREDONDA_H

#include <cstdint>

namespace gabarito {

// What the last call left behind; one for each control, zero at birth.
struct CacheDeArredonda {
  double ultimoValor = 0;         // the last value rounded
  std::int32_t ultimasCasas = 0;  // the last number of decimals asked for
  double ultimoResultado = 0;     // the result for that pair
  double ultimoFator = 0;         // 10 to the power ultimasCasas; 0 until first worked out
};

// `valor` rounded to `casas` decimals (below 0: to tens, hundreds, ...). Only the first digit behind the
// last place kept decides, and it is the digit of the decimal number that was written: 1.005 with two
// decimals is 1.01, 0.4999 with none is 0. The last pair asked for is answered from `cache`.
//
// Raises 6 when the scaled value leaves the decimal type (about 7.9E+28), when the power of ten leaves a
// double at either end, and on a `valor` that is no finite number. A call that fails leaves
// `casas` in `cache` all the same.
double Arredonda(CacheDeArredonda& cache, double valor, std::int32_t casas);

}  // namespace gabarito

#endif  // GABARITO_RULES_ARREDONDA_H
