// The state of one field: its children and services, and what it remembers.
//
// Every routine of the field is a free function over this struct, in the folder of its subsystem.
#ifndef GABARITO_STATE_CAMPO_H
#define GABARITO_STATE_CAMPO_H

#include <array>
#include <cstdint>
#include <memory>
#include <string>

#include "gabarito/platform/collection.h"
#include "gabarito/platform/host.h"
#include "gabarito/rules/arredonda.h"
#include "gabarito/state/evento_key_up.h"
#include "gabarito/state/mascaras.h"
#include "gabarito/state/referencia.h"

namespace gabarito {

// The children and the services come from the host. Invariants: after the first
// AplicaAparencia the three active boxes are set and belong to one array; mMaxLength is never negative;
// mValor is written by UserControl_ExitFocus alone.
struct Campo : Host {
  explicit Campo(const Host& host) : Host(host) {}
  Campo(const Campo&) = delete;
  Campo& operator=(const Campo&) = delete;

  std::unique_ptr<Collection> mComboItens;  // words of gbListaNoCombo; none before ComboItens is set
  std::int32_t mAppearance = 0;             // 1 is the 3D look; every other value the flat one
  bool mUsarFundoPastel = false;            // colour the focused box
  std::int32_t mMask = 0;                   // an EMascaras, or any other number
  bool mTeclaDeEdicao = false;              // the key in progress is Backspace, Delete, Ctrl+C or Ctrl+V
  std::u16string mValor;                    // the value as the last exit left it
  std::int16_t mSegmentos = 0;              // boxes that the key filter steps through
  std::int16_t mMaxLength = 0;              // longest text of the single-box layouts; 0 is no limit
  bool mPreencherDatasInvalidasComDataDeHoje = false;
  bool mTrataEnterComoTab = false;
  bool mCNPJAlfanumerico = false;                       // gbCNPJ takes letters
  Referencia<TextBox> mEntrada1, mEntrada2, mEntrada3;  // the active boxes: indices 0, 1, 2 of one array

  CacheDeArredonda arredonda;

  EventoKeyUp aoKeyUp;
  // Raises the public event. Both arguments hold afterwards what the program left in them.
  void KeyUp(std::int16_t& KeyCode, std::int16_t& Shift) { aoKeyUp.Levanta(KeyCode, Shift); }
  // The same for Enter that was turned into Tab and for a jump: 13 and 0.
  void KeyUpDeEnter();

  // The present moment and the reading of texts by the region of the host.
  Date Agora() const { return Clock->Now(); }
  bool EhData(std::u16string_view texto) const { return IsDate(texto, *Regional, Agora()); }
  // Raises 13 on a text that EhData refuses.
  Date ComoData(std::u16string_view texto) const { return CDate(texto, *Regional, Agora()); }
};

// The box of an array; raises 9 on an index outside 0 to 2, which only a host can make up.
inline TextBox& CaixaDe(const std::array<TextBox*, 3>& caixas, std::int16_t indice) {
  if (indice < 0 || indice > 2) Fail(kSubscriptOutOfRange);
  return *caixas[static_cast<std::size_t>(indice)];
}

}  // namespace gabarito

#endif  // GABARITO_STATE_CAMPO_H
