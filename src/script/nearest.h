// The word that a person may have meant.
#ifndef SCRIPT_NEAREST_H
#define SCRIPT_NEAREST_H

#include <span>
#include <string>
#include <string_view>

namespace gabarito::script {

// Of `words` the one that takes the fewest changes (of a character, or a swap of two neighbours) to become
// `word`, whatever the case; the first of several. Empty when each takes more than a third of its length and
// more than one.
std::string_view Nearest(std::string_view word, std::span<const std::string_view> words);

// "; did you mean X?", or nothing: the end of a message about an unknown word.
std::string DidYouMean(std::string_view word, std::span<const std::string_view> words);

}  // namespace gabarito::script

#endif  // SCRIPT_NEAREST_H
