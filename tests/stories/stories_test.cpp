// Whole stories: each file of this folder is a script whose expected transcript stands between its lines.
//
// A line that begins with "#= " is what the lines above it write, one for each line of the transcript. It is
// a comment to the program, so a story can also be run by hand: gabarito script tests/stories/cpf.txt. With
// GABARITO_STORIES_RECORD set the files are written anew from what happens: read the difference.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "cli/script/script.h"

namespace gabarito::cli {
namespace {

constexpr std::string_view kExpected = "#= ";

std::vector<std::string> LinesOf(std::istream& in) {
  std::vector<std::string> lines;
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

class Story : public testing::TestWithParam<std::filesystem::path> {};

TEST_P(Story, HappensAsTold) {
  std::ifstream file(GetParam());
  const std::vector<std::string> lines = LinesOf(file);
  ASSERT_FALSE(lines.empty()) << GetParam();
  std::stringstream out;
  Script script(out);
  std::string recorded;
  for (std::size_t i = 0; i < lines.size();) {
    const std::string& action = lines[i++];
    recorded += action + '\n';
    ASSERT_NO_THROW(script.Line(action)) << "line " << i << ": " << action;
    std::vector<std::string> expected;
    while (i < lines.size() && lines[i].starts_with(kExpected)) {
      expected.push_back(lines[i++].substr(kExpected.size()));
    }
    const std::vector<std::string> happened = LinesOf(out);
    out.str({});
    out.clear();
    for (const std::string& line : happened) recorded.append(kExpected).append(line) += '\n';
    if (std::getenv("GABARITO_STORIES_RECORD") == nullptr) {
      EXPECT_EQ(happened, expected) << GetParam().filename() << ", above line " << i + 1 << ": " << action;
    }
  }
  if (std::getenv("GABARITO_STORIES_RECORD") != nullptr) std::ofstream(GetParam()) << recorded;
}

std::vector<std::filesystem::path> Stories() {
  std::vector<std::filesystem::path> files;
  for (const auto& entry : std::filesystem::directory_iterator(GABARITO_STORIES)) {
    if (entry.path().extension() == ".txt" && entry.path().filename() != "CMakeLists.txt") {
      files.push_back(entry.path());
    }
  }
  std::sort(files.begin(), files.end());
  return files;
}

INSTANTIATE_TEST_SUITE_P(Of, Story, testing::ValuesIn(Stories()),
                         [](const auto& story) { return story.param.stem().string(); });

}  // namespace
}  // namespace gabarito::cli
