#include <cstddef>

#include "gabarito/platform/erro.h"
#include "gabarito/platform/text.h"

namespace gabarito {
namespace {

struct Range {
  char16_t low, high;
};

// Takes the next piece of a set off the pattern at `position`: one character, or two with a "-" between
// them. "[a-]" ends with a "-" that is no range. Raises 93 where the pattern ends inside the set.
Range NextRange(std::u16string_view pattern, std::size_t& position) {
  if (position >= pattern.size()) throw Erro(kInvalidPatternString);
  const char16_t low = pattern[position++];
  const bool isRange =
      position + 1 < pattern.size() && pattern[position] == u'-' && pattern[position + 1] != u']';
  if (!isRange) return {low, low};
  const char16_t high = pattern[position + 1];
  position += 2;
  return {low, high};
}

// In "[!]" nothing is left to exclude: it is the set of the "!".
bool IsExcluding(std::u16string_view pattern, std::size_t position) {
  return position + 1 < pattern.size() && pattern[position] == u'!' && pattern[position + 1] != u']';
}

bool IsSetOpen(std::u16string_view pattern, std::size_t position) {
  return position >= pattern.size() || pattern[position] != u']';
}

void CheckPattern(std::u16string_view pattern) {
  std::size_t position = pattern.find(u'[');
  while (position != std::u16string_view::npos) {
    ++position;
    if (IsExcluding(pattern, position)) ++position;
    while (IsSetOpen(pattern, position)) {
      const Range range = NextRange(pattern, position);
      if (range.low > range.high) throw Erro(kInvalidPatternString);
    }
    position = pattern.find(u'[', position);
  }
}

// Whether `character` is in the set whose "[" stands just before `position`, which moves behind its "]".
bool MatchesSet(char16_t character, std::u16string_view pattern, std::size_t& position) {
  const bool excluding = IsExcluding(pattern, position);
  if (excluding) ++position;
  bool found = false;
  while (pattern[position] != u']') {
    const Range range = NextRange(pattern, position);
    found = found || (character >= range.low && character <= range.high);
  }
  ++position;
  return found != excluding;
}

// Matches one character against the element at `position`, which moves behind the element.
bool MatchesElement(char16_t character, std::u16string_view pattern, std::size_t& position) {
  const char16_t element = pattern[position++];
  switch (element) {
    case u'?':
      return true;
    case u'#':
      return character >= u'0' && character <= u'9';
    case u'[':
      return MatchesSet(character, pattern, position);
    default:
      return character == element;
  }
}

}  // namespace

bool Like(std::u16string_view text, std::u16string_view pattern) {
  return LikePattern(pattern).Matches(text);
}

LikePattern::LikePattern(std::u16string_view pattern) : pattern_(pattern) { CheckPattern(pattern); }

bool LikePattern::Matches(std::u16string_view text) const {
  const std::u16string_view pattern = pattern_;
  constexpr std::size_t kNone = std::u16string_view::npos;
  std::size_t at = 0;             // in the text
  std::size_t element = 0;        // in the pattern
  std::size_t afterStar = kNone;  // behind the last "*" passed
  std::size_t runEnd = 0;         // where the run of that "*" ends in the text
  for (;;) {
    if (element == pattern.size()) {
      if (at == text.size()) return true;
    } else if (pattern[element] == u'*') {
      afterStar = ++element;
      runEnd = at;
      continue;
    } else if (pattern.substr(element, 2) == u"[]") {
      element += 2;
      continue;
    } else if (at == text.size()) {
      return false;  // a longer run would leave even less text for the rest of the pattern
    } else if (MatchesElement(text[at], pattern, element)) {
      ++at;
      continue;
    }
    // Only the last "*" has to give way: a shorter run of an earlier one leaves the rest the same choice.
    if (afterStar == kNone) return false;
    at = ++runEnd;
    element = afterStar;
  }
}

}  // namespace gabarito
