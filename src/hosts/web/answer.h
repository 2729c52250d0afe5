// The answer to one call of the page: 32-bit words, with texts of 16-bit units packed two to a word.
//
//   verdict, waiting, [edit: start, removed, caret, text], focused field, focused child, error number, error
//   text, then for each field with news: its number, a mask of News, what the mask names, and for each child
//   with news its place, a mask of kit::Change and what that mask names, closed by -1; the fields closed by
//   -1.
//
// A text is its length and its units. web/src/bridge.ts reads it.
#ifndef HOSTS_WEB_ANSWER_H
#define HOSTS_WEB_ANSWER_H

#include <cmath>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <vector>

namespace gabarito::web {

class Answer {
 public:
  void Clear() { words_.clear(); }
  void Number(std::int32_t number) { words_.push_back(number); }
  // A length in twips, to the nearest whole one: finer than any screen shows.
  void Length(float twips) { Number(static_cast<std::int32_t>(std::nearbyint(twips))); }
  void Text(std::u16string_view text) {
    Number(static_cast<std::int32_t>(text.size()));
    const std::size_t at = words_.size();
    words_.resize(at + (text.size() + 1) / 2);
    if (!text.empty()) std::memcpy(words_.data() + at, text.data(), text.size() * sizeof(char16_t));
  }
  const std::int32_t* Data() const { return words_.data(); }

 private:
  std::vector<std::int32_t> words_;
};

}  // namespace gabarito::web

#endif  // HOSTS_WEB_ANSWER_H
