#include "script/properties.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <vector>

#include "gabarito/control/especie.h"
#include "gabarito/control/interface.h"
#include "hosts/kit/utf8.h"
#include "script/json.h"
#include "script/nearest.h"

namespace gabarito::script {

using kit::ToUtf16;
using kit::ToUtf8;
namespace {

std::string Quoted(std::string_view text) { return "'" + std::string(text) + "'"; }

std::u16string Text16(const Json& value, std::string_view name) {
  if (!value.is_string()) throw UsageError(std::string(name) + " takes a text");
  const auto text = ToUtf16(value.get_ref<const std::string&>());
  if (!text) throw UsageError(std::string(name) + " takes a text in UTF-8");
  return *text;
}

std::int64_t Number(const Json& value, std::string_view name, std::int64_t least, std::int64_t most) {
  if (!value.is_number_integer()) throw UsageError(std::string(name) + " takes a whole number");
  const auto number = value.is_number_unsigned() && value.get<std::uint64_t>() > std::uint64_t(most)
                          ? std::numeric_limits<std::int64_t>::max()
                          : value.get<std::int64_t>();
  if (number < least || number > most) {
    throw UsageError(std::string(name) + " takes a number from " + std::to_string(least) + " to " +
                     std::to_string(most));
  }
  return number;
}

template <class Integer>
Integer NumberOf(const Json& value, std::string_view name) {
  return static_cast<Integer>(
      Number(value, name, std::numeric_limits<Integer>::min(), std::numeric_limits<Integer>::max()));
}

bool Boolean(const Json& value, std::string_view name) {
  if (!value.is_boolean()) throw UsageError(std::string(name) + " takes true or false");
  return value.get<bool>();
}

std::int32_t MaskFromJson(const Json& value) {
  return value.is_string() ? MaskFromText(value.get_ref<const std::string&>())
                           : NumberOf<std::int32_t>(value, "Mask");
}

Color ColorFromJson(const Json& value) {
  // As a signed number too, the way stored forms carry colours with the top bit set.
  return static_cast<Color>(Number(value, "BackColor", std::numeric_limits<std::int32_t>::min(),
                                   std::numeric_limits<Color>::max()));
}

Variant ItemFromJson(const Json& item) {
  if (item.is_string()) return Text16(item, "ComboItens");
  if (item.is_boolean()) return item.get<bool>();
  if (item.is_null()) return Null{};
  if (item.is_number_integer() && item >= std::numeric_limits<std::int32_t>::min() &&
      item <= std::numeric_limits<std::int32_t>::max()) {
    return item.get<std::int32_t>();
  }
  if (item.is_number()) return item.get<double>();
  // An array as an element has no text form, whatever it holds: what it holds is left out, so that a line
  // of thousands of brackets does not become as many calls.
  if (item.is_array()) return MakeArray({});
  throw UsageError("an element of ComboItens is a text, a number, a boolean, null or an array");
}

Variant ItemsFromJson(const Json& value) {
  const Json* items = &value;
  std::int64_t lower = 0;
  if (value.is_object()) {
    if (!value.contains("items") || !value["items"].is_array()) {
      throw UsageError("ComboItens takes an array, or an object with lower and items");
    }
    items = &value["items"];
    if (value.contains("lower")) lower = NumberOf<std::int32_t>(value["lower"], "lower");
  }
  if (!items->is_array()) return ItemFromJson(value);
  std::vector<Variant> elements;
  for (const Json& item : *items) elements.push_back(ItemFromJson(item));
  return MakeArray(std::move(elements), lower);
}

Json ItemsToJson(const Variant& value) {
  const auto* array = std::get_if<std::shared_ptr<const VariantArray>>(&value);
  if (array == nullptr) return nullptr;
  Json items = Json::array();
  for (const Variant& item : (*array)->items) items.push_back(ToUtf8(ToText(item)));
  return items;
}

Json FontToJson(const FontRef& font) {
  return {{"Name", ToUtf8(font->Name)}, {"Size", LengthToJson(font->Size)}};
}

struct Property {
  std::string_view name;
  Json (*get)(Gabarito&);
  void (*set)(Gabarito&, const Json&);  // null: read only
};

constexpr Property kProperties[] = {
    {"Appearance", [](Gabarito& g) { return Json(g.Appearance()); },
     [](Gabarito& g, const Json& v) { g.Appearance(NumberOf<std::int32_t>(v, "Appearance")); }},
    {"BackColor", [](Gabarito& g) { return Json(g.BackColor()); },
     [](Gabarito& g, const Json& v) { g.BackColor(ColorFromJson(v)); }},
    {"CNPJAlfanumerico", [](Gabarito& g) { return Json(g.CNPJAlfanumerico()); },
     [](Gabarito& g, const Json& v) { g.CNPJAlfanumerico(Boolean(v, "CNPJAlfanumerico")); }},
    {"ComboItens", [](Gabarito& g) { return ItemsToJson(g.ComboItens()); },
     [](Gabarito& g, const Json& v) { g.ComboItens(ItemsFromJson(v)); }},
    {"ComboListCount", [](Gabarito& g) { return Json(g.ComboListCount()); }, nullptr},
    {"ComboListIndex", [](Gabarito& g) { return Json(g.ComboListIndex()); },
     [](Gabarito& g, const Json& v) { g.ComboListIndex(NumberOf<std::int16_t>(v, "ComboListIndex")); }},
    {"Enabled", [](Gabarito& g) { return Json(g.Enabled()); },
     [](Gabarito& g, const Json& v) { g.Enabled(Boolean(v, "Enabled")); }},
    {"Font", [](Gabarito& g) { return FontToJson(g.Font()); },
     [](Gabarito& g, const Json& v) { g.Font(FontFromJson(v)); }},
    {"Mask", [](Gabarito& g) { return Json(g.Mask()); },
     [](Gabarito& g, const Json& v) { g.Mask(MaskFromJson(v)); }},
    {"MaskText", [](Gabarito& g) { return Json(ToUtf8(g.MaskText())); },
     [](Gabarito& g, const Json& v) { g.MaskText(Text16(v, "MaskText")); }},
    {"MaxLength", [](Gabarito& g) { return Json(g.MaxLength()); },
     [](Gabarito& g, const Json& v) { g.MaxLength(NumberOf<std::int16_t>(v, "MaxLength")); }},
    {"PreencherDatasInvalidasComDataDeHoje",
     [](Gabarito& g) { return Json(g.PreencherDatasInvalidasComDataDeHoje()); },
     [](Gabarito& g, const Json& v) {
       g.PreencherDatasInvalidasComDataDeHoje(Boolean(v, "PreencherDatasInvalidasComDataDeHoje"));
     }},
    {"Text", [](Gabarito& g) { return Json(ToUtf8(g.Text())); },
     [](Gabarito& g, const Json& v) { g.Text(Text16(v, "Text")); }},
    {"TrataEnterComoTab", [](Gabarito& g) { return Json(g.TrataEnterComoTab()); },
     [](Gabarito& g, const Json& v) { g.TrataEnterComoTab(Boolean(v, "TrataEnterComoTab")); }},
    {"UsarFundoPastel", [](Gabarito& g) { return Json(g.UsarFundoPastel()); },
     [](Gabarito& g, const Json& v) { g.UsarFundoPastel(Boolean(v, "UsarFundoPastel")); }},
};

const Property& Find(std::string_view name) {
  for (const Property& property : kProperties) {
    if (property.name == name) return property;
  }
  throw UsageError("there is no property " + Quoted(name));
}

// The type of a property, as the type information names it.
std::string_view TypeOf(std::string_view name) {
  for (const Membro& member : MembrosDaInterface()) {
    if (member.nome == name) return member.valor;
  }
  return "string";
}

bool SameLetters(std::string_view a, std::string_view b) {
  const auto small = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [&](char x, char y) { return small(x) == small(y); });
}

// By its name in any case, with "gb" in front or without.
const EspecieDescrita* KindOf(std::string_view name) {
  for (const EspecieDescrita& kind : Especies()) {
    if (SameLetters(name, kind.nome) || SameLetters(name, kind.nome.substr(2))) return &kind;
  }
  return nullptr;
}

}  // namespace

