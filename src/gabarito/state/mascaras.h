// The kinds that a field can take.
#ifndef GABARITO_STATE_MASCARAS_H
#define GABARITO_STATE_MASCARAS_H

#include <cstdint>

namespace gabarito {

// The values are the stored form of the property Mask: they never change.
enum EMascaras : std::int32_t {
  gbNenhuma = 100,
  gbLetra = 110,
  gbAlfanumerico = 120,
  gbData = 130,
  gbDataAtual = 131,
  gbMesAno = 140,
  gbHora = 150,
  gbInteiro = 160,
  gbReal = 170,
  gbMoeda = 180,
  gbCEP = 190,
  gbTelefone = 200,
  gbDefUsr = 210,
  gbVersao = 220,
  gbListaNoCombo = 230,
  gbCPF = 240,
  gbCNPJ = 250,
  gbCidadeEstado = 260,
  gbEstado = 261,
  gbCidadeEstadoPopulado = 262,
  gbCartaoCredito = 270,
  gbIntervaloNumerico = 280,
  gbEnderecoEmail = 290,
};

}  // namespace gabarito

#endif  // GABARITO_STATE_MASCARAS_H
