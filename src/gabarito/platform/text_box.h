// A single-line text box: an element of txt_entrada or txt_entrada3D.
//
// Events that the host raises: GotFocus; KeyDown for each key that goes down; KeyPress with the code page
// 1252 code of each character typed (63 for one outside the page; control characters, Enter and Backspace
// included), before the box acts on it. After KeyPress the box acts on what KeyAscii then holds: 0 nothing,
// 8 Backspace, 3, 24 and 22 copy, cut and paste, another character from 32 up is inserted.
//
// Text that arrives without a key (input method, drag and drop, autofill, dictation, a menu's paste) passes
// the filter too: for each of its characters a KeyDown with kVkPacket and a KeyPress, with the text and the
// caret as the characters before it have left them; what passes is inserted as one edit that one undo takes
// back. A composition in progress is shown by the toolkit and passes when it is committed. Ctrl+V is one
// KeyPress with 22, as on any keyboard, and then the box's own paste.
#ifndef GABARITO_PLATFORM_TEXT_BOX_H
#define GABARITO_PLATFORM_TEXT_BOX_H

#include "gabarito/platform/child.h"

namespace gabarito {

class TextBox : public InputChild {
 public:
  using Child::BackColor;
  using Child::Font;
  using Child::Visible;
  using InputChild::Enabled;
  using InputChild::Text;

  virtual bool Enabled() const = 0;

  // Takes the content of another box, as Text(other.Text()) does. The box of the other look does so at each
  // key typed: a host that notes what has changed in `other` since the last time can take that alone, so that
  // a key in a long text costs no more than one in a short text.
  virtual void TextOf(const TextBox& other) { Text(other.Text()); }

  // Longest text that the user can type or paste; 0 is no limit. A negative value raises 380. A longer
  // text that is there already stays.
  virtual std::int32_t MaxLength() const = 0;
  virtual void MaxLength(std::int32_t length) = 0;

  virtual float Left() const = 0;
  virtual float Top() const = 0;
  virtual float Width() const = 0;
  virtual float Height() const = 0;
  virtual void Left(float left) = 0;
  // A negative value raises 380.
  virtual void Width(float width) = 0;
  virtual void Height(float height) = 0;

  // Repaints at once.
  virtual void Refresh() = 0;
};

}  // namespace gabarito

#endif  // GABARITO_PLATFORM_TEXT_BOX_H
