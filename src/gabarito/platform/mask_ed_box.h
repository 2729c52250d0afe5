// The masked edit box, MaskEdBox1. platform/masked_edit.h holds its engine: a host wraps a widget round it.
//
// Events that the host raises: GotFocus; KeyPress with the code page 1252 code of each character typed,
// before the box acts on it (0 afterwards: it does nothing). Ctrl+C, Ctrl+X and Ctrl+V are carried out at
// key-down and raise no KeyPress.
#ifndef GABARITO_PLATFORM_MASK_ED_BOX_H
#define GABARITO_PLATFORM_MASK_ED_BOX_H

#include "gabarito/platform/child.h"

namespace gabarito {

// Text() holds the literals and the prompt characters; setting a text that does not fit the mask raises
// 380 and changes nothing.
class MaskEdBox : public InputChild {
 public:
  // The pattern. Setting it empties the text to the new template; one that is refused raises 380 and leaves
  // the old one in place.
  virtual std::u16string_view Mask() const = 0;
  virtual void Mask(std::u16string_view pattern) = 0;

  // Replaces the selection and keeps the mask; what its pattern refuses is dropped.
  virtual void SelText(std::u16string_view text) = 0;

  virtual void MaxLength(std::int16_t length) = 0;  // 0 to 64, others raise 380
  virtual void Appearance(std::int32_t look) = 0;   // 1 3D; every other value is shown flat
  virtual void Height(float height) = 0;            // a negative value raises 380
};

}  // namespace gabarito

#endif  // GABARITO_PLATFORM_MASK_ED_BOX_H
