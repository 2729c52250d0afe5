#include "gabarito/rules/arredonda.h"

#include <cmath>

#include "gabarito/platform/erro.h"
#include "gabarito/platform/number.h"

namespace gabarito {
namespace {

// A floating-point fault is an overflow to whoever called.
double ExigeFinito(double valor) {
  if (!std::isfinite(valor)) Fail(kOverflow);
  return valor;
}

}  // namespace

double Arredonda(CacheDeArredonda& cache, double valor, std::int32_t casas) {
  if (valor == cache.ultimoValor && casas == cache.ultimasCasas) return cache.ultimoResultado;
  if (valor == 0) return 0;

  // The places are kept before their power of ten, which can fail and then leaves the older factor.
  if (casas != cache.ultimasCasas) {
    cache.ultimasCasas = casas;
    cache.ultimoFator = ExigeFinito(std::pow(10.0, casas));
  } else if (cache.ultimoFator == 0) {
    cache.ultimoFator = 1;
  }

  // A plain product would make 100.49999999999999 of 1.005 and 100.
  const double escalado = cache.ultimoFator == 1.0 ? valor : DecimalProduct(valor, cache.ultimoFator);
  double inteiro = std::trunc(escalado);
  const double digito = std::abs(std::trunc(ExigeFinito(escalado - inteiro) * 10));
  // Truncated to one digit before it is judged: 0.49999 has a 4 here.
  if (digito > 4) inteiro += escalado < 0 ? -1 : 1;
  if (cache.ultimoFator != 1.0) inteiro = ExigeFinito(inteiro / cache.ultimoFator);

  cache.ultimoResultado = inteiro;
  cache.ultimoValor = valor;
  return inteiro;
}

}  // namespace gabarito
