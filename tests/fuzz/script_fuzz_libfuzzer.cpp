// Longer runs, on what libFuzzer finds: scripts as text, seeded with the stories. CMakeLists.txt tells how.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <random>
#include <string_view>
#include <vector>

#include "script_fuzz.h"

namespace gabarito::cli {
namespace {

// A story is longer than what one fault needs, and half of it is what it expects.
constexpr std::size_t kLinesAScript = 24;

// The actions of a script, without its remarks.
std::vector<std::string> Actions(std::string_view script) {
  std::vector<std::string> actions;
  while (!script.empty()) {
    const std::size_t end = std::min(script.find('\n'), script.size());
    const std::string_view line = script.substr(0, end);
    if (!line.empty() && line.front() != '#') actions.emplace_back(line);
    script.remove_prefix(std::min(end + 1, script.size()));
  }
  return actions;
}

}  // namespace
}  // namespace gabarito::cli

// The stack of each allocation is a tenth of the time; a finding is run again with
// ASAN_OPTIONS=malloc_context_size=30 to see it.
extern "C" const char* __asan_default_options() { return "malloc_context_size=1"; }

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t most);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace gabarito::cli;
  Attack attack;
  std::string script = "new\n";
  attack.Run("new");
  for (const std::string& line : Actions({reinterpret_cast<const char*>(data), size})) {
    script += line + '\n';
    if (const std::string fault = attack.Run(line); !fault.empty()) {
      std::fprintf(stderr, "%s\nafter\n%s", fault.c_str(), script.c_str());
      std::abort();
    }
  }
  return 0;
}

// Works on lines, and now and then on bytes: a stretch of the script in which one line is new or gone.
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t most,
                                               unsigned seed) {
  using namespace gabarito::cli;
  std::minstd_rand generator(seed);
  const Dice dice = [&](std::uint32_t sides) { return static_cast<std::uint32_t>(generator() % sides); };
  if (dice(3) == 0) return LLVMFuzzerMutate(data, size, most);
  std::vector<std::string> lines = Actions({reinterpret_cast<const char*>(data), size});
  if (lines.size() > kLinesAScript) {
    const auto first = lines.begin() + dice(static_cast<std::uint32_t>(lines.size() - kLinesAScript));
    lines = {first, first + kLinesAScript};
  }
  const auto at = lines.begin() + dice(static_cast<std::uint32_t>(lines.size() + 1));
  if (at != lines.end() && dice(3) == 0) {
    lines.erase(at);
  } else {
    lines.insert(at, RandomLine(dice));
  }
  std::string script;
  for (const std::string& line : lines) script += line + '\n';
  script.resize(std::min(script.size(), most));
  std::memcpy(data, script.data(), script.size());
  return script.size();
}