std::int32_t MaskFromText(std::string_view text) {
  if (const auto* kind = KindOf(text)) return kind->valor;
  try {
    return static_cast<std::int32_t>(NumberFromText(text, "Mask", std::numeric_limits<std::int32_t>::min(),
                                                    std::numeric_limits<std::int32_t>::max()));
  } catch (const UsageError&) {
    std::vector<std::string_view> names;
    for (const EspecieDescrita& kind : Especies()) names.push_back(kind.nome);
    const bool prefixed = SameLetters(text.substr(0, 2), "gb");
    throw UsageError("unknown mask " + Quoted(text) +
                     ": take a name that 'gabarito masks' lists, or a number" +
                     DidYouMean((prefixed ? "" : "gb") + std::string(text), names));
  }
}

void SetProperty(Gabarito& field, std::string_view name, const Json& value) {
  const Property& property = Find(name);
  if (property.set == nullptr) throw UsageError(std::string(name) + " is read only");
  property.set(field, value);
}

void SetPropertyFromText(Gabarito& field, std::string_view name, std::string_view text) {
  Find(name);
  const std::string_view type = TypeOf(name);
  if (type == "string") {
    SetProperty(field, name, ToUtf8(TextFromText(text)));
  } else if (type == "boolean") {
    SetProperty(field, name, BooleanFromText(text, name));
  } else if (type == "EMascaras") {
    SetProperty(field, name, MaskFromText(text));
  } else if (type == "font" || type == "variant") {
    SetProperty(field, name, JsonFromText(text, name));
  } else {
    SetProperty(field, name,
                NumberFromText(text, name, std::numeric_limits<std::int64_t>::min(),
                               std::numeric_limits<std::int64_t>::max()));
  }
}

