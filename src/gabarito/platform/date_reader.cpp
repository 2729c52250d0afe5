#include <algorithm>
#include <cstddef>
#include <iterator>

#include "gabarito/platform/date.h"
#include "gabarito/platform/erro.h"
#include "gabarito/platform/text.h"

namespace gabarito {
namespace {

constexpr std::u16string_view kMonthNames[] = {
    u"JANEIRO", u"FEVEREIRO", u"MARÇO",    u"ABRIL",   u"MAIO",     u"JUNHO",
    u"JULHO",   u"AGOSTO",    u"SETEMBRO", u"OUTUBRO", u"NOVEMBRO", u"DEZEMBRO",
};
constexpr std::size_t kLettersOfShortName = 3;

bool IsDigit(char16_t c) { return c >= u'0' && c <= u'9'; }
// By range and not by UCase, to which the long s is an S: no month begins with one.
bool IsLetter(char16_t c) {
  return (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z') || c == u'Ç' || c == u'ç';
}
bool IsMark(char16_t c) { return c == u'/' || c == u'-' || c == u'.'; }

// What stands between two marks. Nothing is a piece too: the year of 12/03/.
struct Piece {
  enum Kind { kNothing, kNumber, kMonthName };
  Kind kind = kNothing;
  std::int32_t value = 0;  // of a number, or the month 1 to 12
  std::size_t digits = 0;  // how a number was written: 05 is two

  bool IsShortNumber() const { return kind == kNumber && digits <= 2; }
};

// What parts two pieces. kOf is the word "de" between blanks.
enum class Gap { kNone, kBlanks, kOf, kMark };

// One pass over the text from left to right. Each routine reads one thing at at_ and moves on; the only
// steps back are to the start, when the text is no time alone, and over one piece that proves to be an hour.
class Reader {
 public:
  Reader(std::u16string_view text, const Regional& regional, Date now)
      : text_(Trim(text)), regional_(regional), now_(now) {}

  bool Read(Date& date) {
    DateParts parts{1899, 12, 30, 0, 0, 0};  // day 0
    if (!ReadTime(parts)) {
      at_ = 0;
      if (!ReadDay(parts)) return false;
      if (at_ < text_.size() && !(SkipToTime() && ReadTime(parts))) return false;
    }
    if (at_ < text_.size() || !IsInCalendar(parts)) return false;
    date = DateFromParts(parts);
    return true;
  }

 private:
  // 0 behind the end. A NUL in the text is no harm: no rule takes it.
  char16_t Peek() const { return at_ < text_.size() ? text_[at_] : u'\0'; }

  bool Skip(char16_t c) {
    if (Peek() != c) return false;
    ++at_;
    return true;
  }

  bool SkipBlanks() {
    const std::size_t start = at_;
    while (Skip(u' ')) {
    }
    return at_ > start;
  }

  // Blanks belong to the mark that they surround: "5 / 3" is one gap. A blank behind "de" tells the word from
  // the beginning of "dezembro".
  Gap ReadGap() {
    const bool blanks = SkipBlanks();
    if (IsMark(Peek())) {
      ++at_;
      SkipBlanks();
      return Gap::kMark;
    }
    if (!blanks) return Gap::kNone;
    const std::u16string_view ahead = text_.substr(at_, 3);
    if (ahead.size() < 3 || UCase(ahead[0]) != u'D' || UCase(ahead[1]) != u'E' || ahead[2] != u' ') {
      return Gap::kBlanks;
    }
    at_ += 3;
    SkipBlanks();
    return Gap::kOf;
  }

  // False on a number of more than four digits and on a word that names no month. "T" is no piece: a time
  // follows it.
  bool ReadPiece(Piece& piece) {
    piece = {};
    if (IsDigit(Peek())) return ReadNumber(piece);
    return !IsLetter(Peek()) || Peek() == u'T' || ReadMonthName(piece);
  }

  // Stops at the fifth digit, so that the value never overflows.
  bool ReadNumber(Piece& piece) {
    piece.kind = Piece::kNumber;
    for (; IsDigit(Peek()); ++at_) {
      if (++piece.digits > 4) return false;
      piece.value = piece.value * 10 + (Peek() - u'0');
    }
    return piece.digits > 0;
  }

  bool ReadMonthName(Piece& piece) {
    const std::size_t start = at_;
    while (IsLetter(Peek())) ++at_;
    const std::u16string_view word = text_.substr(start, at_ - start);
    // Exactly three letters or all of them: "marc" and "setemb" name nothing.
    const auto names = [word](std::u16string_view name) {
      if (word.size() == kLettersOfShortName) name = name.substr(0, kLettersOfShortName);
      return std::equal(word.begin(), word.end(), name.begin(), name.end(),
                        [](char16_t a, char16_t b) { return UCase(a) == b; });
    };
    const auto found = std::find_if(std::begin(kMonthNames), std::end(kMonthNames), names);
    piece.kind = Piece::kMonthName;
    piece.value = static_cast<std::int32_t>(found - std::begin(kMonthNames)) + 1;
    return found != std::end(kMonthNames);
  }

  // Whether the number just read is an hour, as the 10 of "12/03 10:30", which is no third piece.
  bool IsColonNext() const {
    const std::size_t next = text_.find_first_not_of(u' ', at_);
    return next != std::u16string_view::npos && text_[next] == u':';
  }

  // The pieces of a date, two or three of them. What is no part of the date is left unread.
  bool ReadDay(DateParts& parts) {
    Piece pieces[3];
    std::size_t count = 1;
    bool hasOf = false;
    if (!ReadPiece(pieces[0])) return false;
    while (count < 3 && pieces[count - 1].kind != Piece::kNothing) {
      const std::size_t before = at_;
      const Gap gap = ReadGap();
      if (gap == Gap::kNone) break;
      const std::size_t start = at_;
      Piece& piece = pieces[count];
      if (!ReadPiece(piece)) return false;
      const bool isHour = piece.kind == Piece::kNumber && text_[start - 1] == u' ' && IsColonNext();
      // Nothing is a piece behind a mark only: the blank of "12/2024 T7:30" begins no third one.
      if (gap != Gap::kMark && (isHour || piece.kind == Piece::kNothing)) {
        at_ = before;
        break;
      }
      if (isHour) {  // 12/03/ 7:30: the year is left out
        piece = {};
        at_ = start;
      }
      hasOf = hasOf || gap == Gap::kOf;
      ++count;
    }
    if (count == 1) return false;
    if (hasOf && pieces[count - 2].kind != Piece::kMonthName) return false;  // 5 de 3 de 2024
    return count == 2 ? TakeMonthAndYear(pieces, parts) : TakeThreePieces(pieces, parts);
  }

  // Never a day and a month: 25/12 would be a month 25. Two digits at least: 01/3 is more likely cut short.
  bool TakeMonthAndYear(const Piece (&pieces)[3], DateParts& parts) const {
    parts.day = 1;
    return pieces[1].digits >= 2 && TakeMonth(pieces[0], parts) && TakeYear(pieces[1], parts);
  }

  bool TakeThreePieces(const Piece (&pieces)[3], DateParts& parts) const {
    const bool isYearFirst = pieces[0].digits == 4;
    const Piece& day = pieces[isYearFirst ? 2 : 0];
    const Piece& year = pieces[isYearFirst ? 0 : 2];
    parts.day = day.value;
    return day.IsShortNumber() && TakeMonth(pieces[1], parts) && TakeYear(year, parts);
  }

  static bool TakeMonth(const Piece& piece, DateParts& parts) {
    parts.month = piece.value;
    return piece.kind == Piece::kMonthName || piece.IsShortNumber();
  }

  bool TakeYear(const Piece& piece, DateParts& parts) const {
    if (piece.kind == Piece::kMonthName) return false;
    if (piece.kind == Piece::kNothing) {
      if (!IsInCalendar(now_)) return false;
      parts.year = Year(now_);
      return true;
    }
    parts.year = piece.value;
    if (!piece.IsShortNumber()) return true;
    // 64 bits: the settings may hold any 32-bit year.
    const std::int64_t last = regional_.lastTwoDigitYear;
    const std::int64_t back = ((last - piece.value) % 100 + 100) % 100;
    parts.year = static_cast<std::int32_t>(std::max<std::int64_t>(last - back, 0));
    return true;
  }

  // To the first character of the time behind a date; false when nothing parts the two.
  bool SkipToTime() {
    // Behind "12/03/ 7:30" the blank has been read with the mark; "12/03/7:30" has none, and is no date.
    const bool blanks = text_[at_ - 1] == u' ' || SkipBlanks();
    const bool mark = Skip(u'T');
    SkipBlanks();
    return blanks || mark;
  }

  // h:m or h:m:s with the minutes left out only in "7:". False, somewhere in the text, on anything else.
  bool ReadTime(DateParts& parts) {
    Piece hour, minute, second;
    if (!IsDigit(Peek()) || !ReadNumber(hour) || !hour.IsShortNumber() || !SkipColon()) return false;
    if (at_ < text_.size()) {
      if (!ReadNumber(minute) || !minute.IsShortNumber()) return false;
      if (at_ < text_.size() && !(SkipColon() && ReadNumber(second) && second.IsShortNumber())) return false;
    }
    parts.hour = hour.value;
    parts.minute = minute.value;
    parts.second = second.value;
    return at_ == text_.size();
  }

  bool SkipColon() {
    SkipBlanks();
    if (!Skip(u':')) return false;
    SkipBlanks();
    return true;
  }

  std::u16string_view text_;
  const Regional& regional_;
  Date now_;
  std::size_t at_ = 0;
};

}  // namespace

bool ReadDate(std::u16string_view text, const Regional& regional, Date now, Date& date) {
  return Reader(text, regional, now).Read(date);
}

bool IsDate(std::u16string_view text, const Regional& regional, Date now) {
  Date date;
  return ReadDate(text, regional, now, date);
}

Date CDate(std::u16string_view text, const Regional& regional, Date now) {
  Date date;
  if (!ReadDate(text, regional, now, date)) Fail(kTypeMismatch);
  return date;
}

}  // namespace gabarito
