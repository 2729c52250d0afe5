#include "cli/language.h"

#include <cstdlib>
#include <vector>

#include "cli/names.h"
#include "cli/portuguese.h"

namespace gabarito::cli {
namespace {

constexpr std::string_view kAny = "{}";
// File names may hold any number of colons, and each may start a text of its own.
constexpr int kDeepest = 12;

// Whether the name of a locale is one of this language: pt, pt_BR, pt.UTF-8.
bool Speaks(std::string_view name, std::string_view language) {
  if (!name.starts_with(language)) return false;
  return name.size() == language.size() || name[2] == '_' || name[2] == '-' || name[2] == '.' ||
         name[2] == '@';
}

// What stands for each "{}" when `text` fits `pattern`; the shortest text that does.
bool Fits(std::string_view text, std::string_view pattern, std::vector<std::string_view>& found) {
  const std::size_t any = pattern.find(kAny);
  const std::string_view head = pattern.substr(0, any);
  if (!text.starts_with(head)) return false;
  text.remove_prefix(head.size());
  if (any == std::string_view::npos) return text.empty();
  pattern.remove_prefix(any + kAny.size());
  if (pattern.empty()) {
    found.push_back(text);
    return true;
  }
  const std::string_view next = pattern.substr(0, pattern.find(kAny));
  for (std::size_t end = text.find(next); end != std::string_view::npos; end = text.find(next, end + 1)) {
    found.push_back(text.substr(0, end));
    const std::size_t before = found.size();
    if (Fits(text.substr(end), pattern, found)) return true;
    found.resize(before - 1);
  }
  return false;
}

std::string InPortuguese(std::string_view english, int depth) {
  std::vector<std::string_view> found;
  for (const Phrase& phrase : PortuguesePhrases()) {
    found.clear();
    if (!Fits(english, phrase.english, found)) continue;
    std::string told;
    std::string_view rest = phrase.portuguese;
    while (!rest.empty()) {
      const bool place = rest.size() > 2 && rest[0] == '{' && rest[1] >= '1' && rest[1] <= '9';
      if (!place) {
        told += rest.front();
        rest.remove_prefix(1);
        continue;
      }
      const std::string_view part = found.at(static_cast<std::size_t>(rest[1] - '1'));
      const bool deeper = rest[2] == '!' && depth < kDeepest;
      told += deeper ? InPortuguese(part, depth + 1) : std::string(part);
      rest.remove_prefix(rest[2] == '!' ? 4 : 3);
    }
    return told;
  }
  return std::string(english);
}

}  // namespace

Language LanguageOfEnvironment() {
  for (const char* const name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    const char* const value = std::getenv(name);
    if (value == nullptr || *value == '\0') continue;
    return Speaks(value, "pt") ? Language::kPortuguese : Language::kEnglish;
  }
  return Language::kEnglish;
}

Language LanguageOf(std::string_view name) {
  if (Speaks(name, "pt")) return Language::kPortuguese;
  if (Speaks(name, "en")) return Language::kEnglish;
  throw UsageError("unknown language '" + std::string(name) + "'; the languages are en and pt");
}

std::string Told(std::string_view english, Language language) {
  return language == Language::kEnglish ? std::string(english) : InPortuguese(english, 0);
}

TellsIn::TellsIn(std::ostream& stream, Language language)
    : stream_(stream), before_(stream.rdbuf()), lines_(*before_, language) {
  stream_.rdbuf(&lines_);
}

TellsIn::~TellsIn() {
  lines_.Finish();
  stream_.rdbuf(before_);
}

void TellsIn::Lines::Finish() {
  const std::string told = Told(line_, language_);
  to_.sputn(told.data(), static_cast<std::streamsize>(told.size()));
  line_.clear();
}

TellsIn::Lines::int_type TellsIn::Lines::overflow(int_type c) {
  if (traits_type::eq_int_type(c, traits_type::eof())) return traits_type::not_eof(c);
  if (c != '\n') {
    line_ += traits_type::to_char_type(c);
    return c;
  }
  Finish();
  return to_.sputc('\n');
}

}  // namespace gabarito::cli
