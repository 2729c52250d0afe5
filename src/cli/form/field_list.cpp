#include "cli/form/field_list.h"

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <limits>
#include <map>
#include <sstream>
#include <system_error>

#include "cli/names.h"
#include "gabarito/platform/erro.h"
#include "gabarito/state/mascaras.h"

namespace gabarito::cli {
namespace {

struct BuiltIn {
  const char* name;
  std::u16string_view label;
  EMascaras mask;
  const char* set;  // JSON
};

constexpr const char* kFlat = R"({"Appearance": 0})";

// In the order of a customer's record, not of the kinds: a form is read from top to bottom.
constexpr BuiltIn kBuiltIn[] = {
    {"nome", u"Nome", gbNenhuma, "{}"},
    {"profissao", u"Profissão", gbLetra, "{}"},
    {"codigo", u"Código do cliente", gbAlfanumerico, "{}"},
    {"cpf", u"CPF", gbCPF, "{}"},
    {"cnpj", u"CNPJ", gbCNPJ, "{}"},
    {"nascimento", u"Data de nascimento", gbData, R"({"PreencherDatasInvalidasComDataDeHoje": false})"},
    {"preenchimento", u"Preenchido em", gbDataAtual, "{}"},
    {"validade", u"Validade (mês/ano)", gbMesAno, "{}"},
    {"horario", u"Horário de contato", gbHora, kFlat},
    {"telefone", u"Telefone", gbTelefone, kFlat},
    {"email", u"E-mail", gbEnderecoEmail, "{}"},
    {"cep", u"CEP", gbCEP, kFlat},
    // Flat, so that Tab visits the city before its state.
    {"cidade", u"Cidade e UF", gbCidadeEstado, kFlat},
    {"naturalidade", u"UF de nascimento", gbEstado, "{}"},
    {"municipio", u"Município", gbCidadeEstadoPopulado, "{}"},
    {"filial", u"Filial", gbListaNoCombo,
     R"({"ComboItens": ["Belo Horizonte", "Curitiba", "Recife", "Rio de Janeiro", "Salvador", "São Paulo"]})"},
    {"dependentes", u"Dependentes", gbInteiro, "{}"},
    {"altura", u"Altura (m)", gbReal, "{}"},
    {"renda", u"Renda mensal (R$)", gbMoeda, "{}"},
    {"cartao", u"Cartão de crédito", gbCartaoCredito, "{}"},
    {"ramais", u"Faixa de ramais", gbIntervaloNumerico, "{}"},
    {"versao", u"Versão do contrato", gbVersao, "{}"},
    {"aniversario", u"Aniversário (dia/mês)", gbDefUsr, R"({"MaskText": "##/##"})"},
};

// As JSON, so that a line break in a name does not break the message in two.
std::string Quoted(std::string_view text) {
  return Json(text).dump(-1, ' ', false, Json::error_handler_t::replace);
}

// A number as a name would be a different key in the output than in the input: "1" for 1.
std::string TextOf(const Json& value, std::string_view key) {
  if (!value.is_string()) throw UsageError(std::string(key) + " takes a text");
  return value.get<std::string>();
}

std::int32_t MaskOf(const Json& value) {
  if (value.is_string()) return MaskFromText(value.get_ref<const std::string&>());
  using Limits = std::numeric_limits<std::int32_t>;
  if (!value.is_number_integer() || value < Limits::min() || value > Limits::max()) {
    throw UsageError("mask takes a name or a number of 32 bits");
  }
  return value.get<std::int32_t>();
}

void ReadMember(ListedField& field, const std::string& key, const Json& value) {
  if (key == "name") {
    field.name = TextOf(value, key);
  } else if (key == "label") {
    field.label = ToUtf16(TextOf(value, key)).value();  // the parser lets valid UTF-8 through only
  } else if (key == "mask") {
    field.mask = MaskOf(value);
  } else if (key == "set") {
    if (!value.is_object()) throw UsageError("set takes an object of properties");
    field.set = value;
  } else {
    throw UsageError("unknown key " + Quoted(key) + "; a field has name, label, mask and set");
  }
}

ListedField ReadField(const Json& value, std::size_t position) {
  ListedField field;
  field.where = "field " + std::to_string(position);
  // The name, or else the label, tells more than the position: the later of the two wins.
  if (value.is_object()) {
    for (const char* key : {"label", "name"}) {
      if (value.contains(key) && value[key].is_string()) {
        field.where =
            "field " + std::to_string(position) + " (" + Quoted(value[key].get<std::string>()) + ")";
      }
    }
  }
  try {
    if (!value.is_object()) throw UsageError("a field is an object");
    if (!value.contains("mask")) throw UsageError("mask is missing");
    for (const auto& [key, member] : value.items()) ReadMember(field, key, member);
  } catch (const UsageError& error) {
    throw UsageError(field.where + ": " + error.what());
  }
  if (field.name.empty())
    field.name = field.label.empty() ? "field_" + std::to_string(position) : ToUtf8(field.label);
  if (field.label.empty()) field.label = ToUtf16(field.name).value();
  return field;
}

// "line 3, column 7" of a place in a text, both counted from 1.
// The parser counts bytes, which no editor shows.
std::string PlaceOf(std::string_view text, std::size_t offset) {
  const std::string_view before = text.substr(0, offset);
  const auto line = 1 + std::count(before.begin(), before.end(), '\n');
  const std::size_t start = before.rfind('\n') + 1;  // 0 on the first line
  return "line " + std::to_string(line) + ", column " + std::to_string(before.size() - start + 1);
}

void Set(Gabarito& field, std::string_view name, const Json& value) {
  try {
    SetProperty(field, name, value);
  } catch (const Erro& erro) {
    throw UsageError(std::string(name) + ": error " + std::to_string(erro.Number()) + ", " +
                     ToUtf8(erro.Description()));
  }
}

// What a layout would undo.
bool ComesLast(std::string_view name) { return name == "Text" || name == "ComboListIndex"; }

// The kind takes its shape from words, pattern and length that are there.
void Shape(Gabarito& field, const ListedField& listed) {
  for (const auto& [name, value] : listed.set.items()) {
    if (!ComesLast(name)) Set(field, name, value);
  }
  field.Mask(listed.mask);
  for (const auto& [name, value] : listed.set.items()) {
    if (ComesLast(name)) Set(field, name, value);
  }
}

// Their values would else stand under one key, or under names that nobody has given.
void RefuseNamesGivenTwice(const std::vector<ListedField>& fields) {
  std::map<std::string_view, const ListedField*> by_name;
  for (const ListedField& field : fields) {
    const auto [place, added] = by_name.try_emplace(field.name, &field);
    if (!added) throw UsageError(field.where + ": has the name of " + place->second->where);
  }
}

Json Parse(std::string_view text) {
  try {
    return Json::parse(text);
  } catch (const Json::parse_error& error) {
    throw UsageError("not valid JSON at " + PlaceOf(text, error.byte == 0 ? 0 : error.byte - 1));
  }
}

}  // namespace

std::vector<ListedField> BuiltInFields() {
  std::vector<ListedField> fields;
  for (const BuiltIn& row : kBuiltIn) {
    fields.push_back({.name = row.name,
                      .label = std::u16string(row.label),
                      .mask = row.mask,
                      .set = Json::parse(row.set),
                      .where = row.name});
  }
  return fields;
}

std::vector<ListedField> ReadFieldList(std::string_view text) {
  const Json json = Parse(text);
  const Json* list = &json;
  if (json.is_object()) {
    // A list under a misspelt key would else be an empty form.
    for (const auto& [key, value] : json.items()) {
      if (key != "fields") throw UsageError("unknown key " + Quoted(key) + "; the list stands under fields");
      list = &value;
    }
  }
  if (!list->is_array()) throw UsageError("takes an array of fields, or an object with fields");
  if (list->empty()) throw UsageError("there is no field in the list");
  std::vector<ListedField> fields;
  for (const Json& value : *list) fields.push_back(ReadField(value, fields.size() + 1));
  RefuseNamesGivenTwice(fields);
  return fields;
}

std::vector<terminal::FieldSpec> ForForm(std::vector<ListedField> fields) {
  std::vector<terminal::FieldSpec> specs;
  for (ListedField& field : fields) {
    terminal::FieldSpec spec{.name = field.name, .label = field.label, .set_up = {}};
    spec.set_up = [listed = std::move(field)](Gabarito& shaped) {
      try {
        Shape(shaped, listed);
      } catch (const UsageError& error) {
        throw UsageError(listed.where + ": " + error.what());
      }
    };
    specs.push_back(std::move(spec));
  }
  return specs;
}

std::vector<ListedField> ReadFieldListFile(const std::string& file) {
  errno = 0;
  std::ifstream in(file, std::ios::binary);
  std::ostringstream text;
  text << in.rdbuf();  // of a directory nothing can be read
  if (errno != 0) throw std::system_error(errno, std::generic_category(), "cannot read " + file);
  try {
    std::vector<ListedField> fields = ReadFieldList(text.str());
    for (ListedField& field : fields) field.where.insert(0, file + ": ");
    return fields;
  } catch (const UsageError& error) {
    throw UsageError(file + ": " + error.what());
  }
}

}  // namespace gabarito::cli
