// UTF-8, the edge of a host, to UTF-16, the texts of the field, and back.
#ifndef HOSTS_KIT_UTF8_H
#define HOSTS_KIT_UTF8_H

#include <optional>
#include <string>
#include <string_view>

namespace gabarito::kit {

// Appends; false, with what came before the fault appended, when `utf8` is not valid: overlong forms,
// surrogates, code points above 10FFFF and cut sequences are not.
bool AppendUtf16(std::string_view utf8, std::u16string& out);

// Nothing for a text that is not valid.
std::optional<std::u16string> ToUtf16(std::string_view utf8);

// A surrogate without its partner becomes U+FFFD.
void AppendUtf8(std::u16string_view text, std::string& out);
std::string ToUtf8(std::u16string_view text);

}  // namespace gabarito::kit

#endif  // HOSTS_KIT_UTF8_H
