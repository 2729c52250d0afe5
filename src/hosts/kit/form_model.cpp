#include "hosts/kit/form_model.h"

#include <exception>

namespace gabarito::kit {

FormModel::FormModel(const Services& itsServices) : services(itsServices) {
  if (services.painting == nullptr) services.painting = &no_painting_;
}

void FormModel::Run() {
  if (running_) return;
  running_ = true;
  std::exception_ptr first;
  while (keyboard.Pending()) {
    try {
      Deliver(keyboard.Next());
      focus.Settle();
    } catch (...) {
      if (first == nullptr) first = std::current_exception();
    }
  }
  running_ = false;
  if (first != nullptr) std::rethrow_exception(first);
}

}  // namespace gabarito::kit
