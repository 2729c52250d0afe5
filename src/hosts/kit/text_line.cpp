#include "hosts/kit/text_line.h"

#include <algorithm>

#include "gabarito/platform/erro.h"

namespace gabarito::kit {

void TextLine::Changed(std::size_t from) { same_ = std::min(same_, from); }

void TextLine::Text(std::u16string_view text) {
  text_.assign(text);
  Changed(0);
  start_ = 0;
  length_ = 0;
}

void TextLine::CopyOf(const TextLine& other) {
  const bool again = twin_ == &other && other.twin_ == this;
  const std::size_t kept = again ? std::min(same_, other.same_) : 0;
  if (kept == text_.size() && kept + 1 == other.text_.size()) {
    text_.push_back(other.text_.back());  // the usual case: a person types on
  } else {
    text_.replace(kept, std::u16string::npos, other.text_, kept);
  }
  twin_ = &other;
  other.twin_ = this;
  same_ = other.same_ = text_.size();
  start_ = 0;
  length_ = 0;
}

void TextLine::SelStart(std::int32_t start) {
  if (start < 0) Fail(kInvalidPropertyValue);
  start_ = std::min(start, Size());
  length_ = 0;
}

void TextLine::SelLength(std::int32_t length) {
  if (length < 0) Fail(kInvalidPropertyValue);
  length_ = std::min(length, Size() - start_);
}

std::u16string_view TextLine::SelText() const {
  return Text().substr(static_cast<std::size_t>(start_), static_cast<std::size_t>(length_));
}

bool TextLine::Replace(std::u16string_view text, std::int32_t limit) {
  if (limit > 0 && !text.empty()) {
    const std::int32_t room = std::max(limit - (Size() - length_), 0);
    text = text.substr(0, static_cast<std::size_t>(room));
    if (text.empty()) return false;
  }
  Changed(static_cast<std::size_t>(start_));
  if (start_ == Size() && text.size() == 1) {
    text_.push_back(text.front());  // the usual case: a person types on
  } else {
    text_.replace(static_cast<std::size_t>(start_), static_cast<std::size_t>(length_), text);
  }
  start_ += static_cast<std::int32_t>(text.size());
  length_ = 0;
  return true;
}

}  // namespace gabarito::kit
