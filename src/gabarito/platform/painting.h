// Control over the painting of a window. Optional: a toolkit that paints later anyway overrides nothing.
#ifndef GABARITO_PLATFORM_PAINTING_H
#define GABARITO_PLATFORM_PAINTING_H

#include "gabarito/platform/combo_box.h"

namespace gabarito {

class Painting {
 public:
  virtual ~Painting() = default;

  // Freezes the painting of one window while its list is filled; 0 releases it.
  virtual void LockWindowUpdate(WindowHandle /*window*/) {}
};

}  // namespace gabarito

#endif  // GABARITO_PLATFORM_PAINTING_H
