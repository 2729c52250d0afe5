#include "script/bag_json.h"

#include <cmath>
#include <limits>

#include "hosts/kit/utf8.h"
#include "script/json.h"

namespace gabarito::script {
namespace {

Json FontToJson(const StdFont& font) {
  Json json = {{"Name", kit::ToUtf8(font.Name)}};
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
    Json operator()(const std::u16string& v) const { return kit::ToUtf8(v); }
    Json operator()(const FontRef& v) const { return v == nullptr ? Json(nullptr) : FontToJson(*v); }
    Json operator()(const std::shared_ptr<const VariantArray>&) const { return nullptr; }
  } visitor;
  return std::visit(visitor, value);
}

Variant ValueFromJson(const std::string& key, const Json& json) {
  constexpr auto kLeast = std::numeric_limits<std::int32_t>::min();
  constexpr auto kMost = std::numeric_limits<std::int32_t>::max();
  if (json.is_string()) return kit::ToUtf16(json.get<std::string>()).value_or(u"");
  if (json.is_boolean()) return json.get<bool>();
  if (json.is_null()) return Null{};
  if (json.is_number_integer() && json >= kLeast && json <= kMost) return json.get<std::int32_t>();
  if (json.is_number()) return json.get<double>();
  if (json.is_object()) return FontFromJson(json);
  throw UsageError("the value of \"" + key + "\" is an array");
}

}  // namespace

Json ToJson(const kit::MemoryBag& bag) {
  Json json = Json::object();
  for (const auto& [name, value] : bag.Values()) json[kit::ToUtf8(name)] = ValueToJson(value);
  return json;
}

kit::MemoryBag BagFromJson(std::string_view json) {
  const Json parsed = Json::parse(json, nullptr, false);
  if (parsed.is_discarded()) throw UsageError("the bag is not valid JSON");
  if (!parsed.is_object()) throw UsageError("the bag is not a JSON object");
  kit::MemoryBag bag;
  for (const auto& [key, value] : parsed.items()) {
    bag.Append(kit::ToUtf16(key).value_or(u""), ValueFromJson(key, value));
  }
  return bag;
}

}  // namespace gabarito::script
