#include "hosts/web/page.h"

#include <algorithm>

#include "gabarito/platform/virtual_keys.h"
#include "hosts/kit/comfort.h"
#include "hosts/kit/field_parts.h"
#include "hosts/kit/key_protocol.h"
#include "hosts/web/imports.h"

namespace gabarito::web {
namespace {

constexpr double kMillisecondsADay = 86400000;
constexpr double kDaysTo1970 = 25569;  // since 30 December 1899

}  // namespace

Date WallClock::Now() const { return kDaysTo1970 + gb_now() / kMillisecondsADay; }

std::int32_t PageDialogs::MsgBox(std::u16string_view text, std::int32_t flags,
                                 std::optional<std::u16string_view> title) {
  const bool question = flags == kMsgQuestion;
  if (quiet) return question ? kAnswerNo : kAnswerOk;
  return gb_message(field_, text.data(), static_cast<std::int32_t>(text.size()),
                    title ? title->data() : nullptr, title ? static_cast<std::int32_t>(title->size()) : -1,
                    flags);
}

void PageDialogs::Beep() {
  if (!quiet) gb_beep(field_);
}

Page::Page() : FormModel({}) {
  services.clock = &lent.clock;
  services.kernel = &lent.kernel;
  services.regional = &lent.kernel.regional;
  services.ambient = &lent.ambient;
  services.metric = &lent.metric;
  comfort = true;
}

std::int32_t Page::NumberOf(const kit::Control* control) const {
  const auto found = numbers_.find(control);
  return found == numbers_.end() ? 0 : found->second;
}

Elsewhere& Page::Place(std::int32_t number, std::string name) {
  auto& place = places_[number];
  if (place == nullptr) place = std::make_unique<Elsewhere>(number, std::move(name));
  return *place;
}

const Elsewhere* Page::PlaceWith(const kit::Focusable& focused) const {
  for (const auto& [number, place] : places_) {
    if (place.get() == &focused) return place.get();
  }
  return nullptr;
}

// Inside the field by the order of its children; from its last one on by that of the page, which only the
// page knows.
void Page::Tab(bool backwards) {
  kit::Focusable* const focused = focus.Focused();
  if (focused == nullptr) return;
  std::vector<kit::Focusable*> stops;
  focused->Owner().TabStops(stops);
  if (backwards) std::reverse(stops.begin(), stops.end());
  auto next = std::find(stops.begin(), stops.end(), focused);
  // The surface stands in front of all children.
  next = next != stops.end() ? next + 1 : backwards ? stops.end() : stops.begin();
  next = std::find_if(next, stops.end(), [](const kit::Focusable* stop) { return stop->CanTakeFocus(); });
  if (next != stops.end()) return focus.Move(**next);
  gb_tab(NumberOf(&focused->Owner()), backwards ? 1 : 0);
}

void Page::Deliver(const kit::KeyEvent& event) {
  if (event.vk == kVkTab && (event.shift & (kCtrlMask | kAltMask)) == 0) {
    if (!event.up && !kit::StepBackInside(*this, event)) Tab((event.shift & kShiftMask) != 0);
    return;
  }
  kit::Focusable* const focused = focus.Focused();
  if (focused == nullptr || focused->Input() == nullptr || !focused->CanTakeFocus()) return;
  const auto held = focused->Owner().Hold();
  kit::IntoModel(*focused->Input(), event, clipboard);
}

void Page::Closing(kit::FieldParts& parts) { numbers_.erase(&parts); }

}  // namespace gabarito::web
