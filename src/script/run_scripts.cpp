#include <cerrno>
#include <filesystem>
#include <fstream>
#include <istream>
#include <ostream>
#include <system_error>
#include <utility>

#include "script/json.h"
#include "script/script.h"

namespace gabarito::script {
namespace {

constexpr std::string_view kStages = "#@ ";
// Some editors put it in front of a text in UTF-8.
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

struct File {
  std::string name;
  std::istream& lines;
};

}  // namespace

bool IsFor(std::string_view firstLine, std::string_view stage) {
  if (firstLine.ends_with('\r')) firstLine.remove_suffix(1);
  firstLine.remove_prefix(std::min(firstLine.find_first_not_of(" \t"), firstLine.size()));
  if (!firstLine.starts_with(kStages)) return true;
  std::string_view rest = firstLine.substr(kStages.size());
  while (!rest.empty()) {
    const std::size_t end = rest.find(' ');
    if (rest.substr(0, end) == stage) return true;
    rest = end == std::string_view::npos ? std::string_view() : rest.substr(end + 1);
  }
  return false;
}

namespace {

// What the run of one file needs beside the file.
struct Run {
  const MakeStage& makeStage;
  std::ostream& out;
  std::ostream& err;
  std::string_view program;
  bool named;  // which file it is, is told
};

bool Play(const File& file, const Run& run) {
  const auto told = [&]() -> std::ostream& {
    run.out.flush();
    run.err << run.program << ": ";
    if (run.named) run.err << file.name << ": ";
    return run.err;
  };
  const std::unique_ptr<Stage> stage = run.makeStage();
  std::string line;
  bool first = true;
  std::unique_ptr<Script> script;
  std::size_t number = 1;
  for (; std::getline(file.lines, line); ++number) {
    if (std::exchange(first, false)) {
      if (line.starts_with(kByteOrderMark)) line.erase(0, kByteOrderMark.size());
      if (!IsFor(line, stage->Name())) {
        told() << "skipped, it is not for " << stage->Name() << '\n';
        return true;
      }
      if (run.named) run.out << Json({{"file", file.name}}).dump() << '\n';
      script = std::make_unique<Script>(*stage, run.out);
      script->onRemark = [&](const std::string& remark) {
        told() << "line " << number << ": " << remark << '\n';
      };
    }
    try {
      script->Line(line);
    } catch (const UsageError& fault) {
      told() << "line " << number << ": " << fault.what() << '\n';
      return false;
    }
  }
  if (first && run.named) run.out << Json({{"file", file.name}}).dump() << '\n';
  return true;
}

}  // namespace

int RunScripts(const std::vector<std::string>& files, const MakeStage& makeStage, std::istream& in,
               std::ostream& out, std::ostream& err, std::string_view program) {
  const Run run{makeStage, out, err, program, files.size() > 1};
  if (files.empty()) return Play({"-", in}, run) ? 0 : 2;
  for (const std::string& name : files) {
    if (name == "-") {
      if (!Play({name, in}, run)) return 2;
      continue;
    }
    errno = 0;
    std::ifstream lines(name);
    // A directory opens as a file and then reads as an empty one.
    if (lines && std::filesystem::is_directory(name)) errno = EISDIR;
    if (errno != 0) {
      out.flush();
      err << program << ": cannot open " << name << ": " << std::generic_category().message(errno) << '\n';
      return 2;
    }
    if (!Play({name, lines}, run)) return 2;
  }
  return 0;
}

}  // namespace gabarito::script
