#include "script/nearest.h"

#include <algorithm>
#include <vector>

namespace gabarito::script {
namespace {

constexpr std::size_t kLongest = 64;  // no word of the program is longer

char Small(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

// Insertions, deletions, replacements and swaps of neighbours, row by row of the usual table.
std::size_t Changes(std::string_view a, std::string_view b) {
  std::vector<std::size_t> before(b.size() + 1), row(b.size() + 1), next(b.size() + 1);
  for (std::size_t j = 0; j <= b.size(); ++j) row[j] = j;
  const auto same = [&](std::size_t i, std::size_t j) { return Small(a[i - 1]) == Small(b[j - 1]); };
  for (std::size_t i = 1; i <= a.size(); ++i) {
    next[0] = i;
    for (std::size_t j = 1; j <= b.size(); ++j) {
      next[j] = std::min({row[j - 1] + (same(i, j) ? 0 : 1), row[j] + 1, next[j - 1] + 1});
      const bool swapped = i > 1 && j > 1 && same(i, j - 1) && same(i - 1, j);
      if (swapped) next[j] = std::min(next[j], before[j - 2] + 1);
    }
    before.swap(row);
    row.swap(next);
  }
  return row[b.size()];
}

}  // namespace

std::string_view Nearest(std::string_view word, std::span<const std::string_view> words) {
  std::string_view nearest;
  if (word.size() > kLongest) return nearest;
  std::size_t fewest = 0;
  for (const std::string_view candidate : words) {
    const std::size_t changes = Changes(word, candidate);
    if (changes > std::max<std::size_t>((candidate.size() + 1) / 3, 1)) continue;
    if (!nearest.empty() && changes >= fewest) continue;
    nearest = candidate;
    fewest = changes;
  }
  return nearest;
}

std::string DidYouMean(std::string_view word, std::span<const std::string_view> words) {
  const std::string_view nearest = Nearest(word, words);
  return nearest.empty() ? std::string() : "; did you mean " + std::string(nearest) + "?";
}

}  // namespace gabarito::script
