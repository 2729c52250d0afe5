#include "cli/form/form_list.h"
#include "gabarito/state/mascaras.h"

namespace gabarito::cli {
namespace {

struct BuiltIn {
  std::u16string_view heading;
  const char* name;
  std::u16string_view label;
  EMascaras mask;
  const char* set;  // JSON
};

constexpr const char* kFlat = R"({"Appearance": 0})";

// In the order of a customer's record, not of the kinds: a form is read from top to bottom.
constexpr BuiltIn kBuiltIn[] = {
    {u"Cliente", "nome", u"Nome", gbNenhuma, "{}"},
    {u"", "profissao", u"Profissão", gbLetra, "{}"},
    {u"", "codigo", u"Código do cliente", gbAlfanumerico, "{}"},
    {u"", "cpf", u"CPF", gbCPF, "{}"},
    {u"", "cnpj", u"CNPJ", gbCNPJ, "{}"},
    {u"", "nascimento", u"Data de nascimento", gbData, R"({"PreencherDatasInvalidasComDataDeHoje": false})"},
    {u"", "preenchimento", u"Preenchido em", gbDataAtual, "{}"},
    {u"", "validade", u"Validade (mês/ano)", gbMesAno, "{}"},
    {u"Contato", "horario", u"Horário de contato", gbHora, kFlat},
    {u"", "telefone", u"Telefone", gbTelefone, kFlat},
    {u"", "email", u"E-mail", gbEnderecoEmail, "{}"},
    {u"", "cep", u"CEP", gbCEP, kFlat},
    // Flat, so that Tab visits the city before its state.
    {u"", "cidade", u"Cidade e UF", gbCidadeEstado, kFlat},
    {u"", "naturalidade", u"UF de nascimento", gbEstado, "{}"},
    {u"", "municipio", u"Município", gbCidadeEstadoPopulado, "{}"},
    {u"", "filial", u"Filial", gbListaNoCombo,
     R"({"ComboItens": ["Belo Horizonte", "Curitiba", "Recife", "Rio de Janeiro", "Salvador", "São Paulo"]})"},
    {u"Números", "dependentes", u"Dependentes", gbInteiro, "{}"},
    {u"", "altura", u"Altura (m)", gbReal, "{}"},
    {u"", "renda", u"Renda mensal (R$)", gbMoeda, "{}"},
    {u"", "cartao", u"Cartão de crédito", gbCartaoCredito, "{}"},
    {u"", "ramais", u"Faixa de ramais", gbIntervaloNumerico, "{}"},
    {u"", "versao", u"Versão do contrato", gbVersao, "{}"},
    {u"", "aniversario", u"Aniversário (dia/mês)", gbDefUsr, R"({"MaskText": "##/##"})"},
};

}  // namespace

FormList BuiltInForm() {
  FormList list;
  list.form.title = u"Um campo de cada espécie";
  for (const BuiltIn& row : kBuiltIn) {
    ListedField field{.spec = {}, .mask = row.mask, .set = Json::parse(row.set), .where = row.name};
    field.spec.name = row.name;
    field.spec.label = row.label;
    field.spec.heading = row.heading;
    list.fields.push_back(std::move(field));
  }
  return list;
}

}  // namespace gabarito::cli
