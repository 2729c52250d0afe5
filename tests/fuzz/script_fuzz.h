// Random lines of the script language, fed to the program's own reader, with the invariants of a field
// checked behind each. Whoever rolls the dice decides what comes: a seeded generator in the tests,
// libFuzzer's bytes in longer runs.
#ifndef GABARITO_TESTS_FUZZ_SCRIPT_FUZZ_H
#define GABARITO_TESTS_FUZZ_SCRIPT_FUZZ_H

#include <cstdint>
#include <functional>
#include <sstream>
#include <string>

#include "cli/memory_stage.h"
#include "script/script.h"

namespace gabarito::cli {

// A number from 0 to `sides` - 1.
using Dice = std::function<std::uint32_t(std::uint32_t sides)>;

// A line of a random action with random arguments; now and then one that is damaged.
std::string RandomLine(const Dice& dice);

// One field under attack.
class Attack {
 public:
  // Runs the line. Empty, or what is wrong: an exception that is no UsageError, or a broken invariant.
  std::string Run(std::string line);

 private:
  std::string BrokenInvariant(const std::string& line);

  std::ostringstream out_;
  MemoryStage stage_;
  script::Script script_{stage_, out_};
  std::u16string value_;  // mValor behind the line before
};

}  // namespace gabarito::cli

#endif  // GABARITO_TESTS_FUZZ_SCRIPT_FUZZ_H
