// A label between boxes: an element of lbl_controle. It takes no focus and raises no event.
#ifndef GABARITO_PLATFORM_LABEL_H
#define GABARITO_PLATFORM_LABEL_H

#include "gabarito/platform/child.h"

namespace gabarito {

class Label : public Child {
 public:
  virtual void Caption(std::u16string_view caption) = 0;

  // While on, the width becomes that of the caption in the label's font at each set of Caption, Font or
  // AutoSize. A Move keeps the width that it gives until the next such set.
  virtual void AutoSize(bool on) = 0;

  virtual float Left() const = 0;
  virtual float Top() const = 0;
  virtual float Width() const = 0;

  virtual void BackStyle(std::int32_t style) = 0;    // 0 transparent, 1 opaque
  virtual void BorderStyle(std::int32_t style) = 0;  // 0 none, 1 single

  // Repaints at once.
  virtual void Refresh() = 0;
};

}  // namespace gabarito

#endif  // GABARITO_PLATFORM_LABEL_H
