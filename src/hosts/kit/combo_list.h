// The entries of a combo box: many short texts in one buffer, and the search by their beginnings.
#ifndef HOSTS_KIT_COMBO_LIST_H
#define HOSTS_KIT_COMBO_LIST_H

#include <cstdint>
#include <memory>
#include <string_view>

namespace gabarito::kit {

// A long list that is filled with the same entries as another one shares their storage: a thousand fields
// with all municipalities hold them, and their index, once. One thread.
class ComboList {
 public:
  static constexpr std::size_t kMost = 32767;

  // Raises 6 when the list is full.
  void Add(std::u16string_view text);
  // Keeps the storage: each layout empties the list, and fills it mostly with the same entries again.
  void Clear() { count_ = 0; }

  std::size_t Count() const { return count_; }
  // Good until the list changes.
  std::u16string_view At(std::size_t position) const;

  // The first entry, in list order, that begins with `beginning` without regard to case; -1 if there is none.
  // The first search after a change sorts the entries; the next ones take a few steps each.
  std::int32_t FindBeginning(std::u16string_view beginning);

  // Entries that are the same object: a host that shows two lists with one token can share what it made of
  // them. Null for an empty list.
  const void* Token() const { return count_ == 0 ? nullptr : storage_.get(); }

 private:
  struct Storage;

  bool IsNext(std::u16string_view text) const;
  bool Follows(std::u16string_view text);
  void MakeOwn();

  std::shared_ptr<Storage> storage_;  // its first count_ entries are those of this list
  std::size_t count_ = 0;
};

}  // namespace gabarito::kit

#endif  // HOSTS_KIT_COMBO_LIST_H
