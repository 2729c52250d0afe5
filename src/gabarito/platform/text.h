// The run-time's text functions. Texts are UTF-16; one character is one code unit; positions are 1-based.
//
// Views go in and, where the result is a piece of the argument, a view of that argument comes out: keep
// the argument alive as long as the piece.
#ifndef GABARITO_PLATFORM_TEXT_H
#define GABARITO_PLATFORM_TEXT_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace gabarito {

enum class Comparison : std::int32_t { kOrdinal = 0, kIgnoreCase = 1 };

inline std::int32_t Len(std::u16string_view text) { return static_cast<std::int32_t>(text.size()); }

// The first `length` characters, or all of a shorter text. Raises 5 when `length` is negative.
std::u16string_view Left(std::u16string_view text, std::int32_t length);

// The last `length` characters, or all of a shorter text. Raises 5 when `length` is negative.
std::u16string_view Right(std::u16string_view text, std::int32_t length);

// From position `start` to the end, or at most `length` characters of it; past the end the empty text.
// Raises 5 when `start` is below 1 or `length` is negative.
std::u16string_view Mid(std::u16string_view text, std::int32_t start);
std::u16string_view Mid(std::u16string_view text, std::int32_t start, std::int32_t length);

// Without the blanks (character 32, no other) at both ends.
std::u16string_view Trim(std::u16string_view text);

// Capitals: ASCII, Latin-1 and Latin Extended-A letters by their one-to-one mapping. The sharp s, which
// has none, stays, as does every other character.
char16_t UCase(char16_t character);
std::u16string UCase(std::u16string_view text);

// The first position at or behind `start` where `sought` stands in `text`, or 0. An empty `sought` is
// found at `start` (0 when `start` lies behind the end). Raises 5 when `start` is below 1. Linear in the
// length of `text` for the short texts that the field seeks.
std::int32_t InStr(std::int32_t start, std::u16string_view text, std::u16string_view sought,
                   Comparison comparison = Comparison::kOrdinal);
inline std::int32_t InStr(std::u16string_view text, std::u16string_view sought) {
  return InStr(1, text, sought);
}

// The code of a character in the ANSI code page 1252; 63 ("?") for one that the page does not hold.
std::uint8_t Asc(char16_t character);

// The character of a code of that page, 0 to 255; the five codes without a character of their own (129,
// 141, 143, 144, 157) give the control character of the same number. Raises 5 outside 0 to 255.
char16_t Chr(std::int32_t code);

// `character` repeated `count` times. Raises 5 when `count` is negative.
std::u16string String(std::int32_t count, char16_t character);

// Whether the whole of `text` matches `pattern`: `?` any one character, `*` any run of characters, `#` one
// digit 0 to 9, `[abc]` one of a set, `[a-z]` a range of it, `[!...]` none of it; every other character is
// itself. Ordinal: case counts. A "]" outside a set is itself, a "-" first or last in a set or right behind
// a range is itself, "[]" matches the empty text, "[!]" the "!". Raises 93 when a `[` is not closed or a
// range runs backwards, whenever the pattern holds one, wherever the text would stop matching. Time at most
// proportional to the product of both lengths.
bool Like(std::u16string_view text, std::u16string_view pattern);

// The pattern of Like, checked and its sets read once for many texts: a long set costs a character no more
// than a search by halves. Keep the text of the pattern alive as long as the object.
class LikePattern {
 public:
  // Raises 93 as Like does. Allocates for sets alone.
  explicit LikePattern(std::u16string_view pattern);
  bool Matches(std::u16string_view text) const;

  // The characters from `low` to `high`, both included.
  struct Range {
    char16_t low, high;
  };

 private:
  struct Set {
    std::size_t end = 0;        // behind its "]" in the pattern
    bool excluding = false;     // matches what is in none of the ranges
    std::vector<Range> ranges;  // in order, apart from each other
    bool Has(char16_t character) const;
  };
  struct Place {
    std::size_t position = 0;
    std::size_t set = 0;  // of the sets, the first that stands at or behind the position
  };

  // Moves `place` behind the element that stands there.
  bool MatchesElement(char16_t character, Place& place) const;

  std::u16string_view pattern_;
  std::vector<Set> sets_;  // in the order of the pattern
};

}  // namespace gabarito

#endif  // GABARITO_PLATFORM_TEXT_H
