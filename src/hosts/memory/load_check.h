// Whether a value that was loaded has left anything, for programs that load values.
#ifndef HOSTS_MEMORY_LOAD_CHECK_H
#define HOSTS_MEMORY_LOAD_CHECK_H

#include <string_view>

namespace gabarito::memory {

// Said by the program, not by the field, which is silent when it loads 31/02/2024 as three empty boxes.
inline constexpr std::u16string_view kNotTaken = u"Valor não aceito pela máscara.";

// Of `text`, when the field shows something right behind the load (`loaded`, asked there, since a read fills
// boxes by itself: today under gbDataAtual) and reads as `value`. "#" is how an empty interval reads: a value
// that comes back as it went in has lost nothing.
inline bool NothingTaken(std::u16string_view text, bool loaded, std::u16string_view value) {
  const bool blank = text.find_first_not_of(u" \t") == std::u16string_view::npos;
  return !(loaded && !value.empty()) && value != text && !blank;
}

}  // namespace gabarito::memory

#endif  // HOSTS_MEMORY_LOAD_CHECK_H
