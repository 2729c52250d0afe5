// CPF, CNPJ and card numbers: the load of a value and the check on exit.
#ifndef GABARITO_VALUE_DOCUMENTOS_H
#define GABARITO_VALUE_DOCUMENTOS_H

#include <string_view>

#include "gabarito/state/campo.h"

namespace gabarito {

// A load raises what its steps raise: 6 on a text of more than 32,767 characters.
void CarregaCPF(Campo& c, std::u16string_view dado);
void CarregaCNPJ(Campo& c, std::u16string_view dado);
void CarregaCartaoCredito(Campo& c, std::u16string_view dado);

// Skip-on-error mode. Each empties mValor first, punctuates the box, and stores its text if the check digits
// are right; a bad number gets its message and the focus back, and stays in the box for correction.
void SaiDoCPF(Campo& c);
void SaiDoCNPJ(Campo& c);
void SaiDoCartaoCredito(Campo& c);

}  // namespace gabarito

#endif  // GABARITO_VALUE_DOCUMENTOS_H
