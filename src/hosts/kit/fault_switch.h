// Makes operations of children fail on purpose, and counts them, so that skip-on-error routines can be tried.
#ifndef HOSTS_KIT_FAULT_SWITCH_H
#define HOSTS_KIT_FAULT_SWITCH_H

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace gabarito::kit {

// Sets and methods write.
enum class Access { kRead, kWrite };

// An operation is one use of a member of a child or of the surface by the field, read or write.
class FaultSwitch {
 public:
  // The next use of `member` of the child `child` ("txt_entrada(0)", "Combo1", "UserControl") fails with the
  // run-time error `number`. Several can be waiting.
  void FailNext(std::string child, std::string member, std::int32_t number);

  // The n-th operation from now on fails; the first is 1.
  void FailNth(std::int64_t n, std::int32_t number);

  // Keeps the operations from now on, as "child.member" for a read and "child.member=" for a write, a failed
  // one with "!" behind it. Stop with null; the list outlives the watch.
  void Watch(std::vector<std::string>* operations);

  // Called by each child at the start of each operation. Raises the error that waits for it.
  void Use(std::string_view child, std::string_view member, Access access) {
    if (armed_) Judge(child, member, access);
  }

 private:
  struct Waiting {
    std::string child;
    std::string member;
    std::int32_t number;
  };

  void Judge(std::string_view child, std::string_view member, Access access);
  void Rearm() { armed_ = !waiting_.empty() || countdown_ > 0 || operations_ != nullptr; }

  bool armed_ = false;
  std::vector<Waiting> waiting_;
  std::int64_t countdown_ = 0;
  std::int32_t countdown_number_ = 0;
  std::vector<std::string>* operations_ = nullptr;
};

}  // namespace gabarito::kit

#endif  // HOSTS_KIT_FAULT_SWITCH_H
