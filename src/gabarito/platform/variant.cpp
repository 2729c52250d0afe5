#include "gabarito/platform/variant.h"

#include <type_traits>
#include <utility>

#include "gabarito/platform/erro.h"
#include "gabarito/platform/number.h"

namespace gabarito {
namespace {

constexpr std::u16string_view kTrue = u"True";
constexpr std::u16string_view kFalse = u"False";

// The visitor of a conversion: the alternatives that it does not name have no such form.
template <class... Cases>
struct Conversion : Cases... {
  using Cases::operator()...;
};
template <class... Cases>
Conversion(Cases...) -> Conversion<Cases...>;

template <class Result>
constexpr auto kRefusal = [](const auto&) -> Result { Fail(kTypeMismatch); };

}  // namespace

Variant MakeArray(std::vector<Variant> items, std::int64_t lowerBound) {
  auto array = std::make_shared<VariantArray>();
  array->lowerBound = lowerBound;
  array->items = std::move(items);
  return std::shared_ptr<const VariantArray>(std::move(array));
}

std::u16string ToText(const Variant& value, std::u16string_view decimal) {
  return std::visit(Conversion{
                        kRefusal<std::u16string>,
                        [](Empty) { return std::u16string(); },
                        [](bool truth) { return std::u16string(truth ? kTrue : kFalse); },
                        [&](std::int32_t number) { return NumberToText(number, decimal); },
                        [&](double number) { return NumberToText(number, decimal); },
                        [](const std::u16string& text) { return text; },
                    },
                    value);
}

bool SameValue(const Variant& a, const Variant& b) {
  const auto* const first = std::get_if<FontRef>(&a);
  const auto* const second = std::get_if<FontRef>(&b);
  if (first == nullptr || second == nullptr) return a == b;
  // By look, since a default font is made anew each time that one is asked for.
  if (*first == nullptr || *second == nullptr) return *first == *second;
  return **first == **second;
}

}  // namespace gabarito
