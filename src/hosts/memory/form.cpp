#include "hosts/memory/form.h"

#include <algorithm>
#include <utility>

#include "hosts/kit/comfort.h"
#include "hosts/kit/faults.h"
#include "hosts/kit/key_protocol.h"
#include "hosts/kit/own_entry.h"
#include "hosts/memory/button.h"
#include "hosts/memory/plain_box.h"

namespace gabarito::memory {

// The models are the entries themselves: what a key does, they do at once.
class Form::OwnModel final : public kit::FormModel {
 public:
  OwnModel(Form& form, const kit::Services& itsServices) : FormModel(itsServices), form_(form) {}

  void Closing(kit::FieldParts& parts) override { form_.windows_.Close(parts.Combo1.hWnd()); }

 private:
  void Deliver(const kit::KeyEvent& event) override;
  void IntoOwn(kit::Focusable& receiver, const kit::KeyEvent& event);

  Form& form_;
};

void Form::OwnModel::Deliver(const kit::KeyEvent& event) {
  if (event.vk == kVkTab && (event.shift & (kCtrlMask | kAltMask)) == 0) {
    if (event.up || kit::StepBackInside(*this, event)) return;
    form_.Tab((event.shift & kShiftMask) != 0);
    return;
  }
  kit::Focusable* const receiver = focus.Focused();
  if (receiver == nullptr || !receiver->CanTakeFocus()) return;
  if (kit::InputModel* const child = receiver->Input())
    return kit::IntoModel(*child, event, form_.clipboard_);
  IntoOwn(*receiver, event);
}

void Form::OwnModel::IntoOwn(kit::Focusable& receiver, const kit::KeyEvent& event) {
  // What is no part of a field is a control of this form's own.
  if (event.up || &receiver == receiver.Owner().Surface()) return;
  auto& own = static_cast<OwnControl&>(receiver);
  own.KeyDown(event.unicode != 0 ? kVkPacket : event.vk, event.shift);
  if (const char16_t character = keyboard.CharacterOf(event)) own.Character(character);
}

Form::Form() : windows_(*this, [this](WindowHandle window) { return ComboOf(window); }) {
  kit::Services services = services_.AsServices();
  services.window_hook = &windows_;
  model_ = std::make_shared<OwnModel>(*this, services);
}

// While what has the focus is still there.
Form::~Form() {
  for (const Place& place : places_) {
    if (place.field != nullptr) place.field->End();
  }
}

kit::FormModel& Form::Model() { return *model_; }

void Form::MakeFieldsBreakable() {
  model_->services.decorate = [this](const Host& host) { return kit::WithFaults(host, services_.faults); };
}

Field& Form::AddField(std::string name) {
  places_.push_back({.field = std::make_unique<Field>(model_, std::move(name)), .own = nullptr});
  return *places_.back().field;
}

PlainBox& Form::AddBox(std::string name) {
  auto box = std::make_unique<PlainBox>(std::move(name), clipboard_);
  PlainBox& added = *box;
  places_.push_back({.field = nullptr, .own = std::move(box)});
  return added;
}

Button& Form::AddButton(std::string name) {
  auto button = std::make_unique<Button>(std::move(name));
  Button& added = *button;
  places_.push_back({.field = nullptr, .own = std::move(button)});
  return added;
}

kit::Focusable* Form::Focused() { return model_->focus.Focused(); }

void Form::SetFocus(kit::Focusable& receiver) { model_->focus.Move(receiver); }

void Form::Tab(bool backwards) {
  if (kit::Focusable* const stop = NextStop(backwards)) SetFocus(*stop);
}

void Form::TabStops() {
  stops_.clear();
  for (const Place& place : places_) {
    if (place.own != nullptr) {
      place.own->TabStops(stops_);
    } else if (place.field->Exists()) {
      place.field->Parts().TabStops(stops_);
    }
  }
}

kit::Focusable* Form::NextStop(bool backwards) {
  TabStops();
  kit::Focusable* const focused = Focused();
  const auto count = static_cast<std::ptrdiff_t>(stops_.size());
  const auto here = std::find(stops_.begin(), stops_.end(), focused);
  std::ptrdiff_t next;  // where the search begins
  if (here != stops_.end()) {
    next = here - stops_.begin() + (backwards ? -1 : 1);
  } else if (focused == nullptr) {
    next = backwards ? -1 : 0;
  } else {
    // The surface of a field stands in front of its own children.
    const auto first = std::find_if(stops_.begin(), stops_.end(), [&](kit::Focusable* stop) {
      return &stop->Owner() == &focused->Owner();
    });
    next = first - stops_.begin() + (backwards ? -1 : 0);
  }
  for (std::ptrdiff_t tried = 0; tried < count; ++tried, next += backwards ? -1 : 1) {
    kit::Focusable* const stop = stops_[static_cast<std::size_t>((next + count) % count)];
    if (stop->CanTakeFocus()) return stop;
  }
  return nullptr;
}

kit::ComboModel* Form::ComboOf(WindowHandle window) const {
  for (const Place& place : places_) {
    if (place.field == nullptr || !place.field->Exists()) continue;
    kit::ComboModel& combo = place.field->Parts().Combo1;
    if (combo.hWnd() == window) return &combo;
  }
  return nullptr;
}

void Form::Run() { model_->Run(); }

void Form::Press(std::int16_t vk, std::int16_t shift) {
  model_->keyboard.Press(vk, shift);
  Run();
}

void Form::Type(std::u16string_view text) {
  for (const char16_t character : text) {
    model_->keyboard.PressCharacter(character);
    Run();
  }
}

void Form::Paste(std::u16string_view text) {
  clipboard_ = text;
  Press('V', kCtrlMask);
}

}  // namespace gabarito::memory
