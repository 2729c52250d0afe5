#include "gabarito/control/especie.h"

#include <algorithm>
#include <array>

#include "gabarito/combo/cidades.h"
#include "gabarito/combo/estados.h"
#include "gabarito/combo/palavras.h"
#include "gabarito/layouts/cep.h"
#include "gabarito/layouts/data.h"
#include "gabarito/layouts/def_usr.h"
#include "gabarito/layouts/hora.h"
#include "gabarito/layouts/intervalo_numerico.h"
#include "gabarito/layouts/mes_ano.h"
#include "gabarito/layouts/texto_simples.h"
#include "gabarito/value/datas.h"
#include "gabarito/value/documentos.h"
#include "gabarito/value/listas.h"
#include "gabarito/value/numeros.h"
#include "gabarito/value/texto_e_contato.h"

namespace gabarito {
namespace {

void LayoutSimples(Campo& c) { AjustaComoTextoSimples(c, 0); }

// 16 digits and three blanks.
void LayoutDeCartao(Campo& c) { AjustaComoTextoSimples(c, 19); }

void LayoutDefUsr(Campo& c) {
  c.mMaxLength = 64;
  AjustaComoDefUsr(c);
}

void MascaraDesconhecida(Campo& c, std::u16string_view) {
  c.Dialogs->Beep();
  c.Dialogs->MsgBox(u"Erro na propriedade TEXT - máscara não definida!\r\nContacte o autor.", kMsgCritical,
                    u"Erro em Gabarito");
}

constexpr RegraDeTecla kTodas{};
constexpr RegraDeTecla kNenhumaTecla{.teclas = Teclas::kNenhuma};
constexpr RegraDeTecla kLetras{.teclas = Teclas::kLetras};
constexpr RegraDeTecla kDigitos{.teclas = Teclas::kDigitos};
constexpr RegraDeTecla kNumero{.teclas = Teclas::kDigitos, .tambem = u",."};
constexpr RegraDeTecla kData{.teclas = Teclas::kDigitos, .limites = {31, 12}};
constexpr RegraDeTecla kMesAno{.teclas = Teclas::kDigitos, .limites = {12, -1}};
constexpr RegraDeTecla kHora{.teclas = Teclas::kDigitos, .limites = {23, 59}};
constexpr RegraDeTecla kCEP{.teclas = Teclas::kDigitos, .saltos = u"-"};
constexpr RegraDeTecla kDocumento{.teclas = Teclas::kDigitos, .saltos = u"/-"};
constexpr RegraDeTecla kCNPJ{.teclas = Teclas::kDigitos, .saltos = u"/-", .lugaresDeLetra = 12};
constexpr RegraDeTecla kTelefone{.teclas = Teclas::kTelefone, .tambem = u"+-()#* "};
constexpr RegraDeTecla kCartao{.teclas = Teclas::kDigitos, .tambem = u" "};

constexpr Especie kPadrao = {0, LayoutSimples, MascaraDesconhecida, SaiDoTextoEmMaiusculas, kTodas};

// clang-format off
constexpr EspecieDescrita kDescritas[] = {
    {{gbNenhuma, LayoutSimples, CarregaTexto, SaiDoTextoEmMaiusculas, kTodas},
     "gbNenhuma", "free text, ends in capitals"},
    {{gbLetra, LayoutSimples, CarregaLetra, SaiDaLetra, kLetras},
     "gbLetra", "letters only"},
    {{gbAlfanumerico, LayoutSimples, CarregaTexto, SaiDoAlfanumerico, kTodas},
     "gbAlfanumerico", "letters and digits"},
    {{gbData, AjustaComoData, CarregaData, SaiDaData, kData},
     "gbData", "a date: day, month, year"},
    {{gbDataAtual, AjustaComoData, CarregaData, SaiDaDataAtual, kNenhumaTecla},
     "gbDataAtual", "today, whatever is typed"},
    {{gbMesAno, AjustaComoMesAno, CarregaMesAno, SaiDoMesAno, kMesAno},
     "gbMesAno", "month and year"},
    {{gbHora, AjustaComoHora, CarregaHora, SaiDaHora, kHora},
     "gbHora", "hour and minute"},
    {{gbInteiro, LayoutSimples, CarregaInteiro, SaiDoInteiro, kDigitos},
     "gbInteiro", "an integer"},
    {{gbReal, LayoutSimples, CarregaReal, SaiDoReal, kNumero},
     "gbReal", "a real number"},
    {{gbMoeda, LayoutSimples, CarregaReal, SaiDoReal, kNumero},
     "gbMoeda", "a money amount, two decimals"},
    {{gbCEP, AjustaComoCEP, CarregaCEP, SaiDoCEP, kCEP},
     "gbCEP", "a postal code: five digits and three"},
    {{gbTelefone, LayoutSimples, CarregaTelefone, SaiDoTelefone, kTelefone},
     "gbTelefone", "a telephone number"},
    {{gbDefUsr, LayoutDefUsr, CarregaDefUsr, SaiDoDefUsr, kTodas, FimDaEscrita::kPula},
     "gbDefUsr", "a mask of the author's own, in MaskText"},
    {{gbVersao, LayoutSimples, CarregaReal, SaiDoReal, kNumero},
     "gbVersao", "a version number"},
    {{gbListaNoCombo, AjustaComoListaDePalavrasNoCombo, CarregaListaNoCombo, SaiDaLista, kTodas},
     "gbListaNoCombo", "one word of the list in ComboItens"},
    {{gbCPF, LayoutSimples, CarregaCPF, SaiDoCPF, kDocumento},
     "gbCPF", "a CPF: personal taxpayer number"},
    {{gbCNPJ, LayoutSimples, CarregaCNPJ, SaiDoCNPJ, kCNPJ},
     "gbCNPJ", "a CNPJ: company taxpayer number, or its root"},
    {{gbCidadeEstado, AjustaComoCidadeEstado, CarregaCidadeEstado, SaiDaCidadeEstado, kLetras},
     "gbCidadeEstado", "a city typed and a state chosen"},
    {{gbEstado, AjustaComoEstado, CarregaDaLista, SaiDaLista, kTodas},
     "gbEstado", "a state chosen from the list"},
    {{gbCidadeEstadoPopulado, AjustaComoCidadeEstadoPopulado, CarregaDaLista, SaiDaLista, kTodas},
     "gbCidadeEstadoPopulado", "a municipality chosen from the list"},
    {{gbCartaoCredito, LayoutDeCartao, CarregaCartaoCredito, SaiDoCartaoCredito, kCartao},
     "gbCartaoCredito", "a credit card number"},
    {{gbIntervaloNumerico, AjustaComoIntervaloNumerico, CarregaIntervaloNumerico, SaiDoIntervaloNumerico, kDigitos},
     "gbIntervaloNumerico", "a range of two numbers"},
    {{gbEnderecoEmail, LayoutSimples, CarregaTexto, SaiDoEnderecoEmail, kTodas},
     "gbEnderecoEmail", "an e-mail address"},
};
// clang-format on

constexpr auto kEspecies = [] {
  std::array<Especie, std::size(kDescritas)> especies{};
  std::copy(std::begin(kDescritas), std::end(kDescritas), especies.begin());
  return especies;
}();

constexpr std::int32_t kPrimeira = gbNenhuma;
constexpr std::int32_t kUltima = gbEnderecoEmail;

// Position of each value in kEspecies, kNenhumaPosicao for a number between that is no kind.
constexpr std::uint8_t kNenhumaPosicao = 255;
constexpr auto kPosicoes = [] {
  std::array<std::uint8_t, kUltima - kPrimeira + 1> posicoes{};
  posicoes.fill(kNenhumaPosicao);
  std::uint8_t posicao = 0;
  for (const Especie& especie : kEspecies) posicoes[especie.valor - kPrimeira] = posicao++;
  return posicoes;
}();

constexpr bool EmOrdemECompletas() {
  std::int32_t anterior = 0;
  for (const EspecieDescrita& e : kDescritas) {
    if (e.valor <= anterior || e.nome.empty() || e.toma.empty()) return false;
    anterior = e.valor;
  }
  return true;
}
static_assert(kEspecies.size() == 23);
static_assert(EmOrdemECompletas());

}  // namespace

std::span<const EspecieDescrita> Especies() { return kDescritas; }

const Especie& EspecieDe(std::int32_t mascara) {
  if (mascara < kPrimeira || mascara > kUltima) return kPadrao;
  const std::uint8_t posicao = kPosicoes[static_cast<std::size_t>(mascara - kPrimeira)];
  return posicao == kNenhumaPosicao ? kPadrao : kEspecies[posicao];
}

}  // namespace gabarito
