// The commands of the program that need no screen, each as one function with its options.
//
// Each returns the exit status of the program: 0, or 1 when the field refused something. What the person who
// typed the command got wrong is thrown as UsageError; a file or stream that fails as std::system_error.
#ifndef CLI_COMMANDS_H
#define CLI_COMMANDS_H

#include <iosfwd>
#include <optional>
#include <string>

#include "cli/field_options.h"
#include "cli/language.h"

namespace gabarito::cli {

inline constexpr int kNothingRefused = 0;
inline constexpr int kRefused = 1;
inline constexpr int kFailed = 2;

enum class ListForm { kText, kJson };

// Lists the kinds, what they take in `language`; as JSON, which is the same in each, with the members of the
// public class.
int RunMasks(ListForm form, Language language, std::ostream& out);

struct FieldCommandOptions {
  FieldOptions field;
  std::optional<std::string> text;  // UTF-8; no value is loaded without it
  std::optional<std::string> keys;  // UTF-8, in the key-string language
};

// Loads the value, plays the keys into the field, leaves it, and writes the value that it gives. A message
// box, which its default button answers, becomes a line "title: text" on `err`; one that comes again at once
// is not told again. A text of which the field takes nothing, without a word, is told there too.
int RunField(const FieldCommandOptions& options, std::ostream& out, std::ostream& err);

struct BatchOptions {
  FieldOptions field;
  std::string file;  // empty or "-": the descriptor `in` of RunBatch
};

// Puts each line of the input through one field and writes a line for it to the descriptor `out`: the input,
// the value and the message, parted by TAB. Lines may be of any length; memory grows with the longest alone.
int RunBatch(const BatchOptions& options, int in, int out);

}  // namespace gabarito::cli

#endif  // CLI_COMMANDS_H
