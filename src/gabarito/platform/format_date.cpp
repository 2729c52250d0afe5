#include <algorithm>
#include <cstddef>
#include <iterator>

#include "gabarito/platform/erro.h"
#include "gabarito/platform/format.h"

namespace gabarito {
namespace {

// What a run of letters in a pattern stands for, in as many digits as it has letters.
struct Piece {
  std::u16string_view letters;
  std::int32_t DateParts::*part;
};

constexpr Piece kPieces[] = {
    {u"DD", &DateParts::day},  {u"MM", &DateParts::month},  {u"YYYY", &DateParts::year},
    {u"hh", &DateParts::hour}, {u"nn", &DateParts::minute},
};

const Piece* PieceAt(std::u16string_view rest) {
  const auto* const found = std::find_if(std::begin(kPieces), std::end(kPieces),
                                         [&](const Piece& piece) { return rest.starts_with(piece.letters); });
  return found == std::end(kPieces) ? nullptr : found;
}

void AppendDigits(std::u16string& text, std::int32_t number, std::size_t width) {
  text.append(width, u'0');
  for (std::size_t at = text.size(); number > 0; number /= 10) {
    text[--at] = static_cast<char16_t>(u'0' + number % 10);
  }
}

std::u16string Written(const DateParts& parts, std::u16string_view pattern) {
  std::u16string text;
  while (!pattern.empty()) {
    if (const Piece* const piece = PieceAt(pattern)) {
      AppendDigits(text, parts.*(piece->part), piece->letters.size());
      pattern.remove_prefix(piece->letters.size());
    } else if (pattern.front() == u'/' || pattern.front() == u':') {
      text.push_back(pattern.front());
      pattern.remove_prefix(1);
    } else {
      Fail(kInvalidProcedureCall);
    }
  }
  return text;
}

}  // namespace

std::u16string FormatDate(Date date, std::u16string_view pattern) { return Written(PartsOf(date), pattern); }

std::u16string FormatDate(std::u16string_view text, std::u16string_view pattern, const Regional& regional,
                          Date now) {
  Date date = 0;
  if (ReadDate(text, regional, now, date)) return FormatDate(date, pattern);
  Written(DateParts{}, pattern);  // a pattern that is none is refused whatever the text is
  return std::u16string(text);
}

}  // namespace gabarito
