#include "hosts/terminal/form_session.h"

#include <ranges>

#include "gabarito/platform/erro.h"
#include "gabarito/platform/virtual_keys.h"
#include "hosts/terminal/message_box.h"

namespace gabarito::terminal {
namespace {

// Leaves the form out of a message box, so that a field that goes on refusing holds nobody. It passes through
// the handlers of the field, which skip an Erro only.
struct LeftFromMessageBox {};

// What was drawn last lies on top: the list over the fields that it covers.
bool ClickTarget(const Screen& screen, Point at) {
  for (const Target& target : screen.targets | std::views::reverse) {
    if (!target.Holds(at)) continue;
    target.click(at.x - target.x);
    return true;
  }
  return false;
}

}  // namespace

FormSession::FormSession(FormModel& model, Display& display)
    : model_(model), display_(display), view_(model, [this] { AskToLeave(); }) {
  model_.Listen(this);
  model_.Leave().onClick = [this] { left_ = true; };
}

// The form lives on and is read at the end; nobody is there to answer it then.
FormSession::~FormSession() {
  model_.Listen(nullptr);
  model_.Leave().onClick = nullptr;
}

void FormSession::Run() {
  try {
    model_.Form().Tab(false);
    while (!left_) {
      display_.Show(view_.Draw(display_.Width(), display_.Height()));
      Handle(display_.Next());
    }
  } catch (const LeftFromMessageBox&) {
  }
}

void FormSession::Handle(const Input& input) {
  // An exit check that this input leads to fills in the present moment.
  model_.TakeTime();
  try {
    Play(input);
  } catch (const Erro& erro) {
    Ask(erro.Description(), kMsgCritical, u"Erro");
  }
}

void FormSession::Play(const Input& input) {
  switch (input.kind) {
    case Input::Kind::kKey:
      return model_.Form().Press(input.vk, input.shift);
    case Input::Kind::kCharacter:
      return model_.Form().Type({&input.character, 1});
    case Input::Kind::kClick:
      return Click(input.at);
    case Input::Kind::kLeave:
      return AskToLeave();
    case Input::Kind::kRedraw:
      return;
  }
}

void FormSession::Click(Point at) {
  // What lies under the pointer is what was shown last; nothing has changed since.
  if (ClickTarget(view_.Draw(display_.Width(), display_.Height()), at)) return;
  // A click beside an open list closes it.
  if (kit::ComboModel* combo = model_.FocusedCombo()) combo->DropDown(false);
}

// The focus passes to Sair, so that the field that is left is judged as ever. Whoever saw a message stays, to
// look at what it has done to the field.
void FormSession::AskToLeave() {
  const int before = boxes_;
  memory::Form& form = model_.Form();
  form.SetFocus(model_.Leave());
  form.Run();
  left_ = form.Focused() == &model_.Leave() && boxes_ == before;
}

std::int32_t FormSession::Told(std::size_t, std::u16string_view text, std::int32_t flags,
                               std::optional<std::u16string_view> title) {
  return Ask(text, flags, title);
}

void FormSession::Beeped(std::size_t) { display_.Beep(); }

std::int32_t FormSession::Ask(std::u16string_view text, std::int32_t flags,
                              std::optional<std::u16string_view> title) {
  ++boxes_;
  MessageBox box(text, flags, title);
  // Inside a handler of the field: the form is drawn as it stands half-way, and gets no input.
  while (!box.Answer()) {
    Screen screen = view_.Draw(display_.Width(), display_.Height());
    box.Draw(screen);
    display_.Show(screen);
    const Input input = display_.Next();
    switch (input.kind) {
      case Input::Kind::kKey:
        box.Press(input.vk);
        break;
      case Input::Kind::kCharacter:
        box.Type(input.character);
        break;
      case Input::Kind::kClick:
        ClickTarget(screen, input.at);
        break;
      case Input::Kind::kLeave:
        throw LeftFromMessageBox();
      case Input::Kind::kRedraw:
        break;
    }
  }
  return *box.Answer();
}

}  // namespace gabarito::terminal
