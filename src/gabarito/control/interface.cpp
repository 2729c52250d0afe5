#include "gabarito/control/interface.h"

namespace gabarito {
namespace {

constexpr Parametro kDeTiraAcento[] = {{"s", "string"}};
constexpr Parametro kDeKeyUp[] = {{"KeyCode", "int16", true}, {"Shift", "int16", true}};

constexpr Membro kMembros[] = {
    {"ApagaCampos", TipoDeMembro::kMetodo, ""},
    {"Sobre", TipoDeMembro::kMetodo, ""},
    {"MaxLength", TipoDeMembro::kPropriedade, "int16"},
    {"ComboItens", TipoDeMembro::kPropriedade, "variant"},
    {"ComboListCount", TipoDeMembro::kSoLeitura, "int16"},
    {"ComboListIndex", TipoDeMembro::kPropriedade, "int16"},
    {"Enabled", TipoDeMembro::kPropriedade, "boolean"},
    {"BackColor", TipoDeMembro::kPropriedade, "color"},
    {"Text", TipoDeMembro::kPropriedade, "string"},
    {"Mask", TipoDeMembro::kPropriedade, "EMascaras"},
    {"MaskText", TipoDeMembro::kPropriedade, "string"},
    {"UsarFundoPastel", TipoDeMembro::kPropriedade, "boolean"},
    {"PreencherDatasInvalidasComDataDeHoje", TipoDeMembro::kPropriedade, "boolean"},
    {"pfTiraAcentoDeFrase", TipoDeMembro::kFuncao, "string", kDeTiraAcento},
    {"Appearance", TipoDeMembro::kPropriedade, "Appearance"},
    {"Font", TipoDeMembro::kPropriedade, "font"},
    {"TrataEnterComoTab", TipoDeMembro::kPropriedade, "boolean"},
    {"CNPJAlfanumerico", TipoDeMembro::kPropriedade, "boolean"},
};

constexpr Membro kEventos[] = {{"KeyUp", TipoDeMembro::kMetodo, "", kDeKeyUp}};

constexpr Constante kAparencias[] = {{"Flat", 0}, {"3D", 1}};
constexpr Enumeracao kEnumeracoes[] = {{"Appearance", kAparencias}};

}  // namespace

std::span<const Membro> MembrosDaInterface() { return kMembros; }
std::span<const Membro> Eventos() { return kEventos; }
std::span<const Enumeracao> Enumeracoes() { return kEnumeracoes; }

}  // namespace gabarito
