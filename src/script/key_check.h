// A look at a key string before it is played.
#ifndef SCRIPT_KEY_CHECK_H
#define SCRIPT_KEY_CHECK_H

#include <optional>
#include <string>
#include <string_view>

namespace gabarito::script {

// The names in braces that the key-string language does not know, such as {TABB}, in one line in UTF-8 with
// what it does instead: it types the first character. Nothing when all are known.
std::optional<std::string> UnknownKeyNames(std::u16string_view keys);

}  // namespace gabarito::script

#endif  // SCRIPT_KEY_CHECK_H
