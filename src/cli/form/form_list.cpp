#include "cli/form/form_list.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fstream>
#include <limits>
#include <map>
#include <optional>
#include <sstream>
#include <system_error>

#include "cli/names.h"
#include "gabarito/platform/erro.h"
#include "script/nearest.h"

namespace gabarito::cli {
namespace {

constexpr std::array<std::string_view, 4> kFormKeys = {"title", "finish", "values", "fields"};
constexpr std::array<std::string_view, 2> kGroupKeys = {"group", "fields"};
constexpr std::array<std::string_view, 8> kFieldKeys = {"name",     "label",   "mask", "set",
                                                        "required", "default", "help", "placeholder"};

// As JSON, so that a line break in a name does not break the message in two.
std::string Quoted(std::string_view text) {
  return Json(text).dump(-1, ' ', false, Json::error_handler_t::replace);
}

[[noreturn]] void RefuseKey(std::string_view key, std::string_view what,
                            std::span<const std::string_view> known) {
  std::string list;
  for (const std::string_view word : known) list.append(list.empty() ? "" : ", ").append(word);
  throw UsageError("unknown key " + Quoted(key) + DidYouMean(key, known) + " (" + std::string(what) +
                   " has " + list + ")");
}

// A number as a name would be a different key in the output than in the input: "1" for 1.
std::string TextOf(const Json& value, std::string_view key) {
  if (!value.is_string()) throw UsageError(std::string(key) + " takes a text");
  return value.get<std::string>();
}

// The parser lets valid UTF-8 through only.
std::u16string WideTextOf(const Json& value, std::string_view key) {
  return ToUtf16(TextOf(value, key)).value();
}

std::int32_t MaskOf(const Json& value) {
  if (value.is_string()) return MaskFromText(value.get_ref<const std::string&>());
  using Limits = std::numeric_limits<std::int32_t>;
  if (!value.is_number_integer() || value < Limits::min() || value > Limits::max()) {
    throw UsageError("mask takes a name or a number of 32 bits");
  }
  return value.get<std::int32_t>();
}

// One text for the first box, or one for each.
std::vector<std::u16string> PlaceholdersOf(const Json& value) {
  if (!value.is_array()) return {WideTextOf(value, "placeholder")};
  std::vector<std::u16string> texts;
  for (const Json& text : value) texts.push_back(WideTextOf(text, "placeholder"));
  return texts;
}

void ReadMember(ListedField& field, const std::string& key, const Json& value) {
  terminal::FieldSpec& spec = field.spec;
  if (key == "name") {
    spec.name = TextOf(value, key);
  } else if (key == "label") {
    spec.label = WideTextOf(value, key);
  } else if (key == "mask") {
    field.mask = MaskOf(value);
  } else if (key == "set") {
    if (!value.is_object()) throw UsageError("set takes an object of properties");
    field.set = value;
  } else if (key == "required") {
    if (!value.is_boolean()) throw UsageError("required takes true or false");
    spec.required = value.get<bool>();
  } else if (key == "default") {
    spec.value = WideTextOf(value, key);
  } else if (key == "help") {
    spec.help = WideTextOf(value, key);
  } else if (key == "placeholder") {
    spec.placeholders = PlaceholdersOf(value);
  } else {
    RefuseKey(key, "a field", kFieldKeys);
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
    for (const auto& [key, member] : value.items()) ReadMember(field, key, member);
    if (!value.contains("mask")) throw UsageError("mask is missing");
  } catch (const UsageError& error) {
    throw UsageError(field.where + ": " + error.what());
  }
  terminal::FieldSpec& spec = field.spec;
  if (spec.name.empty())
    spec.name = spec.label.empty() ? "field_" + std::to_string(position) : ToUtf8(spec.label);
  if (spec.label.empty()) spec.label = ToUtf16(spec.name).value();
  return field;
}

// Fields, and groups of fields where they may stand.
enum class Items { kFieldsAndGroups, kFields };

void ReadItems(const Json& items, Items allowed, FormList& list) {
  if (!items.is_array()) throw UsageError("fields takes an array of fields");
  for (const Json& item : items) {
    if (!item.is_object() || !item.contains("group")) {
      list.fields.push_back(ReadField(item, list.fields.size() + 1));
      continue;
    }
    const std::string where = "group " + Quoted(TextOf(item["group"], "group"));
    if (allowed == Items::kFields) throw UsageError(where + ": stands inside another group");
    const std::size_t first = list.fields.size();
    for (const auto& [key, value] : item.items()) {
      if (key == "fields") ReadItems(value, Items::kFields, list);
      if (std::ranges::find(kGroupKeys, key) == kGroupKeys.end()) {
        throw UsageError(where + ": unknown key " + Quoted(key) + DidYouMean(key, kGroupKeys));
      }
    }
    if (list.fields.size() == first) throw UsageError(where + ": has no field");
    list.fields[first].spec.heading = WideTextOf(item["group"], "group");
  }
}

// Their values would else stand under one key.
std::map<std::string_view, ListedField*> ByName(std::vector<ListedField>& fields) {
  std::map<std::string_view, ListedField*> by_name;
  for (ListedField& field : fields) {
    const auto [place, added] = by_name.try_emplace(field.spec.name, &field);
    if (!added) throw UsageError(field.where + ": has the name of " + place->second->where);
  }
  return by_name;
}

// "line 3, column 7" of a place in a text, both counted from 1.
// The parser counts bytes, which no editor shows.
std::string PlaceOf(std::string_view text, std::size_t offset) {
  const std::string_view before = text.substr(0, offset);
  const auto line = 1 + std::count(before.begin(), before.end(), '\n');
  const std::size_t start = before.rfind('\n') + 1;  // 0 on the first line
  return "line " + std::to_string(line) + ", column " + std::to_string(before.size() - start + 1);
}

Json Parse(std::string_view text) {
  try {
    return Json::parse(text);
  } catch (const Json::parse_error& error) {
    throw UsageError("not valid JSON at " + PlaceOf(text, error.byte == 0 ? 0 : error.byte - 1));
  }
}

std::string ReadFile(const std::string& file) {
  errno = 0;
  std::ifstream in(file, std::ios::binary);
  std::ostringstream text;
  text << in.rdbuf();  // of a directory nothing can be read
  if (errno != 0) throw std::system_error(errno, std::generic_category(), "cannot read " + file);
  return text.str();
}

// What an earlier run of the form has given, or anything of that shape.
void TakeValues(const std::string& file, const std::map<std::string_view, ListedField*>& by_name) {
  const std::string text = ReadFile(file);
  try {
    const Json values = Parse(text);
    if (!values.is_object()) throw UsageError("takes an object of names and values");
    std::vector<std::string_view> names;
    names.reserve(by_name.size());
    for (const auto& [name, field] : by_name) names.push_back(name);
    for (const auto& [name, value] : values.items()) {
      const auto field = by_name.find(name);
      if (field == by_name.end()) {
        throw UsageError("there is no field " + Quoted(name) + DidYouMean(name, names));
      }
      field->second->spec.value = value.is_null() ? std::u16string() : WideTextOf(value, Quoted(name));
    }
  } catch (const UsageError& error) {
    throw UsageError(file + ": " + error.what());
  }
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

}  // namespace

FormList ReadFormList(std::string_view text, const std::filesystem::path& directory) {
  const Json json = Parse(text);
  FormList list;
  std::optional<std::string> values;
  if (json.is_object()) {
    // A list under a misspelt key would else be an empty form.
    for (const auto& [key, value] : json.items()) {
      if (key == "fields") {
        ReadItems(value, Items::kFieldsAndGroups, list);
      } else if (key == "title") {
        list.form.title = WideTextOf(value, key);
      } else if (key == "finish") {
        list.form.finish = WideTextOf(value, key);
      } else if (key == "values") {
        values = TextOf(value, key);
      } else {
        RefuseKey(key, "a form", kFormKeys);
      }
    }
  } else if (json.is_array()) {
    ReadItems(json, Items::kFieldsAndGroups, list);
  } else {
    throw UsageError("takes an array of fields, or an object with fields");
  }
  if (list.fields.empty()) throw UsageError("there is no field in the list");
  const auto by_name = ByName(list.fields);
  if (values) TakeValues((directory / *values).string(), by_name);
  return list;
}

FormList ReadFormListFile(const std::string& file) {
  const std::string text = ReadFile(file);
  try {
    FormList list = ReadFormList(text, std::filesystem::path(file).parent_path());
    for (ListedField& field : list.fields) field.where.insert(0, file + ": ");
    return list;
  } catch (const UsageError& error) {
    throw UsageError(file + ": " + error.what());
  }
}

terminal::FormSpec ForTerminal(FormList list) {
  terminal::FormSpec form = std::move(list.form);
  for (ListedField& field : list.fields) {
    terminal::FieldSpec spec = field.spec;
    spec.set_up = [listed = std::move(field)](Gabarito& shaped) {
      try {
        Shape(shaped, listed);
      } catch (const UsageError& error) {
        throw UsageError(listed.where + ": " + error.what());
      }
    };
    form.fields.push_back(std::move(spec));
  }
  return form;
}

}  // namespace gabarito::cli
