// The entries of a combo box: many short texts in one buffer, and the search by their beginnings.
#ifndef HOSTS_MEMORY_COMBO_LIST_H
#define HOSTS_MEMORY_COMBO_LIST_H

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace gabarito::memory {

class ComboList {
 public:
  static constexpr std::size_t kMost = 32767;

  // Raises 6 when the list is full.
  void Add(std::u16string_view text);
  // Keeps what is reserved: a list that is filled again does not grow again.
  void Clear();
  // Gives back what is reserved and not used.
  void Trim();

  std::size_t Count() const { return ends_.size(); }
  std::u16string_view At(std::size_t position) const;

  // The first entry, in list order, that begins with `beginning` without regard to case; -1 if there is none.
  // The first search after a change sorts the entries; the next ones take a few steps each.
  std::int32_t FindBeginning(std::u16string_view beginning);

 private:
  struct Key {
    std::uint64_t head;  // the first four units in capitals, so that most comparisons are of one number
    std::uint16_t position;
  };

  std::u16string_view Folded(std::size_t position) const;
  void BuildIndex();

  std::u16string buffer_;
  std::vector<std::uint32_t> ends_;  // of each entry, in the buffer

  std::u16string folded_;    // the buffer in capitals
  std::vector<Key> sorted_;  // positions in the order of the folded texts, equal ones in list order
  bool indexed_ = false;
};

}  // namespace gabarito::memory

#endif  // HOSTS_MEMORY_COMBO_LIST_H
