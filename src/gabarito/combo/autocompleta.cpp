#include "gabarito/combo/autocompleta.h"

#include <string>

#include "gabarito/combo/procura.h"
#include "gabarito/platform/pula_erros.h"
#include "gabarito/platform/text.h"

namespace gabarito {
namespace {

// The text that a search starts from, given the number of characters that stay in front of it. 64 covers
// the longest line of the city table: no allocation for such a list.
class TextoProcurado {
 public:
  TextoProcurado(std::u16string_view inicio, std::u16string_view resto) {
    const std::size_t tamanho = inicio.size() + resto.size();
    if (tamanho <= sizeof(curto_) / sizeof(curto_[0])) {
      inicio.copy(curto_, inicio.size());
      resto.copy(curto_ + inicio.size(), resto.size());
      texto_ = {curto_, tamanho};
    } else {
      longo_.append(inicio).append(resto);
      texto_ = longo_;
    }
  }
  std::u16string_view Texto() const { return texto_; }

 private:
  char16_t curto_[64];
  std::u16string longo_;
  std::u16string_view texto_;
};

// Selects the first entry that begins with `procurado`, with the rest of it marked; false if there is none.
bool Completa(ComboBox& cbo, std::u16string_view procurado) {
  const std::int32_t achado = cbo.SendMessageA(kCbFindString, -1, procurado);
  if (achado < 0) return false;
  cbo.ListIndex(static_cast<std::int16_t>(achado));
  cbo.SelStart(Len(procurado));
  cbo.SelLength(Len(cbo.Text()) - cbo.SelStart());
  return true;
}

}  // namespace

void AbreListaDoCombo(ComboBox& cbo) {
  PulaErros pula;
  pula([&] { cbo.SendMessageA(kCbShowDropDown, 1, {}); });
}

std::int16_t AutoCompleteComboBox(ComboBox& cbo, std::int16_t KeyAscii, bool limitarALista) {
  try {
    std::u16string_view inicio;
    char16_t digitado = 0;
    if (KeyAscii == kVkBack) {
      if (cbo.SelStart() <= 1) {
        cbo.Text(u"");
        return 0;
      }
      const std::u16string_view texto = cbo.Text();
      inicio = cbo.SelLength() == 0 ? Left(texto, Len(texto) - 1) : Left(texto, cbo.SelStart() - 1);
    } else if (KeyAscii < 32 || KeyAscii > 127) {
      return 0;
    } else {
      AbreListaDoCombo(cbo);
      inicio = cbo.SelLength() == 0 ? cbo.Text() : Left(cbo.Text(), cbo.SelStart());
      digitado = Chr(KeyAscii);
    }
    const TextoProcurado procurado(inicio, {&digitado, digitado == 0 ? std::size_t{0} : std::size_t{1}});
    if (Completa(cbo, procurado.Texto())) return 0;
    return limitarALista ? std::int16_t{0} : KeyAscii;
  } catch (const Erro&) {
    return KeyAscii;
  }
}

void Combo1_Click(Campo& c) { c.Combo1->ToolTipText(c.Combo1->Text()); }

void Combo1_KeyPress(Campo& c, std::int16_t& KeyAscii) {
  KeyAscii = AutoCompleteComboBox(*c.Combo1, KeyAscii, true);
}

void Combo1_KeyUp(Campo& c, std::int16_t& KeyCode, std::int16_t& Shift) {
  PulaErros pula;
  if (KeyCode == kVkDelete) {
    pula([&] { c.Combo1->Text(Left(c.Combo1->Text(), c.Combo1->SelStart())); });
    pula([&] { c.Combo1->SelStart(Len(c.Combo1->Text())); });
    KeyCode = 0;
  }
  pula([&] { c.KeyUp(KeyCode, Shift); });
}

void Combo1_LostFocus(Campo& c) {
  PulaErros pula;
  if (pula.Se([&] { return c.Combo1->Text().empty(); })) return;
  if (pula.Se([&] { return ExisteNoCombo(c, c.Combo1->Text()); })) return;
  pula([&] { c.Combo1->Text(ProcuraNoCombo(c, c.Combo1->Text())); });
}

}  // namespace gabarito
