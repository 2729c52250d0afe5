#include "hosts/terminal/notices.h"

#include "hosts/terminal/entries.h"

namespace gabarito::terminal {

void Notices::Hint(std::size_t line, std::u16string_view text) {
  hint_ = text;
  hint_line_ = line;
}

void Notices::Settle(const FormModel& model) {
  for (auto notice = refusals_.begin(); notice != refusals_.end();) {
    const std::u16string content = ContentOf(model.Lines()[notice->first].field->Parts());
    if (notice->second.fresh) {
      notice->second.fresh = false;
      notice->second.content = content;
    }
    notice = notice->second.content == content ? std::next(notice) : refusals_.erase(notice);
  }
}

std::u16string Notices::At(std::size_t line) const {
  if (HasHint() && line == hint_line_) return u"! " + hint_;
  const auto notice = refusals_.find(line);
  if (notice == refusals_.end()) return {};
  std::u16string text = u"✗ ";
  // A box of several lines is one line here.
  for (const char16_t c : notice->second.text) {
    if (c != u'\r') text.push_back(c == u'\n' ? u' ' : c);
  }
  return text;
}

}  // namespace gabarito::terminal
