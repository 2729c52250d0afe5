#include <algorithm>
#include <iomanip>
#include <ostream>

#include "cli/commands.h"
#include "cli/names.h"
#include "gabarito/control/especie.h"
#include "gabarito/control/interface.h"
#include "script/json.h"

namespace gabarito::cli {
namespace {

// English words for the program; the table itself speaks the language of the field.
std::string_view NameOf(TipoDeMembro tipo) {
  switch (tipo) {
    case TipoDeMembro::kMetodo:
      return "method";
    case TipoDeMembro::kFuncao:
      return "function";
    case TipoDeMembro::kPropriedade:
      return "property";
    case TipoDeMembro::kSoLeitura:
      return "read-only property";
  }
  return "";
}

void AddArguments(Json& listed, const Membro& member) {
  for (const Parametro& argument : member.parametros) {
    listed["arguments"].push_back(
        {{"name", argument.nome}, {"type", argument.tipo}, {"byReference", argument.porReferencia}});
  }
}

void WriteJson(std::ostream& out) {
  Json kinds = Json::array();
  for (const EspecieDescrita& kind : Especies()) {
    kinds.push_back({{"name", kind.nome}, {"number", kind.valor}, {"takes", kind.toma}});
  }
  // In an order that stays, which hosts that list properties keep.
  Json members = Json::array();
  for (const Membro& member : MembrosDaInterface()) {
    members.push_back({{"name", member.nome}, {"is", NameOf(member.tipo)}});
    if (!member.valor.empty()) members.back()["type"] = member.valor;
    AddArguments(members.back(), member);
  }
  Json events = Json::array();
  for (const Membro& event : Eventos()) {
    events.push_back({{"name", event.nome}});
    AddArguments(events.back(), event);
  }
  Json enumerations = Json::object();
  for (const Enumeracao& enumeration : Enumeracoes()) {
    for (const Constante& constant : enumeration.constantes) {
      enumerations[std::string(enumeration.nome)][std::string(constant.nome)] = constant.valor;
    }
  }
  out << Json{{"masks", kinds}, {"members", members}, {"events", events}, {"enumerations", enumerations}}
             .dump(2)
      << '\n';
}

void WriteText(Language language, std::ostream& out) {
  // Columns, so that a person reads it as a table and a script by its blanks.
  std::size_t widest = 0;
  for (const EspecieDescrita& kind : Especies()) widest = std::max(widest, kind.nome.size());
  for (const EspecieDescrita& kind : Especies()) {
    out << std::left << std::setw(static_cast<int>(widest)) << kind.nome << "  " << kind.valor << "  "
        << Told(kind.toma, language) << '\n';
  }
}

}  // namespace

int RunMasks(ListForm form, Language language, std::ostream& out) {
  form == ListForm::kJson ? WriteJson(out) : WriteText(language, out);
  return kNothingRefused;
}

}  // namespace gabarito::cli
