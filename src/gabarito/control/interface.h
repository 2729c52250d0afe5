// Type information of the public class: its members in the order that stays the same from release to release,
// for hosts that list them.
#ifndef GABARITO_CONTROL_INTERFACE_H
#define GABARITO_CONTROL_INTERFACE_H

#include <cstdint>
#include <span>
#include <string_view>

namespace gabarito {

enum class TipoDeMembro { kMetodo, kFuncao, kPropriedade, kSoLeitura };

// Types are named "boolean", "color", "font", "int16", "string", "variant", or by the name of an enumeration.
struct Parametro {
  std::string_view nome;
  std::string_view tipo;
  bool porReferencia = false;  // what the callee leaves in it counts
};

struct Membro {
  std::string_view nome;
  TipoDeMembro tipo;
  std::string_view valor;  // type of the property or of the result; empty for a method without one
  std::span<const Parametro> parametros = {};  // of a method, function or event
};

// A named value of an enumeration.
struct Constante {
  std::string_view nome;
  std::int32_t valor;
};

struct Enumeracao {
  std::string_view nome;
  std::span<const Constante> constantes;
};

// The default interface.
std::span<const Membro> MembrosDaInterface();

// The event interface: KeyUp alone.
std::span<const Membro> Eventos();

// The enumerations that the members name, but for EMascaras, whose values are the rows of especie.h. A
// property with such a type takes any number: its own header says what a value beyond does.
std::span<const Enumeracao> Enumeracoes();

}  // namespace gabarito

#endif  // GABARITO_CONTROL_INTERFACE_H
