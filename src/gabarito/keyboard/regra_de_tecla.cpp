#include "gabarito/keyboard/regra_de_tecla.h"

#include <string>

#include "gabarito/rules/digitos.h"
#include "gabarito/rules/primitivas.h"

namespace gabarito {
namespace {

double ValorDoCandidato(std::u16string_view texto, char16_t caractere) {
  char16_t curto[65];
  if (texto.size() < sizeof(curto) / sizeof(curto[0])) {
    texto.copy(curto, texto.size());
    curto[texto.size()] = caractere;
    return Val({curto, texto.size() + 1});
  }
  return Val(std::u16string(texto) + caractere);
}

bool PassaNaClasse(const RegraDeTecla& regra, char16_t c) {
  switch (regra.teclas) {
    case Teclas::kTodas:
      return true;
    case Teclas::kNenhuma:
      return false;
    case Teclas::kLetras:
      return EhLetra({&c, 1});
    case Teclas::kTelefone:
      if (c >= u'A' && c <= u'Z') return true;
      [[fallthrough]];
    case Teclas::kDigitos:
      return EhDigito(c) || regra.tambem.find(c) != std::u16string_view::npos;
  }
  return true;
}

}  // namespace

Desfecho Julga(const RegraDeTecla& regra, std::int16_t indice, std::u16string_view texto,
               char16_t caractere) {
  if (!PassaNaClasse(regra, caractere)) {
    return regra.saltos.find(caractere) != std::u16string_view::npos ? Desfecho::kSalta : Desfecho::kRejeita;
  }
  if (indice < 0 || indice > 1 || regra.limites[indice] < 0) return Desfecho::kPassa;
  return ValorDoCandidato(texto, caractere) > regra.limites[indice] ? Desfecho::kRejeita : Desfecho::kPassa;
}

char16_t LetraNoLugar(const RegraDeTecla& regra, std::u16string_view antes, char16_t caractere) {
  const char16_t maiuscula = DigitoOuMaiuscula(caractere);
  if (maiuscula == 0 || EhDigito(caractere)) return 0;
  std::size_t ocupados = 0;
  for (std::size_t i = 0; i < antes.size() && ocupados < regra.lugaresDeLetra; ++i) {
    ocupados += DigitoOuMaiuscula(antes[i]) != 0;
  }
  return ocupados < regra.lugaresDeLetra ? maiuscula : u'\0';
}

}  // namespace gabarito
