#include "gabarito/platform/text.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

#include "gabarito/platform/erro.h"

namespace gabarito {
namespace {

// The codes 128 to 159 of the code page; the five that it leaves open are the control characters.
constexpr char16_t kCodePage[] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};
static_assert(std::size(kCodePage) == 32);

constexpr std::int32_t kFirstOfTable = 128;
constexpr std::int32_t kLastOfTable = 159;

std::size_t SizeOf(std::int32_t length) {
  if (length < 0) Fail(kInvalidProcedureCall);
  return static_cast<std::size_t>(length);
}

std::size_t OffsetOf(std::int32_t position) {
  if (position < 1) Fail(kInvalidProcedureCall);
  return static_cast<std::size_t>(position) - 1;
}

bool IsBetween(char16_t character, char16_t first, char16_t last) {
  return character >= first && character <= last;
}

// Latin Extended-A sets each capital before its small letter; only which of the two is even changes.
char16_t UpperOfExtended(char16_t character) {
  switch (character) {
    case 0x131:  // dotless i
      return u'I';
    case 0x17F:  // long s
      return u'S';
    case 0x149:  // the n with apostrophe: its capital takes two characters
      return character;
    default:
      break;
  }
  const bool smallIsEven = IsBetween(character, 0x139, 0x148) || IsBetween(character, 0x179, 0x17E);
  const bool isEven = character % 2 == 0;
  return smallIsEven == isEven ? static_cast<char16_t>(character - 1) : character;
}

char16_t UpperBeyondAscii(char16_t character) {
  if (IsBetween(character, 0xE0, 0xFE)) {
    return character == 0xF7 ? character : static_cast<char16_t>(character - 0x20);  // the division sign
  }
  if (character == 0xFF) return 0x178;  // the y with diaeresis: its capital lies outside Latin-1
  return IsBetween(character, 0x100, 0x17F) ? UpperOfExtended(character) : character;
}

}  // namespace

std::u16string_view Left(std::u16string_view text, std::int32_t length) {
  return text.substr(0, SizeOf(length));
}

std::u16string_view Right(std::u16string_view text, std::int32_t length) {
  return text.substr(text.size() - std::min(text.size(), SizeOf(length)));
}

std::u16string_view Mid(std::u16string_view text, std::int32_t start) {
  return text.substr(std::min(text.size(), OffsetOf(start)));
}

std::u16string_view Mid(std::u16string_view text, std::int32_t start, std::int32_t length) {
  return text.substr(std::min(text.size(), OffsetOf(start)), SizeOf(length));
}

std::u16string_view Trim(std::u16string_view text) {
  const std::size_t first = text.find_first_not_of(u' ');
  if (first == std::u16string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(u' ') - first + 1);
}

char16_t UCase(char16_t character) {
  if (IsBetween(character, u'a', u'z')) return static_cast<char16_t>(character - 0x20);
  return character < 0x80 ? character : UpperBeyondAscii(character);
}

std::u16string UCase(std::u16string_view text) {
  std::u16string capitals(text);
  for (char16_t& character : capitals) character = UCase(character);
  return capitals;
}

std::int32_t InStr(std::int32_t start, std::u16string_view text, std::u16string_view sought,
                   Comparison comparison) {
  const std::size_t offset = OffsetOf(start);
  if (offset >= text.size()) return 0;  // for the empty text sought too, which a search would find here
  if (comparison == Comparison::kOrdinal) {
    const std::size_t found = text.find(sought, offset);
    return found == std::u16string_view::npos ? 0 : static_cast<std::int32_t>(found) + 1;
  }
  const auto same = [](char16_t a, char16_t b) { return a == b || UCase(a) == UCase(b); };
  const auto found = std::search(text.begin() + static_cast<std::ptrdiff_t>(offset), text.end(),
                                 sought.begin(), sought.end(), same);
  return found == text.end() ? 0 : static_cast<std::int32_t>(found - text.begin()) + 1;
}

std::uint8_t Asc(char16_t character) {
  if (character < kFirstOfTable || IsBetween(character, kLastOfTable + 1, 0xFF)) {
    return static_cast<std::uint8_t>(character);
  }
  const auto* const found = std::find(std::begin(kCodePage), std::end(kCodePage), character);
  if (found == std::end(kCodePage)) return u'?';
  return static_cast<std::uint8_t>(kFirstOfTable + (found - std::begin(kCodePage)));
}

char16_t Chr(std::int32_t code) {
  if (code < 0 || code > 255) Fail(kInvalidProcedureCall);
  if (code < kFirstOfTable || code > kLastOfTable) return static_cast<char16_t>(code);
  return kCodePage[code - kFirstOfTable];
}

std::u16string String(std::int32_t count, char16_t character) {
  return std::u16string(SizeOf(count), character);
}

}  // namespace gabarito
