#include "hosts/kit/fault_switch.h"

#include <utility>

#include "gabarito/platform/erro.h"

namespace gabarito::kit {

void FaultSwitch::FailNext(std::string child, std::string member, std::int32_t number) {
  waiting_.push_back({std::move(child), std::move(member), number});
  Rearm();
}

void FaultSwitch::FailNth(std::int64_t n, std::int32_t number) {
  countdown_ = n;
  countdown_number_ = number;
  Rearm();
}

void FaultSwitch::Watch(std::vector<std::string>* operations) {
  operations_ = operations;
  Rearm();
}

void FaultSwitch::Judge(std::string_view child, std::string_view member, Access access) {
  std::int32_t number = 0;
  if (countdown_ > 0 && --countdown_ == 0) number = countdown_number_;
  for (auto waiting = waiting_.begin(); number == 0 && waiting != waiting_.end(); ++waiting) {
    if (waiting->child != child || waiting->member != member) continue;
    number = waiting->number;
    waiting_.erase(waiting);
    break;
  }
  if (operations_ != nullptr) {
    std::string operation(child);
    operation.append(".").append(member).append(access == Access::kWrite ? "=" : "");
    operations_->push_back(operation.append(number != 0 ? "!" : ""));
  }
  Rearm();
  if (number != 0) Fail(number);
}

}  // namespace gabarito::kit
