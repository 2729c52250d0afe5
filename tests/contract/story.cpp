#include "story.h"

#include <algorithm>
#include <fstream>
#include <sstream>

#include "script/json.h"

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

struct Told {
  std::vector<Difference> differences;
  std::string recorded;
};

// A line that is not understood is a difference too.
std::string Carry(Script& script, const std::string& action) {
  try {
    script.Line(action);
  } catch (const UsageError& fault) {
    return std::string("not understood: ") + fault.what();
  }
  return {};
}

Told Play(const std::filesystem::path& story, Stage& stage) {
  std::ifstream file(story);
  const std::vector<std::string> lines = LinesOf(file);
  Told told;
  if (lines.empty()) told.differences.push_back({0, {}, "a story", "no lines"});
  std::stringstream out;
  Script script(stage, out);
  std::string untold;
  const auto expect = [&](std::size_t line, const std::string& action, const std::string& expected,
                          const std::string& happened) {
    if (happened != expected) told.differences.push_back({line, action, expected, happened});
  };
  for (std::size_t i = 0; i < lines.size();) {
    const std::string& action = lines[i++];
    if (action.starts_with(kAnswers)) {
      const std::string answers = action.substr(kAnswers.size());
      const std::string asked = Ask(script, out, answers);
      expect(i, action, answers, asked);
      told.recorded.append(kAnswers).append(asked) += '\n';
      continue;
    }
    told.recorded += action + '\n';
    if (action.starts_with(kUntold)) untold = action.substr(kUntold.size());
    expect(i, action, {}, Carry(script, action));
    const std::size_t line = i;
    std::string expected;
    if (i < lines.size() && lines[i].starts_with(kExpected)) expected = lines[i++].substr(kExpected.size());
    const std::string happened = Happened(out, untold);
    if (!happened.empty()) told.recorded.append(kExpected).append(happened) += '\n';
    expect(line, action, expected, happened);
  }
  return told;
}

}  // namespace

std::vector<std::filesystem::path> StoriesFor(std::string_view stage) {
  std::vector<std::filesystem::path> files;
  for (const auto& entry : std::filesystem::directory_iterator(GABARITO_STORIES)) {
    std::ifstream file(entry.path());
    std::string first;
    std::getline(file, first);
    if (IsFor(first, stage)) files.push_back(entry.path());
  }
  std::sort(files.begin(), files.end());
  return files;
}

std::vector<Difference> PlayStory(const std::filesystem::path& story, Stage& stage) {
  return Play(story, stage).differences;
}

void RecordStory(const std::filesystem::path& story, Stage& stage) {
  const std::string recorded = Play(story, stage).recorded;
  std::ofstream(story) << recorded;
}

}  // namespace gabarito::script
