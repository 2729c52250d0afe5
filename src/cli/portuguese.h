// The table of the program's texts in Portuguese.
#ifndef CLI_PORTUGUESE_H
#define CLI_PORTUGUESE_H

#include <span>
#include <string_view>

namespace gabarito::cli {

struct Phrase {
  std::string_view english;     // "{}" stands for any text
  std::string_view portuguese;  // {1} is the first of them, {1!} the same in Portuguese
};

// The first that fits counts: a row that fits more stands further down.
std::span<const Phrase> PortuguesePhrases();

}  // namespace gabarito::cli

#endif  // CLI_PORTUGUESE_H
