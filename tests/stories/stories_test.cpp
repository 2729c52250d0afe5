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

#include "cli/memory_stage.h"
#include "script/script.h"

namespace gabarito::script {
namespace {

constexpr std::string_view kExpected = "#= ";
constexpr std::string_view kAnswers = "#? ";
constexpr std::string_view kUntold = "#- ";

std::vector<std::string> LinesOf(std::istream& in) {
  std::vector<std::string> lines;
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

// Whether a line of the transcript is one of the events that `untold` names.
bool IsUntold(const std::string& line, const std::string& untold) {
  constexpr std::string_view kEvent = R"({"event":")";
  if (!line.starts_with(kEvent)) return false;
  const std::string name = line.substr(kEvent.size(), line.find('"', kEvent.size()) - kEvent.size());
  return (" " + untold + " ").find(" " + name + " ") != std::string::npos;
}

// What has been written since the last call, on one line.
std::string Happened(std::stringstream& out, const std::string& untold) {
  std::string happened;
  for (const std::string& line : LinesOf(out)) {
    if (!IsUntold(line, untold)) happened.append(happened.empty() ? "" : " ").append(line);
  }
  out.str({});
  out.clear();
  return happened;
}

// Asks for each answer of a line and gives back what comes, parted by a blank. An answer tells its question:
// {"get":"Mask","value":100} or {"child":"Combo1","Text":"SP"}.
std::string Ask(Script& script, std::stringstream& out, std::string_view answers) {
  std::string asked;
  for (std::size_t begin = 0; begin < answers.size();) {
    const std::size_t end = std::min(answers.find("} {", begin), answers.size() - 1) + 1;
    const Json answer = Json::parse(answers.substr(begin, end - begin));
    const auto first = answer.begin();
    std::string question = first.key() + " " + first->get<std::string>();
    if (first.key() == "child") question += " " + std::next(first).key();
    script.Line(question);
    asked.append(asked.empty() ? "" : " ").append(Happened(out, ""));
    begin = end + 1;
  }
  return asked;
}

class Story : public testing::TestWithParam<std::filesystem::path> {};

TEST_P(Story, HappensAsTold) {
  const bool record = std::getenv("GABARITO_STORIES_RECORD") != nullptr;
  std::ifstream file(GetParam());
  const std::vector<std::string> lines = LinesOf(file);
  ASSERT_FALSE(lines.empty()) << GetParam();
  if (!IsFor(lines[0], "memory")) GTEST_SKIP();
  std::stringstream out;
  cli::MemoryStage stage;
  Script script(stage, out);
  std::string recorded;
  std::string untold;
  for (std::size_t i = 0; i < lines.size();) {
    const std::string& action = lines[i++];
    if (action.starts_with(kAnswers)) {
      const std::string answers = action.substr(kAnswers.size());
      const std::string asked = Ask(script, out, answers);
      if (!record) {
        EXPECT_EQ(asked, answers) << GetParam().filename() << ", line " << i;
      }
      recorded.append(kAnswers).append(asked) += '\n';
      continue;
    }
    recorded += action + '\n';
    if (action.starts_with(kUntold)) untold = action.substr(kUntold.size());
    ASSERT_NO_THROW(script.Line(action)) << "line " << i << ": " << action;
    std::string expected;
    if (i < lines.size() && lines[i].starts_with(kExpected)) expected = lines[i++].substr(kExpected.size());
    const std::string happened = Happened(out, untold);
    if (!happened.empty()) recorded.append(kExpected).append(happened) += '\n';
    if (!record) {
      EXPECT_EQ(happened, expected) << GetParam().filename() << ", line " << i << ": " << action;
    }
  }
  if (record) std::ofstream(GetParam()) << recorded;
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
}  // namespace gabarito::script
