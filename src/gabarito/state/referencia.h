// A reference to an object that belongs to somebody else and may be unset.
#ifndef GABARITO_STATE_REFERENCIA_H
#define GABARITO_STATE_REFERENCIA_H

#include "gabarito/platform/erro.h"

namespace gabarito {

// Use through an unset reference raises 91.
template <class T>
class Referencia {
 public:
  Referencia() = default;
  Referencia(T* objeto) : objeto_(objeto) {}

  T* operator->() const { return &**this; }
  T& operator*() const {
    if (objeto_ == nullptr) Fail(kObjectNotSet);
    return *objeto_;
  }
  explicit operator bool() const { return objeto_ != nullptr; }
  void Solta() { objeto_ = nullptr; }

 private:
  T* objeto_ = nullptr;
};

}  // namespace gabarito

#endif  // GABARITO_STATE_REFERENCIA_H
