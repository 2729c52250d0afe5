#include "hosts/web/web_field.h"

#include <algorithm>
#include <utility>

#include "gabarito/control/field_events.h"
#include "gabarito/platform/virtual_keys.h"
#include "gabarito/state/campo.h"
#include "hosts/kit/comfort.h"
#include "hosts/kit/own_entry.h"
#include "hosts/kit/visit_input.h"
#include "hosts/web/imports.h"

namespace gabarito::web {
namespace {

// What of a field itself is new.
enum News : std::int32_t { kValue = 1, kSize = 2 };

constexpr std::int16_t kVkV = 'V';
constexpr std::int16_t kVkX = 'X';

// Whether the entry of the page has anything to do for the character, so that it will tell of an edit.
bool WillEdit(const kit::InputModel& child, char16_t character) {
  const InputChild& box = const_cast<kit::InputModel&>(child).AsChild();
  if (character == kit::kBackspace) return box.SelStart() > 0 || box.SelLength() > 0;
  return character >= u' ' || (character == kit::kCut && box.SelLength() > 0);
}

}  // namespace

WebField::WebField(std::shared_ptr<Page> page, std::int32_t number, std::string name)
    : page_(std::move(page)), number_(number), dialogs_(number), model_(page_, std::move(name)) {}

void WebField::Create() {
  model_.Voice(&dialogs_);
  model_.Create();
  model_->KeyUp([number = number_](std::int16_t& KeyCode, std::int16_t& Shift) {
    const std::int32_t left = gb_key_up(number, KeyCode, Shift);
    KeyCode = static_cast<std::int16_t>(left & 0xFFFF);
    Shift = static_cast<std::int16_t>(left >> 16);
  });
  Register();
}

void WebField::Register() {
  if (model_.Exists()) page_->Register(model_.Parts(), number_);
  told_ = false;
}

kit::InputModel& WebField::Entry(std::int32_t child) {
  if (child < 0 || child >= kEntries) Fail(kSubscriptOutOfRange);
  return *model_.Parts().InTabOrder()[static_cast<std::size_t>(child)];
}

void WebField::HandOver(const Held& held) {
  if (held.child >= 0 && model_.Exists())
    Entry(held.child).HandOver(held.text, held.selStart, held.selLength);
}

// --- Keys
// -----------------------------------------------------------------------------------------------------------

std::int16_t WebField::KeyOf(char16_t character, std::int16_t& shift) const {
  const kit::Keyboard& keyboard = page_->keyboard;
  const auto stroke = keyboard.Layout().StrokeFor(character);
  if (!stroke) return kVkPacket;
  const bool command = (shift & (kCtrlMask | kAltMask)) == kCtrlMask;
  if (!command) {
    shift = stroke->shift;
    // With Caps Lock the same letter comes from the key without Shift.
    if (keyboard.Layout().CharacterOf(stroke->vk, shift, keyboard.CapsLock()) != character)
      shift ^= kShiftMask;
  }
  return stroke->vk;
}

void WebField::KeyDown(std::int32_t which, std::int16_t vk, std::int16_t shift, char16_t character) {
  if (waiting_) Go();
  const auto held = model_.SharedParts();
  kit::InputModel& child = Entry(which);
  if (vk == 0) vk = KeyOf(character, shift);
  if (child.Kind() == kit::InputKind::kCombo && kit::ClipboardKey(vk, shift) != 0)
    return;  // its own, without events
  const bool typed = vk == kVkPacket || (shift & (kCtrlMask | kAltMask)) != kCtrlMask;
  const kit::KeyEvent event{.vk = vk, .shift = shift};
  Judge(child, vk, shift, typed && character != 0 ? character : page_->keyboard.CharacterOf(event));
}

void WebField::Judge(kit::InputModel& child, std::int16_t vk, std::int16_t shift, char16_t character) {
  const kit::KeyAction action = kit::KeyGoesDown(child, vk, shift, page_->clipboard);
  if (action == kit::KeyAction::kUsedUp || !child.CanTakeFocus()) {
    verdict_ = Verdict::kNothing;
  } else if (character == 0) {
    verdict_ = action == kit::KeyAction::kNative ? Verdict::kNative : Verdict::kNothing;
  } else {
    JudgeCharacter(child, character);
  }
  // A combo box lets what waits go on when the key comes up, after what it does then.
  waiting_ = page_->keyboard.Pending() && ((verdict_ == Verdict::kNative && WillEdit(child, character)) ||
                                           child.Kind() == kit::InputKind::kCombo);
  if (!waiting_) page_->Run();
}

void WebField::JudgeCharacter(kit::InputModel& child, char16_t character) {
  const kit::CharacterVerdict verdict = kit::CharacterArrives(child, character);
  switch (verdict.action) {
    case kit::CharacterAction::kInsert:
      verdict_ =
          character == kit::kBackspace && !WillEdit(child, character) ? Verdict::kNothing : Verdict::kNative;
      break;
    case kit::CharacterAction::kReplace:
      Replace(child, {&verdict.character, 1});
      break;
    case kit::CharacterAction::kNothing:
    case kit::CharacterAction::kDone:
      verdict_ = Verdict::kNothing;
  }
}

// Puts a text in the place of the selection: in the model at once, in the entry by its own editing.
void WebField::Replace(kit::InputModel& child, std::u16string_view text) {
  const InputChild& box = child.AsChild();
  verdict_ = Verdict::kEdit;
  edit_ = {
      .changes = true, .start = box.SelStart(), .removed = box.SelLength(), .inserted = std::u16string(text)};
  std::u16string clipboard(text);
  kit::ActOnCharacter(child, kit::kPaste, clipboard);
  edit_.caret = box.SelStart();
}

void WebField::KeyUp(std::int32_t which, std::int16_t vk, std::int16_t shift, char16_t character) {
  const auto held = model_.SharedParts();
  kit::InputModel& child = Entry(which);
  if (vk == 0) vk = KeyOf(character, shift);
  if (child.CanTakeFocus()) child.KeyUp(vk, shift);
  Go();
}

void WebField::Go() {
  waiting_ = false;
  page_->Run();
}

void WebField::Insert(std::int32_t which, std::u16string_view text) {
  if (waiting_) Go();
  const auto held = model_.SharedParts();
  kit::TextEdit edit = kit::TextArrives(Entry(which), text);
  verdict_ = edit.changes ? Verdict::kEdit : Verdict::kNothing;
  edit_ = std::move(edit);
  page_->Run();
}

void WebField::Paste(std::int32_t which, std::u16string_view clipboard) {
  const auto held = model_.SharedParts();
  kit::InputModel& child = Entry(which);
  page_->clipboard = clipboard;
  const std::u16string_view line = kit::FirstLine(clipboard);
  verdict_ = Verdict::kNothing;
  if (child.Kind() == kit::InputKind::kCombo) {
    if (!line.empty()) Replace(child, line);
    return;
  }
  const kit::KeyAction action = kit::KeyGoesDown(child, kVkV, kCtrlMask, page_->clipboard);
  if (action == kit::KeyAction::kUsedUp || !child.CanTakeFocus()) return page_->Run();
  if (kit::CharacterArrives(child, kit::kPaste).action == kit::CharacterAction::kInsert &&
      !kit::TypeThrough(child, clipboard)) {
    const InputChild& box = child.AsChild();
    const auto kept = static_cast<std::int64_t>(box.Text().size()) - box.SelLength();
    const std::int64_t room =
        child.Limit() == 0 ? INT32_MAX : std::max<std::int64_t>(child.Limit() - kept, 0);
    if (const auto fitting = line.substr(0, static_cast<std::size_t>(room)); !line.empty())
      Replace(child, fitting);
  }
  page_->Run();
}

void WebField::Cut(std::int32_t which) {
  Judge(Entry(which), kVkX, kCtrlMask, kit::kCut);
  verdict_ = Verdict::kNothing;
}

// --- Focus, list, size
// ----------------------------------------------------------------------------------------------

void WebField::Focus(std::int32_t child) {
  const auto held = model_.SharedParts();
  kit::Focusable& receiver = child == kSurface ? static_cast<kit::Focusable&>(held->surface) : Entry(child);
  if (!receiver.CanTakeFocus()) return;
  page_->focus.Move(receiver);
  page_->Run();
}

void WebField::Pick(std::int16_t entry) {
  const auto held = model_.SharedParts();
  held->Combo1.Pick(entry);
}

void WebField::DropDown(bool open) { model_.Parts().Combo1.DropDown(open); }

void WebField::Size(float width, float height) {
  const auto held = model_.SharedParts();
  held->surface.Size(width, height);
}

void WebField::CheckQuietly() {
  const auto held = model_.SharedParts();
  const Hush hush(*this);
  page_->focus.Freeze(true);
  try {
    model_->Text();
  } catch (const Erro&) {
    // What cannot be read is not the value.
  }
  page_->focus.Freeze(false);
}

// --- The answer
// -----------------------------------------------------------------------------------------------------

void WebField::TellVerdict(Answer& answer) {
  const Verdict verdict = std::exchange(verdict_, Verdict::kNative);
  answer.Number(static_cast<std::int32_t>(verdict));
  answer.Number(waiting_ ? 1 : 0);
  if (verdict != Verdict::kEdit) return;
  answer.Number(edit_.start);
  answer.Number(edit_.removed);
  answer.Number(edit_.caret);
  answer.Text(edit_.inserted);
}

namespace {

void TellPlace(Answer& answer, const kit::Geometry& bounds) {
  answer.Length(bounds.left);
  answer.Length(bounds.width);
}

// A page takes a child that it has never heard of for hidden and empty: most are, and stay so.
enum class Telling { kNews, kAll, kWhatShows };

// What entries and labels have in common; the rest follows by the bits of the mask in rising order.
template <class Model>
std::int32_t TellCommon(Answer& answer, Model& model, std::int32_t place, Telling telling, bool empty) {
  const kit::Changes noted = model.TakeChanges();
  if (telling == Telling::kWhatShows && empty && !model.IsVisible()) return 0;
  const std::int32_t changes = (telling == Telling::kNews ? noted : kit::Changes::All()).Bits();
  if (changes == 0) return 0;
  answer.Number(place);
  answer.Number(changes);
  TellPlace(answer, model.Bounds());
  answer.Number((model.IsVisible() ? 1 : 0));
  answer.Number(static_cast<std::int32_t>(model.Color()));
  return changes;
}

constexpr std::int32_t Bit(kit::Change change) { return static_cast<std::int32_t>(change); }

template <class Model>
std::int32_t TellEntry(Answer& answer, Model& model, std::int32_t place, Telling telling) {
  const std::int32_t changes = TellCommon(answer, model, place, telling, model.Entry().Text().empty());
  if (changes == 0) return 0;
  answer.Number(model.IsEnabled() ? 1 : 0);
  answer.Number(model.Limit());
  if ((changes & Bit(kit::Change::kText)) != 0) answer.Text(model.Entry().Text());
  answer.Number(model.Entry().SelStart());
  answer.Number(model.Entry().SelLength());
  return changes;
}

void TellList(Answer& answer, const kit::ComboModel& combo) {
  answer.Number(combo.ListCount());
  answer.Number(combo.Selected());
  answer.Number(combo.DroppedDown() ? 1 : 0);
  answer.Text(combo.ToolTip());
}

}  // namespace

void WebField::TellNews(Answer& answer) {
  const auto parts = model_.SharedParts();
  const Telling telling = std::exchange(told_, true)    ? Telling::kNews
                          : std::exchange(known_, true) ? Telling::kAll
                                                        : Telling::kWhatShows;
  std::int32_t place = 0;
  for (kit::InputModel* const child : parts->InTabOrder()) {
    const auto told =
        kit::VisitInput(*child, [&](auto& model) { return TellEntry(answer, model, place, telling); });
    if (told != 0 && child == &parts->Combo1) TellList(answer, parts->Combo1);
    ++place;
  }
  for (kit::LabelModel& label : parts->lbl_controle) {
    if (TellCommon(answer, label, place++, telling, true) != 0) answer.Text(label.Shown());
  }
  answer.Number(kNowhere);
}

void WebField::TellField(Answer& answer) {
  if (!model_.Exists()) return;
  const auto parts = model_.SharedParts();
  const std::u16string& value = model_.Events().Estado().mValor;
  std::int32_t news = told_ ? 0 : kSize;
  if (!told_ || value != value_) news |= kValue;
  if (parts->surface.TakeChanges().Any()) news |= kSize;
  answer.Number(number_);
  answer.Number(news);
  if ((news & kValue) != 0) answer.Text(value_ = value);
  if ((news & kSize) != 0) answer.Length(parts->surface.Height());
  TellNews(answer);
}

}  // namespace gabarito::web
