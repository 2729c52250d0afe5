#include "hosts/memory/edit_line.h"

#include "gabarito/platform/erro.h"

namespace gabarito::memory {

void EditLine::Text(std::u16string_view text) {
  text_.assign(text);
  start_ = 0;
  length_ = 0;
}

void EditLine::SelStart(std::int32_t start) {
  if (start < 0) throw Erro(kInvalidPropertyValue);
  start_ = std::min(start, Size());
  length_ = 0;
}

void EditLine::SelLength(std::int32_t length) {
  if (length < 0) throw Erro(kInvalidPropertyValue);
  length_ = std::min(length, Size() - start_);
}

std::u16string_view EditLine::SelText() const {
  return Text().substr(static_cast<std::size_t>(start_), static_cast<std::size_t>(length_));
}

bool EditLine::Replace(std::u16string_view text, std::int32_t limit) {
  if (limit > 0) {
    const std::int32_t room = std::max(limit - (Size() - length_), 0);
    text = text.substr(0, static_cast<std::size_t>(room));
    if (text.empty()) return false;
  }
  if (start_ == Size()) {
    text_.append(text);  // the usual case: a person types on
  } else {
    text_.replace(static_cast<std::size_t>(start_), static_cast<std::size_t>(length_), text);
  }
  start_ += static_cast<std::int32_t>(text.size());
  length_ = 0;
  return true;
}

void EditLine::EraseSelection() {
  text_.erase(static_cast<std::size_t>(start_), static_cast<std::size_t>(length_));
  length_ = 0;
}

void EditLine::Backspace() {
  if (length_ == 0) {
    if (start_ == 0) return;
    --start_;
    length_ = 1;
  }
  EraseSelection();
}

void EditLine::Delete() {
  if (length_ == 0) {
    if (start_ == Size()) return;
    length_ = 1;
  }
  EraseSelection();
}

}  // namespace gabarito::memory
