#include "gabarito/control/especie.h"

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

constexpr Especie kPadrao = {0, "", "", LayoutSimples, MascaraDesconhecida, SaiDoTextoEmMaiusculas, kTodas};

// clang-format off
constexpr Especie kEspecies[] = {
    {gbNenhuma, "gbNenhuma", "free text, ends in capitals",
     LayoutSimples, CarregaTexto, SaiDoTextoEmMaiusculas, kTodas},
    {gbLetra, "gbLetra", "letters only",
     LayoutSimples, CarregaLetra, SaiDaLetra, kLetras},
    {gbAlfanumerico, "gbAlfanumerico", "letters and digits",
     LayoutSimples, CarregaTexto, SaiDoAlfanumerico, kTodas},
    {gbData, "gbData", "a date: day, month, year",
     AjustaComoData, CarregaData, SaiDaData, kData},
    {gbDataAtual, "gbDataAtual", "today, whatever is typed",
     AjustaComoData, CarregaData, SaiDaDataAtual, kNenhumaTecla},
    {gbMesAno, "gbMesAno", "month and year",
     AjustaComoMesAno, CarregaMesAno, SaiDoMesAno, kMesAno},
    {gbHora, "gbHora", "hour and minute",
     AjustaComoHora, CarregaHora, SaiDaHora, kHora},
    {gbInteiro, "gbInteiro", "an integer",
     LayoutSimples, CarregaInteiro, SaiDoInteiro, kDigitos},
    {gbReal, "gbReal", "a real number",
     LayoutSimples, CarregaReal, SaiDoReal, kNumero},
    {gbMoeda, "gbMoeda", "a money amount, two decimals",
     LayoutSimples, CarregaReal, SaiDoReal, kNumero},
    {gbCEP, "gbCEP", "a postal code: five digits and three",
     AjustaComoCEP, CarregaCEP, SaiDoCEP, kCEP},
    {gbTelefone, "gbTelefone", "a telephone number",
     LayoutSimples, CarregaTelefone, SaiDoTelefone, kTelefone},
    {gbDefUsr, "gbDefUsr", "a mask of the author's own, in MaskText",
     LayoutDefUsr, CarregaDefUsr, SaiDoDefUsr, kTodas, FimDaEscrita::kPula},
    {gbVersao, "gbVersao", "a version number",
     LayoutSimples, CarregaReal, SaiDoReal, kNumero},
    {gbListaNoCombo, "gbListaNoCombo", "one word of the list in ComboItens",
     AjustaComoListaDePalavrasNoCombo, CarregaListaNoCombo, SaiDaLista, kTodas},
    {gbCPF, "gbCPF", "a CPF: personal taxpayer number",
     LayoutSimples, CarregaCPF, SaiDoCPF, kDocumento},
    {gbCNPJ, "gbCNPJ", "a CNPJ: company taxpayer number, or its root",
     LayoutSimples, CarregaCNPJ, SaiDoCNPJ, kCNPJ},
    {gbCidadeEstado, "gbCidadeEstado", "a city typed and a state chosen",
     AjustaComoCidadeEstado, CarregaCidadeEstado, SaiDaCidadeEstado, kLetras},
    {gbEstado, "gbEstado", "a state chosen from the list",
     AjustaComoEstado, CarregaDaLista, SaiDaLista, kTodas},
    {gbCidadeEstadoPopulado, "gbCidadeEstadoPopulado", "a municipality chosen from the list",
     AjustaComoCidadeEstadoPopulado, CarregaDaLista, SaiDaLista, kTodas},
    {gbCartaoCredito, "gbCartaoCredito", "a credit card number",
     LayoutDeCartao, CarregaCartaoCredito, SaiDoCartaoCredito, kCartao},
    {gbIntervaloNumerico, "gbIntervaloNumerico", "a range of two numbers",
     AjustaComoIntervaloNumerico, CarregaIntervaloNumerico, SaiDoIntervaloNumerico, kDigitos},
    {gbEnderecoEmail, "gbEnderecoEmail", "an e-mail address",
     LayoutSimples, CarregaTexto, SaiDoEnderecoEmail, kTodas},
};
// clang-format on

constexpr std::int32_t kPrimeira = gbNenhuma;
constexpr std::int32_t kUltima = gbEnderecoEmail;

// Position of each value in kEspecies, -1 for a number between that is no kind.
constexpr auto kPosicoes = [] {
  std::array<std::int8_t, kUltima - kPrimeira + 1> posicoes{};
  posicoes.fill(-1);
  std::int8_t posicao = 0;
  for (const Especie& especie : kEspecies) posicoes[especie.valor - kPrimeira] = posicao++;
  return posicoes;
}();

constexpr bool EmOrdemECompletas() {
  std::int32_t anterior = 0;
  for (const Especie& e : kEspecies) {
    if (e.valor <= anterior || e.nome.empty() || e.toma.empty()) return false;
    anterior = e.valor;
  }
  return true;
}
static_assert(std::size(kEspecies) == 23);
static_assert(EmOrdemECompletas());

}  // namespace

std::span<const Especie> Especies() { return kEspecies; }

const Especie& EspecieDe(std::int32_t mascara) {
  if (mascara < kPrimeira || mascara > kUltima) return kPadrao;
  const std::int8_t posicao = kPosicoes[static_cast<std::size_t>(mascara - kPrimeira)];
  return posicao < 0 ? kPadrao : kEspecies[posicao];
}

}  // namespace gabarito
