#include "hosts/kit/combo_list.h"

#include <algorithm>
#include <string>
#include <vector>

#include "gabarito/platform/erro.h"
#include "gabarito/platform/sort.h"
#include "gabarito/platform/text.h"

namespace gabarito::kit {
namespace {

constexpr std::size_t kHeadUnits = 4;
// A list from this length on is worth sharing.
constexpr std::size_t kLong = 256;

std::uint64_t HeadOf(std::u16string_view folded) {
  std::uint64_t head = 0;
  for (std::size_t i = 0; i < kHeadUnits; ++i) head = head << 16 | (i < folded.size() ? folded[i] : 0);
  return head;
}

struct Key {
  std::uint64_t head;  // the first four units in capitals, so that most comparisons are of one number
  std::uint16_t position;
};

}  // namespace

struct ComboList::Storage {
  std::u16string buffer;
  std::vector<std::uint32_t> ends;  // of each entry, in the buffer

  std::u16string folded;    // the buffer in capitals
  std::vector<Key> sorted;  // positions in the order of the folded texts, equal ones in list order

  std::u16string_view Part(const std::u16string& of, std::size_t position) const {
    const std::size_t begin = position == 0 ? 0 : ends[position - 1];
    return {of.data() + begin, ends[position] - begin};
  }

  void Add(std::u16string_view text) {
    buffer.append(text);
    ends.push_back(static_cast<std::uint32_t>(buffer.size()));
    sorted.clear();
  }

  void BuildIndex() {
    folded = UCase(buffer);
    sorted.reserve(ends.size());
    for (std::size_t i = 0; i < ends.size(); ++i) {
      sorted.push_back({HeadOf(Part(folded, i)), static_cast<std::uint16_t>(i)});
    }
    Sort(sorted.begin(), sorted.end(), [this](const Key& a, const Key& b) {
      if (a.head != b.head) return a.head < b.head;
      const int order = Part(folded, a.position).compare(Part(folded, b.position));
      return order != 0 ? order < 0 : a.position < b.position;
    });
  }

  // The long list that was filled last: mostly all are filled with the same entries.
  static std::weak_ptr<Storage>& Latest() {
    static thread_local std::weak_ptr<Storage> latest;
    return latest;
  }
};

bool ComboList::IsNext(std::u16string_view text) const {
  if (storage_ == nullptr || count_ >= storage_->ends.size()) return false;
  const std::u16string_view held = At(count_);
  return std::equal(held.begin(), held.end(), text.begin(), text.end());  // all at once, unlike ==
}

// Takes the entry by going along with a storage that has it at this very place: the list's own, which has
// held more, or the latest.
bool ComboList::Follows(std::u16string_view text) {
  if (IsNext(text)) return true;
  if (count_ > 0) return false;
  storage_ = Storage::Latest().lock();
  return IsNext(text);
}

// A list that goes its own way from here takes along what it shares.
void ComboList::MakeOwn() {
  auto own = std::make_shared<Storage>();
  for (std::size_t i = 0; i < count_; ++i) own->Add(At(i));
  storage_ = std::move(own);
}

void ComboList::Add(std::u16string_view text) {
  if (count_ >= kMost) Fail(kOverflow);
  if (!Follows(text)) {
    if (storage_ == nullptr || count_ < storage_->ends.size()) MakeOwn();
    storage_->Add(text);
    if (storage_->ends.size() == kLong) Storage::Latest() = storage_;
  }
  ++count_;
}

std::u16string_view ComboList::At(std::size_t position) const {
  return storage_->Part(storage_->buffer, position);
}

std::int32_t ComboList::FindBeginning(std::u16string_view beginning) {
  if (count_ == 0) return -1;
  if (beginning.empty()) return 0;
  if (storage_->sorted.empty()) storage_->BuildIndex();
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
  const Storage& storage = *storage_;
  const auto cut = [&](const Key& key) {
    return storage.Part(storage.folded, key.position).substr(0, sought.size());
  };
  const auto first = std::lower_bound(storage.sorted.begin(), storage.sorted.end(), sought,
                                      [&](const Key& key, std::u16string_view s) { return cut(key) < s; });
  const auto last = std::upper_bound(first, storage.sorted.end(), sought,
                                     [&](std::u16string_view s, const Key& key) { return s < cut(key); });
  std::int32_t found = -1;
  for (auto key = first; key != last; ++key) {
    if (key->position < count_ && (found < 0 || key->position < found)) found = key->position;
  }
  return found;
}

}  // namespace gabarito::kit
