#include "gabarito/platform/variant.h"

#include <algorithm>
#include <type_traits>
#include <utility>

#include "gabarito/platform/erro.h"
#include "gabarito/platform/number.h"
#include "gabarito/platform/text.h"

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
constexpr auto kRefusal = [](const auto&) -> Result { throw Erro(kTypeMismatch); };

bool IsSameWord(std::u16string_view a, std::u16string_view b) {
  return a.size() == b.size() && InStr(1, a, b, Comparison::kIgnoreCase) == 1;
}

// The number of a value that has one. A text is read the same on every machine: what one stored, another
// loads.
double ToNumber(const Variant& value) {
  return std::visit(Conversion{
                        kRefusal<double>,
                        [](Empty) -> double { return 0; },
                        [](bool truth) -> double { return truth ? -1 : 0; },
                        [](std::int32_t number) -> double { return number; },
                        [](double number) -> double { return number; },
                        [](const std::u16string& text) -> double { return ToDouble(text, Regional{}); },
                    },
                    value);
}

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

std::int32_t ToInt32(const Variant& value) { return ToInt32(ToNumber(value)); }

bool ToBoolean(const Variant& value) {
  if (const auto* const text = std::get_if<std::u16string>(&value)) {
    if (IsSameWord(*text, kTrue)) return true;
    if (IsSameWord(*text, kFalse)) return false;
  }
  return ToNumber(value) != 0;
}

FontRef ToFont(const Variant& value) {
  const auto* const font = std::get_if<FontRef>(&value);
  if (font == nullptr) throw Erro(kTypeMismatch);
  return *font;
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
