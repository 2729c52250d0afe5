#include "hosts/memory/combo_list.h"

#include <algorithm>

#include "gabarito/platform/erro.h"
#include "gabarito/platform/text.h"

namespace gabarito::memory {
namespace {

constexpr std::size_t kHeadUnits = 4;

std::uint64_t HeadOf(std::u16string_view folded) {
  std::uint64_t head = 0;
  for (std::size_t i = 0; i < kHeadUnits; ++i) head = head << 16 | (i < folded.size() ? folded[i] : 0);
  return head;
}

}  // namespace

void ComboList::Add(std::u16string_view text) {
  if (ends_.size() >= kMost) throw Erro(kOverflow);
  buffer_.append(text);
  ends_.push_back(static_cast<std::uint32_t>(buffer_.size()));
  indexed_ = false;
}

void ComboList::Clear() {
  buffer_.clear();
  ends_.clear();
  indexed_ = false;
}

void ComboList::Trim() {
  buffer_.shrink_to_fit();
  ends_.shrink_to_fit();
}

std::u16string_view ComboList::At(std::size_t position) const {
  const std::size_t begin = position == 0 ? 0 : ends_[position - 1];
  return {buffer_.data() + begin, ends_[position] - begin};
}

std::u16string_view ComboList::Folded(std::size_t position) const {
  const std::size_t begin = position == 0 ? 0 : ends_[position - 1];
  return {folded_.data() + begin, ends_[position] - begin};
}

void ComboList::BuildIndex() {
  folded_ = UCase(buffer_);
  sorted_.clear();
  sorted_.reserve(Count());
  for (std::size_t i = 0; i < Count(); ++i) {
    sorted_.push_back({HeadOf(Folded(i)), static_cast<std::uint16_t>(i)});
  }
  std::sort(sorted_.begin(), sorted_.end(), [this](const Key& a, const Key& b) {
    if (a.head != b.head) return a.head < b.head;
    const int order = Folded(a.position).compare(Folded(b.position));
    return order != 0 ? order < 0 : a.position < b.position;
  });
  indexed_ = true;
}

std::int32_t ComboList::FindBeginning(std::u16string_view beginning) {
  if (ends_.empty()) return -1;
  if (beginning.empty()) return 0;
  if (!indexed_) BuildIndex();
  char16_t buffer[64];
  std::u16string longer;
  std::u16string_view sought;
  if (beginning.size() <= std::size(buffer)) {
    std::transform(beginning.begin(), beginning.end(), buffer, [](char16_t c) { return UCase(c); });
    sought = {buffer, beginning.size()};
  } else {
    longer = UCase(beginning);
    sought = longer;
  }
  const auto cut = [&](const Key& key) { return Folded(key.position).substr(0, sought.size()); };
  const auto first = std::lower_bound(sorted_.begin(), sorted_.end(), sought,
                                      [&](const Key& key, std::u16string_view s) { return cut(key) < s; });
  const auto last = std::upper_bound(first, sorted_.end(), sought,
                                     [&](std::u16string_view s, const Key& key) { return s < cut(key); });
  std::int32_t found = -1;
  for (auto key = first; key != last; ++key) {
    if (found < 0 || key->position < found) found = key->position;
  }
  return found;
}

}  // namespace gabarito::memory
