#include "hosts/terminal/key_hints.h"

#include <algorithm>
#include <iterator>

#include "gabarito/state/mascaras.h"

namespace gabarito::terminal {
namespace {

struct Row {
  std::int32_t mask;
  std::u16string_view takes;
  bool digits;  // a digit that is refused has another reason than being one
};

constexpr Row kRows[] = {
    {gbLetra, u"só letras", false},
    {gbData, u"só números", true},
    {gbDataAtual, u"a data é sempre a de hoje", false},
    {gbMesAno, u"só números", true},
    {gbHora, u"só números", true},
    {gbInteiro, u"só números", true},
    {gbReal, u"só números, vírgula e ponto", true},
    {gbMoeda, u"só números, vírgula e ponto", true},
    {gbCEP, u"só números", true},
    {gbTelefone, u"só números, letras maiúsculas e + - ( ) # *", true},
    {gbDefUsr, u"não cabe no formato do campo", false},
    {gbVersao, u"só números, vírgula e ponto", true},
    {gbCPF, u"só números", true},
    {gbCNPJ, u"só números", true},
    {gbCidadeEstado, u"só letras", false},
    {gbCartaoCredito, u"só números e espaços", true},
    {gbIntervaloNumerico, u"só números", true},
};

bool IsDigit(char16_t c) { return c >= u'0' && c <= u'9'; }

}  // namespace

std::u16string_view WhyRefused(const Gabarito& field, const Piece& entry, char16_t character) {
  const std::int32_t mask = field.Mask();
  if (mask == gbCNPJ && field.CNPJAlfanumerico()) return u"só letras e números";
  const auto* const row = std::ranges::find(kRows, mask, &Row::mask);
  const bool known = row != std::end(kRows);
  const bool full = entry.limit > 0 && static_cast<int>(entry.text.size()) >= entry.limit;
  if (known && !(row->digits && IsDigit(character))) return row->takes;
  return full ? u"o campo já está cheio" : u"não cabe aqui";
}

}  // namespace gabarito::terminal
