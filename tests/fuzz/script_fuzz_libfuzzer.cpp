// Longer runs: cmake -DGABARITO_FUZZ=ON with clang, then script_fuzz CORPUS_DIRECTORY.
#include <cstdio>
#include <cstdlib>

#include "script_fuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace gabarito::cli;
  std::size_t used = 0;
  const Dice dice = [&](std::uint32_t sides) {
    std::uint32_t roll = used < size ? data[used++] : 0;
    if (sides > 256) roll = roll * 256 + (used < size ? data[used++] : 0);
    return roll % sides;
  };
  Attack attack;
  std::string script;
  std::string line = "new";
  while (used < size) {
    script += line + '\n';
    if (const std::string fault = attack.Run(line); !fault.empty()) {
      std::fprintf(stderr, "%s\nafter\n%s", fault.c_str(), script.c_str());
      std::abort();
    }
    line = RandomLine(dice);
  }
  return 0;
}
