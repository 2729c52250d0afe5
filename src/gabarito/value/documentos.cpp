#include "gabarito/value/documentos.h"

#include "gabarito/platform/text.h"
#include "gabarito/rules/documentos.h"
#include "gabarito/rules/formatadores.h"
#include "gabarito/rules/primitivas.h"
#include "gabarito/state/mensagens.h"

namespace gabarito {
namespace {

constexpr std::u16string_view kCaracteresDeCartao = u"0123456789 ";
// A card text as the user may type it: 16 digits alone, or in four groups parted by blanks.
constexpr std::int32_t kMenorCartao = 16;
constexpr std::int32_t kMaiorCartao = 19;
constexpr std::u16string_view kCartaoInvalido = u"O número de cartão de crédito informado é inválido!";

// The exit of a document that is punctuated and then judged as it stands in the box.
template <class Formata, class Valida>
void SaiDoDocumento(Campo& c, Formata formata, Valida valida, std::u16string_view mensagem) {
  PulaErros pula;
  c.mValor.clear();
  if (pula.Se([&] { return c.mEntrada1->Text().empty(); })) return;
  pula([&] { c.mEntrada1->Text(formata(c.mEntrada1->Text())); });
  if (pula.Se([&] { return !valida(c.mEntrada1->Text()); })) {
    RecusaEVolta(c, pula, mensagem, c.mEntrada1);
    return;
  }
  pula([&] { c.mValor = c.mEntrada1->Text(); });
}

}  // namespace

void CarregaCPF(Campo& c, std::u16string_view dado) { c.mEntrada1->Text(FormataComoCPF(dado)); }

void CarregaCNPJ(Campo& c, std::u16string_view dado) {
  c.mEntrada1->Text(c.mCNPJAlfanumerico ? FormataComoCNPJAlfanumerico(dado) : FormataComoCNPJ(dado));
}

void CarregaCartaoCredito(Campo& c, std::u16string_view dado) { c.mEntrada1->Text(FormataComoCartao(dado)); }

void SaiDoCPF(Campo& c) { SaiDoDocumento(c, FormataComoCPF, ValidaCPF, u"O CPF informado é inválido."); }

void SaiDoCNPJ(Campo& c) {
  constexpr std::u16string_view kInvalido = u"O CNPJ informado é inválido.";
  if (c.mCNPJAlfanumerico) {
    SaiDoDocumento(c, FormataComoCNPJAlfanumerico, ValidaCNPJAlfanumerico, kInvalido);
  } else {
    SaiDoDocumento(c, FormataComoCNPJ, ValidaCNPJ, kInvalido);
  }
}

void SaiDoCartaoCredito(Campo& c) {
  PulaErros pula;
  c.mValor.clear();
  if (pula.Se([&] { return c.mEntrada1->Text().empty(); })) return;
  pula([&] { c.mEntrada1->Text(SoCaracteres(c.mEntrada1->Text(), kCaracteresDeCartao)); });
  if (pula.Se([&] {
        const std::int32_t tamanho = Len(c.mEntrada1->Text());
        return tamanho < kMenorCartao || tamanho > kMaiorCartao;
      })) {
    RecusaEVolta(c, pula, kCartaoInvalido, c.mEntrada1);
    return;
  }
  pula([&] { c.mEntrada1->Text(FormataComoCartao(c.mEntrada1->Text())); });
  if (pula.Se([&] { return !ValidaCartaoCredito(c.mEntrada1->Text(), *c.Regional); })) {
    RecusaEVolta(c, pula, kCartaoInvalido, c.mEntrada1);
    return;
  }
  pula([&] { c.mValor = c.mEntrada1->Text(); });
}

}  // namespace gabarito
