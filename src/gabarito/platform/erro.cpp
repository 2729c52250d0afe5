#include "gabarito/platform/erro.h"

#include <utility>

namespace gabarito {
namespace {

struct Description {
  std::int32_t number;
  const char16_t* text;
};

constexpr Description kDescriptions[] = {
    {kInvalidProcedureCall, u"Chamada de procedimento ou argumento inválido"},
    {kOverflow, u"Estouro"},
    {kSubscriptOutOfRange, u"Subscrito fora do intervalo"},
    {kTypeMismatch, u"Tipos incompatíveis"},
    {kObjectNotSet, u"Variável de objeto não definida"},
    {kInvalidPatternString, u"Sequência de padrão inválida"},
    {kInvalidPropertyValue, u"Valor de propriedade inválido"},
    {kNotSupported, u"O objeto não suporta esta ação"},
};

std::u16string DescriptionOf(std::int32_t number) {
  for (const Description& row : kDescriptions) {
    if (row.number == number) return row.text;
  }
  return u"Erro de aplicativo ou de objeto";
}

}  // namespace

Erro::Erro(std::int32_t number) : Erro(number, u"Gabarito", DescriptionOf(number)) {}

Erro::Erro(std::int32_t number, std::u16string source, std::u16string description)
    : number_(number), source_(std::move(source)), description_(std::move(description)) {}

void Fail(std::int32_t number) { throw Erro(number); }

}  // namespace gabarito
