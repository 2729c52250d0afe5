// The word that a person may have meant.
#ifndef CLI_NEAREST_H
#define CLI_NEAREST_H

#include <span>
#include <string>
#include <string_view>

namespace gabarito::cli {

// Of `words` the one that takes the fewest changes of a character to become `word`, whatever the case; the
// first of several. Empty when each takes more than a third of its length and more than one.
std::string_view Nearest(std::string_view word, std::span<const std::string_view> words);

// "; did you mean X?", or nothing: the end of a message about an unknown word.
std::string DidYouMean(std::string_view word, std::span<const std::string_view> words);

}  // namespace gabarito::cli

#endif  // CLI_NEAREST_H
