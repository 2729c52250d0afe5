// Type information of the public class: its members in their published order, for hosts that list them.
#ifndef GABARITO_CONTROL_INTERFACE_H
#define GABARITO_CONTROL_INTERFACE_H

#include <span>
#include <string_view>

namespace gabarito {

enum class TipoDeMembro { kMetodo, kFuncao, kPropriedade, kSoLeitura };

struct Membro {
  std::string_view nome;
  TipoDeMembro tipo;
  std::string_view valor;  // type of the property or of the result; empty for a method without one
};

// The default interface.
std::span<const Membro> MembrosDaInterface();

// The event interface: KeyUp alone.
std::span<const Membro> Eventos();

}  // namespace gabarito

#endif  // GABARITO_CONTROL_INTERFACE_H
