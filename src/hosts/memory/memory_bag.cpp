#include "hosts/memory/memory_bag.h"

#include <cmath>
#include <limits>
#include <nlohmann/json.hpp>
#include <stdexcept>

#include "hosts/memory/utf8.h"

namespace gabarito::memory {
namespace {

using Json = nlohmann::ordered_json;

Json FontToJson(const StdFont& font) {
  Json json = {{"Name", ToUtf8(font.Name)}};
  if (std::floor(font.Size) == font.Size) {
    json["Size"] = static_cast<std::int64_t>(font.Size);
  } else {
    json["Size"] = static_cast<double>(font.Size);
  }
  if (font.Bold) json["Bold"] = true;
  if (font.Italic) json["Italic"] = true;
  return json;
}

Json ValueToJson(const Variant& value) {
  struct {
    Json operator()(Empty) const { return nullptr; }
    Json operator()(Null) const { return nullptr; }
    Json operator()(bool v) const { return v; }
    Json operator()(std::int32_t v) const { return v; }
    Json operator()(double v) const { return v; }
    Json operator()(const std::u16string& v) const { return ToUtf8(v); }
    Json operator()(const FontRef& v) const { return v == nullptr ? Json(nullptr) : FontToJson(*v); }
    Json operator()(const std::shared_ptr<const VariantArray>&) const { return nullptr; }
  } visitor;
  return std::visit(visitor, value);
}

std::u16string TextFromJson(const Json& json) { return ToUtf16(json.get<std::string>()).value_or(u""); }

FontRef FontFromJson(const std::string& key, const Json& json) {
  auto font = std::make_shared<StdFont>();
  for (const auto& [name, part] : json.items()) {
    if (name == "Name" && part.is_string()) {
      font->Name = TextFromJson(part);
    } else if (name == "Size" && part.is_number() && part > 0 && part <= 1000) {
      font->Size = part.get<float>();
    } else if (name == "Bold" && part.is_boolean()) {
      font->Bold = part.get<bool>();
    } else if (name == "Italic" && part.is_boolean()) {
      font->Italic = part.get<bool>();
    } else {
      throw std::invalid_argument("the font under \"" + key + "\" has no such " + name);
    }
  }
  return font;
}

Variant ValueFromJson(const std::string& key, const Json& json) {
  constexpr auto kLeast = std::numeric_limits<std::int32_t>::min();
  constexpr auto kMost = std::numeric_limits<std::int32_t>::max();
  if (json.is_string()) return TextFromJson(json);
  if (json.is_boolean()) return json.get<bool>();
  if (json.is_null()) return Null{};
  if (json.is_number_integer() && json >= kLeast && json <= kMost) return json.get<std::int32_t>();
  if (json.is_number()) return json.get<double>();
  if (json.is_object()) return FontFromJson(key, json);
  throw std::invalid_argument("the value of \"" + key + "\" is an array");
}

}  // namespace

Variant MemoryBag::ReadProperty(std::u16string_view key, const Variant& absent) const {
  for (const auto& [name, value] : values_) {
    if (name == key) return value;
  }
  return absent;
}

void MemoryBag::WriteProperty(std::u16string_view key, const Variant& value, const Variant& absent) {
  if (SameValue(value, absent)) return;
  Variant copy = value;
  // The live font goes on changing; the bag keeps what it was.
  if (const auto* font = std::get_if<FontRef>(&value); font != nullptr && *font != nullptr) {
    copy = std::make_shared<StdFont>(**font);
  }
  for (auto& [name, stored] : values_) {
    if (name != key) continue;
    stored = std::move(copy);
    return;
  }
  values_.emplace_back(key, std::move(copy));
}

std::string MemoryBag::ToJson() const {
  Json json = Json::object();
  for (const auto& [name, value] : values_) json[ToUtf8(name)] = ValueToJson(value);
  return json.dump();
}

MemoryBag MemoryBag::FromJson(std::string_view json) {
  const Json parsed = Json::parse(json, nullptr, false);
  if (parsed.is_discarded()) throw std::invalid_argument("the bag is not valid JSON");
  if (!parsed.is_object()) throw std::invalid_argument("the bag is not a JSON object");
  MemoryBag bag;
  for (const auto& [key, value] : parsed.items()) {
    bag.values_.emplace_back(ToUtf16(key).value_or(u""), ValueFromJson(key, value));
  }
  return bag;
}

}  // namespace gabarito::memory
