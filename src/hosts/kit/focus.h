// The one logical focus of a form, and the order of the events when it moves.
#ifndef HOSTS_KIT_FOCUS_H
#define HOSTS_KIT_FOCUS_H

#include <cstdint>

#include "hosts/kit/focusable.h"
#include "hosts/kit/recorder.h"

namespace gabarito::kit {

// A host with native widgets reports their focus here (Move, with what took it), and gives its widgets the
// focus that Focused() names in the pass after an event; the native echo of that finds the focus where it is
// and does nothing. The logical focus stays where it is while the window is not active.
class Focus {
 public:
  explicit Focus(Recorder*& recorder) : recorder_(recorder) {}
  Focus(const Focus&) = delete;
  Focus& operator=(const Focus&) = delete;

  // Null before the first Move, and after the control that had it has gone.
  Focusable* Focused() const { return focused_; }

  // Raises LostFocus of what has the focus, moves the focus, raises ExitFocus of a control that is left and
  // GotFocus of the receiver. A handler that moves the focus on ends the earlier move where it stands.
  // Nothing happens when the receiver has the focus. Raises 5 when it is hidden or disabled.
  void Move(Focusable& receiver);

  // Gives the focus of a part that cannot keep it to the surface of its control; see UserControl::Settle.
  void Settle() {
    if (unsettled_ && !frozen_) SettleNow();
  }
  // A part has been hidden or disabled: the next Settle has something to look at.
  void Unsettle() { unsettled_ = true; }

  // Frozen, it takes no move: each raises 5, as to a child that is disabled. For a look at a value that must
  // not be noticed.
  void Freeze(bool on) { frozen_ = on; }

  // The control is about to go: the focus leaves it without an event, and a move on its way to it or out of
  // it ends.
  void Forget(Control& control);

 private:
  void SettleNow();

  Recorder*& recorder_;
  Focusable* focused_ = nullptr;
  Focusable* receiver_ = nullptr;  // of the move in progress
  bool entered_ = false;           // GotFocus of what has the focus has been raised
  std::uint64_t moves_ = 0;        // counts moves, to notice one that happened inside a handler
  bool unsettled_ = false;
  bool frozen_ = false;
};

}  // namespace gabarito::kit

#endif  // HOSTS_KIT_FOCUS_H
