#include "hosts/kit/numbered_properties.h"

#include <vector>

#include "gabarito/platform/erro.h"
#include "gabarito/platform/number.h"

namespace gabarito::kit {
namespace {

constexpr std::int32_t kNoSuchMember = 438;

Variant Words(std::u16string_view joined) {
  std::vector<Variant> words;
  if (joined.empty()) return Empty{};
  for (;;) {
    const std::size_t end = joined.find(u'\0');
    words.emplace_back(std::u16string(joined.substr(0, end)));
    if (end == std::u16string_view::npos) return MakeArray(std::move(words));
    joined.remove_prefix(end + 1);
  }
}

std::u16string Decimal(std::int32_t number) { return NumberToText(number, u","); }

}  // namespace

void SetProperty(Gabarito& field, Property property, std::int32_t number, std::u16string_view text) {
  switch (property) {
    case Property::kMask:
      return field.Mask(number);
    case Property::kMaskText:
      return field.MaskText(text);
    case Property::kMaxLength:
      return field.MaxLength(static_cast<std::int16_t>(number));
    case Property::kComboItens:
      return field.ComboItens(Words(text));
    case Property::kEnabled:
      return field.Enabled(number != 0);
    case Property::kText:
      return field.Text(text);
    case Property::kUsarFundoPastel:
      return field.UsarFundoPastel(number != 0);
    case Property::kPreencherDatasInvalidasComDataDeHoje:
      return field.PreencherDatasInvalidasComDataDeHoje(number != 0);
    case Property::kAppearance:
      return field.Appearance(number);
    case Property::kTrataEnterComoTab:
      return field.TrataEnterComoTab(number != 0);
    case Property::kCNPJAlfanumerico:
      return field.CNPJAlfanumerico(number != 0);
    case Property::kComboListIndex:
      return field.ComboListIndex(static_cast<std::int16_t>(number));
    case Property::kComboListCount:
      break;
  }
  Fail(kNoSuchMember);
}

std::u16string GetProperty(Gabarito& field, Property property) {
  switch (property) {
    case Property::kMask:
      return Decimal(field.Mask());
    case Property::kMaskText:
      return field.MaskText();
    case Property::kMaxLength:
      return Decimal(field.MaxLength());
    case Property::kEnabled:
      return Decimal(field.Enabled() ? 1 : 0);
    case Property::kText:
      return field.Text();
    case Property::kAppearance:
      return Decimal(field.Appearance());
    case Property::kComboListIndex:
      return Decimal(field.ComboListIndex());
    case Property::kComboListCount:
      return Decimal(field.ComboListCount());
    default:
      Fail(kNoSuchMember);
  }
}

}  // namespace gabarito::kit
