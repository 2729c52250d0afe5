// What all children of the surface have in common, and what the three that take input share.
//
// The headers of this folder that hold interfaces are the porting manual of a host. Required are this one,
// text_box.h, label.h, combo_box.h, mask_ed_box.h, user_control.h, input_queue.h, kernel32.h, dialogs.h and
// clock.h; optional are window_hook.h and painting.h, and the stock SendKeys of dialogs.h. A host implements
// them, one object for each child, and raises the handlers of `FieldEvents` (control/field_events.h).
// hosts/kit implements the children once for all hosts; what follows is what a toolkit has to live up to.
//
// For all members: lengths are twips (1,440 to the inch), coordinates are relative to the surface. A
// member that cannot do what it is asked throws an Erro and changes nothing. A member that is told to
// raise an event runs the handler to its end before it returns, so a handler can run inside a routine of
// the field that is still in progress.
#ifndef GABARITO_PLATFORM_CHILD_H
#define GABARITO_PLATFORM_CHILD_H

#include <cstdint>
#include <optional>
#include <string_view>

#include "gabarito/platform/color.h"
#include "gabarito/platform/std_font.h"

namespace gabarito {

class Child {
 public:
  virtual ~Child() = default;

  // An omitted argument keeps the present value. A negative width or height raises 380; a negative left or
  // top is allowed.
  virtual void Move(float left, std::optional<float> top = {}, std::optional<float> width = {},
                    std::optional<float> height = {}) = 0;

  // The child's own flag, not the effective one: a child of a window that is not on show yet, or that stands
  // behind another page, is visible as soon as it has been told so. A hidden child takes neither focus nor
  // keys. Hiding the child that has the focus moves the focus only when UserControl::Settle is called.
  virtual void Visible(bool visible) = 0;

  virtual void BackColor(Color color) = 0;

  // The font object is shared, not copied: when somebody changes its size, ComboBox::Height and the width of
  // a label that sizes itself follow at their next question, and the toolkit's own font at the next repaint.
  // Raises 91 on a null reference.
  virtual void Font(const FontRef& font) = 0;
};

class InputChild : public Child {
 public:
  // The content. The view is good until the next call that can change this child.
  virtual std::u16string_view Text() const = 0;
  // Replaces the content, puts the caret at 0 and moves no focus. Is not cut to MaxLength. Raises no event.
  // The argument may be a view of the present content.
  virtual void Text(std::u16string_view text) = 0;

  // Caret as a 0-based offset, and length of the selection behind it. Values beyond the end of the text
  // stop at the end, a negative one raises 380. Setting SelStart drops the selection.
  virtual std::int32_t SelStart() const = 0;
  virtual void SelStart(std::int32_t start) = 0;
  virtual std::int32_t SelLength() const = 0;
  virtual void SelLength(std::int32_t length) = 0;

  // A disabled child takes neither focus nor keys and looks so.
  virtual void Enabled(bool enabled) = 0;

  // Gives the child the focus and raises its GotFocus, after the LostFocus of the child that had it, and
  // ExitFocus of the surface that it leaves. Raises 5, with the focus where it was, when the child is
  // hidden or disabled. Nothing happens when it has the focus already.
  //
  // The focus meant is the form's own: in a window that is not active the call moves it, and raises the
  // events, all the same; the window keeps it for when it becomes active. A call inside a LostFocus or an
  // ExitFocus is the last word: the move in progress ends there and the outer receiver gets no GotFocus.
  virtual void SetFocus() = 0;
};

}  // namespace gabarito

#endif  // GABARITO_PLATFORM_CHILD_H
