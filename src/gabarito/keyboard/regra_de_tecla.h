// What the key filter lets through under a kind: one value of plain data for each.
#ifndef GABARITO_KEYBOARD_REGRA_DE_TECLA_H
#define GABARITO_KEYBOARD_REGRA_DE_TECLA_H

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace gabarito {

enum class Teclas {
  kTodas,    // every key passes
  kNenhuma,  // no key passes
  kLetras,   // what EhLetra takes
  kDigitos,  // 0 to 9, and the characters of RegraDeTecla::tambem
  kTelefone  // as kDigitos, and the capitals A to Z
};

struct RegraDeTecla {
  Teclas teclas = Teclas::kTodas;
  std::u16string_view tambem = {};     // characters that pass beside the class
  std::u16string_view saltos = {};     // characters that jump to the next box
  std::int16_t limites[2] = {-1, -1};  // greatest number of the first and second box; -1 is none
  std::size_t lugaresDeLetra = 0;  // under CNPJAlfanumerico: places that a letter may take, from the first
};

enum class Desfecho { kPassa, kRejeita, kSalta };

// The outcome for a key whose character is `caractere`, typed into the box with `indice`, which would then
// hold `texto` followed by `caractere`. No allocation for a text of up to 64 characters.
Desfecho Julga(const RegraDeTecla& regra, std::int16_t indice, std::u16string_view texto, char16_t caractere);

// The capital of a letter that has its place under CNPJAlfanumerico: fewer letters and digits than the rule
// has places for it stand in `antes`, the text before the caret. 0 for any other character, and under any
// other rule.
char16_t LetraNoLugar(const RegraDeTecla& regra, std::u16string_view antes, char16_t caractere);

}  // namespace gabarito

#endif  // GABARITO_KEYBOARD_REGRA_DE_TECLA_H
