#include <gtest/gtest.h>

#include <random>

#include "script_fuzz.h"

namespace gabarito::cli {
namespace {

constexpr std::uint32_t kRounds = 600;
constexpr int kLinesARound = 60;

TEST(ScriptFuzz, NoLineBreaksTheField) {
  for (std::uint32_t seed = 1; seed <= kRounds; ++seed) {
    std::mt19937 generator(seed);
    const Dice dice = [&](std::uint32_t sides) { return static_cast<std::uint32_t>(generator() % sides); };
    Attack attack;
    std::string script;
    for (int i = 0; i < kLinesARound; ++i) {
      const std::string line = i == 0 ? "new" : RandomLine(dice);
      script += line.size() < 500 ? line + '\n' : line.substr(0, 500) + "...\n";
      const std::string fault = attack.Run(line);
      ASSERT_EQ(fault, "") << "seed " << seed << ", after\n" << script;
    }
  }
}

}  // namespace
}  // namespace gabarito::cli
