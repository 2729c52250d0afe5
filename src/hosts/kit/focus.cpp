#include "hosts/kit/focus.h"

#include "gabarito/platform/erro.h"

namespace gabarito::kit {

void Focus::Move(Focusable& receiver) {
  if (focused_ == &receiver && receiver.CanTakeFocus()) return;
  if (frozen_ || !receiver.CanTakeFocus()) Fail(kInvalidProcedureCall);
  const std::uint64_t move = ++moves_;
  receiver_ = &receiver;
  // What has never been told that it has the focus is not told that it loses it: two fields that both refuse
  // to be left would else throw the focus at each other without end.
  Focusable* const former = entered_ ? focused_ : nullptr;
  Control* const left =
      former == nullptr || &former->Owner() == &receiver.Owner() ? nullptr : &former->Owner();
  // Either end of the move may be deleted by a handler: each is kept until the move is over.
  const Held held = former == nullptr ? Held() : former->Owner().Hold();
  const Held held_receiver = receiver.Owner().Hold();
  if (former != nullptr) former->LostFocus();
  if (move != moves_ || !receiver.CanTakeFocus()) return;
  focused_ = &receiver;
  entered_ = false;
  if (recorder_ != nullptr) recorder_->Focus(receiver);
  if (left != nullptr) left->ExitFocus();
  if (move != moves_) return;
  entered_ = true;
  receiver.GotFocus();
}

void Focus::SettleNow() {
  unsettled_ = false;
  if (focused_ == nullptr || focused_->CanTakeFocus()) return;
  Focusable* const surface = focused_->Owner().Surface();
  if (surface != nullptr && surface->CanTakeFocus()) Move(*surface);
}

void Focus::Forget(Control& control) {
  const auto is_of = [&](Focusable* part) { return part != nullptr && &part->Owner() == &control; };
  if (is_of(receiver_)) {
    ++moves_;
    receiver_ = nullptr;
  }
  if (!is_of(focused_)) return;
  ++moves_;
  focused_ = nullptr;
  entered_ = false;
}

}  // namespace gabarito::kit
