#include "cli/form/form_output.h"

#include <algorithm>

#include "cli/names.h"
#include "script/json.h"

namespace gabarito::cli {
namespace {

bool IsShellName(std::string_view name) {
  const auto letter = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_'; };
  const auto digit = [](char c) { return c >= '0' && c <= '9'; };
  return !name.empty() && letter(name[0]) &&
         std::ranges::all_of(name, [&](char c) { return letter(c) || digit(c); });
}

// Nothing has a meaning between single quotes but the quote itself.
std::string ShellQuoted(std::string_view text) {
  std::string quoted = "'";
  for (const char c : text) {
    if (c == '\'') {
      quoted += "'\\''";
    } else {
      quoted += c;
    }
  }
  return quoted + "'";
}

std::string OnOneLine(std::string_view text) {
  std::string line;
  for (const char c : text) {
    switch (c) {
      case '\t':
        line += "\\t";
        break;
      case '\n':
        line += "\\n";
        break;
      case '\r':
        line += "\\r";
        break;
      default:
        line += c;
    }
  }
  return line;
}

// A NUL inside a value would end it early.
std::string WithoutNul(std::string text) {
  std::erase(text, '\0');
  return text;
}

// Member by member: an object that keeps their order looks at all of them for each.
std::string AsJson(const std::vector<terminal::FieldValue>& values, bool nulls) {
  std::string object = "{";
  for (const terminal::FieldValue& value : values) {
    if (object.size() > 1) object += ",";
    object += Json(value.name).dump() + ":";
    object += value.empty && nulls ? "null" : Json(ToUtf8(value.text)).dump();
  }
  return object + "}\n";
}

}  // namespace

void CheckNames(const std::vector<terminal::FieldSpec>& fields, FormFormat format) {
  if (format != FormFormat::kEnv) return;
  for (const terminal::FieldSpec& field : fields) {
    if (IsShellName(field.name)) continue;
    throw UsageError("form: " + Json(field.name).dump() +
                     " is no name of a shell variable; --format env needs letters, digits and _");
  }
}

std::string Rendered(const std::vector<terminal::FieldValue>& values, const FormOutput& output) {
  if (output.format == FormFormat::kJson) return AsJson(values, output.nulls);
  std::string text;
  for (const terminal::FieldValue& value : values) {
    const std::string utf8 = WithoutNul(ToUtf8(value.text));
    if (output.format == FormFormat::kEnv) text += value.name + "=" + ShellQuoted(utf8) + "\n";
    if (output.format == FormFormat::kTsv) text += OnOneLine(value.name) + "\t" + OnOneLine(utf8) + "\n";
    if (output.format == FormFormat::kPrint0) text.append(utf8).push_back('\0');
  }
  return text;
}

}  // namespace gabarito::cli
