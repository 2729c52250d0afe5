#include "script/key_check.h"

#include <algorithm>
#include <vector>

#include "gabarito/keyinject/key_names.h"
#include "hosts/kit/utf8.h"

namespace gabarito::script {

std::optional<std::string> UnknownKeyNames(std::u16string_view keys) {
  std::vector<std::u16string_view> unknown;
  bool braces_end = true;
  bool groups_end = true;
  for (std::size_t at = 0; at < keys.size(); ++at) {
    if (keys[at] == u'(' && groups_end) {
      // Braces in a group are plain characters.
      const std::size_t end = keys.find(u')', at);
      groups_end = end != std::u16string_view::npos;
      if (groups_end) at = end;
    } else if (keys[at] == u'{' && braces_end) {
      // Not from the next character: {}} names the closing brace.
      const std::size_t end = keys.find(u'}', at + 2);
      braces_end = end != std::u16string_view::npos;
      if (!braces_end) continue;
      const std::u16string_view token = keys.substr(at + 1, end - at - 1);
      const std::u16string_view name = token.substr(0, token.find(u' '));
      const bool known = name.size() < 2 || KeyNameToVk(name) != 0;
      if (!known && std::find(unknown.begin(), unknown.end(), name) == unknown.end()) unknown.push_back(name);
      at = end;
    }
  }
  if (unknown.empty()) return std::nullopt;
  std::string line = "no key is called ";
  for (const std::u16string_view name : unknown) {
    line.append(name == unknown.front() ? "{" : ", {").append(kit::ToUtf8(name)).append("}");
  }
  return line + ": its first character is typed";
}

}  // namespace gabarito::script
