#include "gabarito/control/interface.h"

namespace gabarito {
namespace {

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
    {"pfTiraAcentoDeFrase", TipoDeMembro::kFuncao, "string"},
    {"Appearance", TipoDeMembro::kPropriedade, "int32"},
    {"Font", TipoDeMembro::kPropriedade, "font"},
    {"TrataEnterComoTab", TipoDeMembro::kPropriedade, "boolean"},
};

constexpr Membro kEventos[] = {{"KeyUp", TipoDeMembro::kMetodo, ""}};

}  // namespace

std::span<const Membro> MembrosDaInterface() { return kMembros; }
std::span<const Membro> Eventos() { return kEventos; }

}  // namespace gabarito
