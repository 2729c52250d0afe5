// The check digits of Brazilian taxpayer numbers and of payment cards.
//
// Each routine takes the text as it stands in the box, with or without its separators, and answers; none
// raises an error and none keeps state. A character that is no digit counts as the digit 0 where a digit is
// read. Nothing is allocated, except for a card number of more than 64 characters beyond its separators.
#ifndef GABARITO_RULES_DOCUMENTOS_H
#define GABARITO_RULES_DOCUMENTOS_H

#include <string_view>

#include "gabarito/platform/regional.h"

namespace gabarito {

// A CPF: exactly 11 characters beside points, slashes, hyphens and blanks, the last two of them right.
// Numbers made of one repeated digit pass.
bool ValidaCPF(std::u16string_view s);

// A CNPJ: 14 characters beside points, blanks, slashes and hyphens, the last two of them right; or its
// root, 8 characters, the last of them right. A number that is not above 0 is refused at either length.
bool ValidaCNPJ(std::u16string_view s);

// The same where a CNPJ may hold letters: a text with an ASCII letter in it has twelve digits or capitals and
// two check digits beside the separators; each character weighs with its code less 48. A text without a
// letter is judged as ValidaCNPJ does, so the root stays digits.
bool ValidaCNPJAlfanumerico(std::u16string_view s);

// A card number: a text that is a number as the region writes it, beside hyphens and blanks, with at most
// 20 digits that meet the Luhn rule. Issuer and length are not looked at, so "0" and "18" pass; so does a
// number without a decimal digit in it ("&HFF"), for an empty sum is a multiple of 10.
bool ValidaCartaoCredito(std::u16string_view s, const Regional& regional);

}  // namespace gabarito

#endif  // GABARITO_RULES_DOCUMENTOS_H