Json GetProperty(Gabarito& field, std::string_view name) { return Find(name).get(field); }

std::int64_t NumberFromText(std::string_view text, std::string_view what, std::int64_t least,
                            std::int64_t most) {
  std::string_view digits = text;
  const bool negative = digits.starts_with('-');
  if (negative) digits.remove_prefix(1);
  const int base = digits.starts_with("0x") || digits.starts_with("0X") ? 16 : 10;
  if (base == 16) digits.remove_prefix(2);
  std::int64_t number = 0;
  const auto [end, fault] = std::from_chars(digits.data(), digits.data() + digits.size(), number, base);
  if (fault == std::errc::invalid_argument || end != digits.data() + digits.size() ||
      digits.starts_with('-')) {
    throw UsageError(std::string(what) + " takes a number, not " + Quoted(text));
  }
  if (negative) number = -number;
  if (fault != std::errc() || number < least || number > most) {
    throw UsageError(std::string(what) + " is out of range: " + std::string(text));
  }
  return number;
}

bool BooleanFromText(std::string_view text, std::string_view what) {
  if (text == "true") return true;
  if (text == "false") return false;
  throw UsageError(std::string(what) + " takes true or false, not " + Quoted(text));
}

std::u16string TextFromText(std::string_view text) {
  if (text.starts_with('"')) return Text16(JsonFromText(text, "the text"), "the text");
  const auto converted = ToUtf16(text);
  if (!converted) throw UsageError("the text is not valid UTF-8");
  return *converted;
}

Json JsonFromText(std::string_view text, std::string_view what) {
  Json value = Json::parse(text, nullptr, false);
  if (value.is_discarded()) throw UsageError(std::string(what) + " is not valid JSON: " + std::string(text));
  return value;
}

FontRef FontFromJson(const Json& value) {
  if (!value.is_object()) throw UsageError("Font takes an object with Name, Size, Bold and Italic");
  auto font = std::make_shared<StdFont>();
  for (const auto& [key, part] : value.items()) {
    if (key == "Name") {
      font->Name = Text16(part, "Name");
    } else if (key == "Size") {
      if (!part.is_number()) throw UsageError("Size takes a number of points");
      font->Size = part.get<float>();
      if (!(font->Size > 0 && font->Size <= 1000)) throw UsageError("Size takes up to 1000 points");
    } else if (key == "Bold") {
      font->Bold = Boolean(part, "Bold");
    } else if (key == "Italic") {
      font->Italic = Boolean(part, "Italic");
    } else {
      throw UsageError("Font has no " + Quoted(key));
    }
  }
  return font;
}

Json LengthToJson(float length) {
  if (std::floor(length) == length && std::fabs(length) < 1e9F) return static_cast<std::int64_t>(length);
  return static_cast<double>(length);
}

float LengthFromText(std::string_view text) {
  constexpr float kMost = 1440e6F;
  // Not from_chars: not every standard library has it for this type.
  const std::string digits(text);
  char* end = nullptr;
  const float length = std::strtof(digits.c_str(), &end);
  const bool decimal = !text.empty() && text.find_first_not_of("0123456789-.eE") == std::string_view::npos;
  if (!decimal || end != digits.c_str() + digits.size() || !(std::fabs(length) <= kMost)) {
    throw UsageError("a length is a number of twips, not " + Quoted(text));
  }
  return length;
}

}  // namespace gabarito::script
