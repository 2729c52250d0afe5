#include <algorithm>
#include <cstddef>
#include <iterator>

#include "gabarito/platform/erro.h"
#include "gabarito/platform/sort.h"
#include "gabarito/platform/text.h"

namespace gabarito {
namespace {

using Range = LikePattern::Range;

// Takes the next piece of a set off the pattern at `position`: one character, or two with a "-" between
// them. "[a-]" ends with a "-" that is no range. Raises 93 where the pattern ends inside the set.
Range NextRange(std::u16string_view pattern, std::size_t& position) {
  if (position >= pattern.size()) Fail(kInvalidPatternString);
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

// Puts the ranges in order and makes one of those that overlap or touch, for a search by halves.
void Merge(std::vector<Range>& ranges) {
  if (ranges.empty()) return;
  Sort(ranges.begin(), ranges.end(), [](const Range& a, const Range& b) { return a.low < b.low; });
  auto last = ranges.begin();
  for (const Range& range : ranges) {
    if (range.low > last->high + 1) {
      *++last = range;
    } else {
      last->high = std::max(last->high, range.high);
    }
  }
  ranges.erase(last + 1, ranges.end());
}

}  // namespace

bool Like(std::u16string_view text, std::u16string_view pattern) {
  return LikePattern(pattern).Matches(text);
}

LikePattern::LikePattern(std::u16string_view pattern) : pattern_(pattern) {
  std::size_t position = pattern.find(u'[');
  while (position != std::u16string_view::npos) {
    Set& set = sets_.emplace_back();
    ++position;
    set.excluding = IsExcluding(pattern, position);
    if (set.excluding) ++position;
    while (IsSetOpen(pattern, position)) {
      const Range range = NextRange(pattern, position);
      if (range.low > range.high) Fail(kInvalidPatternString);
      set.ranges.push_back(range);
    }
    set.end = position + 1;
    Merge(set.ranges);
    position = pattern.find(u'[', position);
  }
}

bool LikePattern::Set::Has(char16_t character) const {
  const auto behind = std::upper_bound(ranges.begin(), ranges.end(), character,
                                       [](char16_t c, const Range& range) { return c < range.low; });
  const bool found = behind != ranges.begin() && character <= std::prev(behind)->high;
  return found != excluding;
}

bool LikePattern::MatchesElement(char16_t character, Place& place) const {
  const char16_t element = pattern_[place.position++];
  switch (element) {
    case u'?':
      return true;
    case u'#':
      return character >= u'0' && character <= u'9';
    case u'[': {
      const Set& set = sets_[place.set++];
      place.position = set.end;
      return set.Has(character);
    }
    default:
      return character == element;
  }
}

bool LikePattern::Matches(std::u16string_view text) const {
  std::size_t at = 0;  // in the text
  Place place;         // in the pattern
  Place afterStar;     // behind the last "*" passed
  bool hasStar = false;
  std::size_t runEnd = 0;  // where the run of that "*" ends in the text
  for (;;) {
    if (place.position == pattern_.size()) {
      if (at == text.size()) return true;
    } else if (pattern_[place.position] == u'*') {
      ++place.position;
      afterStar = place;
      hasStar = true;
      runEnd = at;
      continue;
    } else if (pattern_.substr(place.position, 2) == u"[]") {
      place = {place.position + 2, place.set + 1};
      continue;
    } else if (at == text.size()) {
      return false;  // a longer run would leave even less text for the rest of the pattern
    } else if (MatchesElement(text[at], place)) {
      ++at;
      continue;
    }
    // Only the last "*" has to give way: a shorter run of an earlier one leaves the rest the same choice.
    if (!hasStar) return false;
    at = ++runEnd;
    place = afterStar;
  }
}

}  // namespace gabarito
