#include "hosts/memory/form.h"

#include <algorithm>
#include <utility>

#include "gabarito/platform/erro.h"
#include "hosts/memory/button.h"
#include "hosts/memory/field.h"
#include "hosts/memory/plain_box.h"

namespace gabarito::memory {
namespace {

// The virtual key of a character that comes without a key.
constexpr std::int16_t kVkPacket = 231;

}  // namespace

Form::Form() : windows_(environment_) {}
// What has the focus may go before the fields do.
Form::~Form() { focused_ = nullptr; }

Field& Form::AddField(std::string name) {
  auto field = std::make_unique<Field>(*this, std::move(name));
  Field& added = *field;
  controls_.push_back(std::move(field));
  return added;
}

PlainBox& Form::AddBox(std::string name) {
  auto box = std::make_unique<PlainBox>(environment_, std::move(name));
  PlainBox& added = *box;
  controls_.push_back(std::move(box));
  return added;
}

Button& Form::AddButton(std::string name) {
  auto button = std::make_unique<Button>(std::move(name));
  Button& added = *button;
  controls_.push_back(std::move(button));
  return added;
}

void Form::SetFocus(Focusable& receiver) {
  if (focused_ == &receiver && receiver.CanTakeFocus()) return;
  if (!receiver.CanTakeFocus()) throw Erro(kInvalidProcedureCall);
  const std::uint64_t move = ++moves_;
  // What has never been told that it has the focus is not told that it loses it: two fields that both refuse
  // to be left would else throw the focus at each other without end.
  Focusable* const former = entered_ ? focused_ : nullptr;
  if (former != nullptr) former->LostFocus();
  if (move != moves_ || !receiver.CanTakeFocus()) return;
  focused_ = &receiver;
  entered_ = false;
  if (environment_.recorder != nullptr) environment_.recorder->Focus(receiver);
  if (former != nullptr && &former->Owner() != &receiver.Owner()) former->Owner().ExitFocus();
  if (move != moves_) return;
  entered_ = true;
  receiver.GotFocus();
}

void Form::Tab(bool backwards) {
  if (Focusable* const stop = NextStop(backwards)) SetFocus(*stop);
}

Focusable* Form::NextStop(bool backwards) {
  stops_.clear();
  for (const auto& control : controls_) control->TabStops(stops_);
  const auto count = static_cast<std::ptrdiff_t>(stops_.size());
  const auto here = std::find(stops_.begin(), stops_.end(), focused_);
  std::ptrdiff_t next;  // where the search begins
  if (here != stops_.end()) {
    next = here - stops_.begin() + (backwards ? -1 : 1);
  } else if (focused_ == nullptr) {
    next = backwards ? -1 : 0;
  } else {
    // The surface of a field stands in front of its own children.
    const auto first = std::find_if(stops_.begin(), stops_.end(),
                                    [&](Focusable* stop) { return &stop->Owner() == &focused_->Owner(); });
    next = first - stops_.begin() + (backwards ? -1 : 0);
  }
  for (std::ptrdiff_t tried = 0; tried < count; ++tried, next += backwards ? -1 : 1) {
    Focusable* const stop = stops_[static_cast<std::size_t>((next + count) % count)];
    if (stop->CanTakeFocus()) return stop;
  }
  return nullptr;
}

void Form::Settle() {
  if (!unsettled_) return;
  unsettled_ = false;
  if (focused_ == nullptr || focused_->CanTakeFocus()) return;
  Focusable* const surface = focused_->Owner().Surface();
  if (surface != nullptr && surface->CanTakeFocus()) SetFocus(*surface);
}

void Form::Forget(Control& control) {
  if (focused_ == nullptr || &focused_->Owner() != &control) return;
  ++moves_;
  focused_ = nullptr;
}

void Form::Run() {
  if (running_) return;
  running_ = true;
  try {
    while (environment_.keyboard.Pending()) {
      Deliver(environment_.keyboard.Next());
      Settle();
    }
  } catch (...) {
    running_ = false;
    throw;
  }
  running_ = false;
}

void Form::Deliver(const KeyEvent& event) {
  if (event.vk == kVkTab && (event.shift & (kCtrlMask | kAltMask)) == 0) {
    if (!event.up) Tab((event.shift & kShiftMask) != 0);
    return;
  }
  Focusable* const receiver = focused_;
  if (receiver == nullptr || !receiver->CanTakeFocus()) return;
  const std::int16_t vk = event.unicode != 0 ? kVkPacket : event.vk;
  if (event.up) {
    receiver->KeyUp(vk, event.shift);
    return;
  }
  if (!receiver->KeyDown(vk, event.shift)) return;
  const Keyboard& keyboard = environment_.keyboard;
  const char16_t character = event.unicode != 0
                                 ? event.unicode
                                 : keyboard.Layout().CharacterOf(vk, event.shift, keyboard.CapsLock());
  // The character goes to the entry that saw the key go down, if that is still on show.
  if (character != 0 && receiver->CanTakeFocus()) receiver->Character(character);
}

void Form::Press(std::int16_t vk, std::int16_t shift) {
  environment_.keyboard.Press(vk, shift);
  Run();
}

void Form::Type(std::u16string_view text) {
  Keyboard& keyboard = environment_.keyboard;
  for (char16_t character : text) {
    if (character == u'\n') character = u'\r';
    auto stroke = keyboard.Layout().StrokeFor(character);
    if (!stroke) {
      const INPUT events[] = {{.type = kInputKeyboard, .wScan = character, .dwFlags = kKeyUnicode},
                              {.type = kInputKeyboard, .wScan = character, .dwFlags = kKeyUnicode | kKeyUp}};
      keyboard.Send(events);
      Run();
      continue;
    }
    // A person who sees the wrong case come up holds Shift the other way round.
    if (keyboard.Layout().CharacterOf(stroke->vk, stroke->shift, keyboard.CapsLock()) != character) {
      stroke->shift ^= kShiftMask;
    }
    Press(stroke->vk, stroke->shift);
  }
}

void Form::Paste(std::u16string_view text) {
  environment_.clipboard = text;
  Press('V', kCtrlMask);
}

}  // namespace gabarito::memory
