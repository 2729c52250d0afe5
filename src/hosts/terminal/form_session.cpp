#include "hosts/terminal/form_session.h"

#include <algorithm>
#include <ranges>

#include "gabarito/platform/erro.h"
#include "gabarito/platform/virtual_keys.h"
#include "hosts/terminal/foot_line.h"
#include "hosts/terminal/key_hints.h"
#include "hosts/terminal/line_keys.h"

namespace gabarito::terminal {
namespace {

constexpr std::chrono::milliseconds kHintTime{2500};
constexpr char16_t kCtrlC = 3, kCtrlV = 22, kCtrlX = 24;
constexpr int kRowsOfATurn = 3;

// What was drawn last lies on top: the list over the fields that it covers.
bool ClickTarget(const Screen& screen, Point at) {
  for (auto target = screen.targets.rbegin(); target != screen.targets.rend(); ++target) {
    if (!target->Holds(at)) continue;
    target->click(at.x - target->x);
    return true;
  }
  return false;
}

}  // namespace

FormSession::FormSession(FormModel& model, Display& display)
    : model_(model),
      display_(display),
      view_(model, notices_, [this] { TryToFinish(); }),
      agreed_(model.Lines().size()) {
  model_.Listen(this);
  model_.Finish().onClick = [this] { TryToFinish(); };
}

FormSession::~FormSession() {
  model_.Listen(nullptr);
  model_.Finish().onClick = nullptr;
}

std::optional<std::vector<FieldValue>> FormSession::Run() {
  for (std::size_t line = 0; line < model_.Lines().size(); ++line) {
    const FormModel::Line& filled = model_.Lines()[line];
    if (filled.lost) notices_.Refuse(line, u"valor inicial não aceito: " + filled.spec.value);
  }
  model_.Form().Tab(false);
  notices_.Settle(model_);
  while (end_ == End::kNotYet) {
    display_.Show(view_.Draw(display_.Width(), display_.Height()));
    const auto most = notices_.HasHint() ? std::optional(kHintTime) : std::nullopt;
    Handle(display_.Next(most));
    if (interrupted_) throw *interrupted_;
  }
  if (end_ == End::kGivenUp) return {};
  return std::move(values_);
}

void FormSession::Handle(const Input& input) {
  if (input.kind != Input::Kind::kRedraw) notices_.EndHint();
  // An exit check that this input leads to fills in the present moment.
  model_.TakeTime();
  try {
    Play(input);
  } catch (const Erro& erro) {
    if (model_.FocusedLine() < agreed_.size()) notices_.Refuse(model_.FocusedLine(), erro.Description());
  }
  RestoreSeparators();
  notices_.Settle(model_);
}

void FormSession::Play(const Input& input) {
  switch (input.kind) {
    case Input::Kind::kKey:
      return Press(input.vk, input.shift);
    case Input::Kind::kCharacter:
      return Type(input.character);
    case Input::Kind::kPaste: {
      // What the person has copied inside the form stays there.
      std::u16string& clipboard = model_.Form().Clipboard();
      const std::u16string kept = clipboard;
      model_.Form().Paste(input.text);
      clipboard = kept;
      return;
    }
    case Input::Kind::kClick:
      return Click(input.at);
    case Input::Kind::kWheel:
      return view_.Wheel(input.turns * kRowsOfATurn);
    case Input::Kind::kWordStep:
      return StepWord(model_.Form(), input.turns < 0, input.shift);
    case Input::Kind::kFinish:
      return TryToFinish();
    case Input::Kind::kHelp:
      Ask(MessageBox(HelpText(model_), kMsgInformation, U"Ajuda"));
      return;
    case Input::Kind::kRedraw:
    case Input::Kind::kTime:
    case Input::Kind::kNothing:
      return;
  }
}

void FormSession::Press(std::int16_t vk, std::int16_t shift) {
  const kit::ComboModel* const combo = model_.FocusedCombo();
  const bool open = combo != nullptr && combo->DroppedDown();
  if (vk == kVkEscape && !open) return GiveUp();
  model_.Form().Press(vk, shift);
}

void FormSession::Type(char16_t character) {
  memory::Form& form = model_.Form();
  const std::optional<Piece> entry = EntryOf(form.Focused());
  if (character == kCtrlC && (!entry || entry->length == 0)) {
    end_ = End::kGivenUp;
    return;
  }
  if (PlayLineKey(form, character)) return;
  // The other control characters are keys of the terminal that mean nothing here.
  if (character < u' ' && character != kCtrlC && character != kCtrlV && character != kCtrlX) return;
  const std::u16string before = entry ? std::u16string(entry->text) : std::u16string();
  const int beeps = beeps_;
  kit::Focusable* const focused = form.Focused();
  form.Type({&character, 1});
  if (!entry || character < u' ' || form.Focused() != focused) return;
  const std::optional<Piece> after = EntryOf(focused);
  // A list refuses without a sound.
  const bool still = entry->list != nullptr && after->text == before && after->start == entry->start &&
                     after->length == entry->length;
  if (still || (beeps_ != beeps && after->text == before)) TellWhyRefused(character);
}

void FormSession::TellWhyRefused(char16_t character) {
  const std::size_t line = model_.FocusedLine();
  const Piece entry = *EntryOf(model_.Form().Focused());
  memory::Field& field = *model_.Lines()[line].field;
  notices_.Hint(line, entry.list != nullptr ? kNotInList : WhyRefused(*field, entry, character));
}

void FormSession::Click(Point at) {
  // What lies under the pointer is what was shown last; nothing has changed since.
  if (ClickTarget(view_.Draw(display_.Width(), display_.Height()), at)) return;
  // A click beside an open list closes it.
  if (kit::ComboModel* combo = model_.FocusedCombo()) combo->DropDown(false);
}

// The focus passes to the button, so that the field that is left is judged first; then each field in turn.
// The first that refuses keeps the person.
void FormSession::TryToFinish() {
  memory::Form& form = model_.Form();
  const int before = refusals_;
  const std::size_t left = model_.FocusedLine();
  form.SetFocus(model_.Finish());
  form.Run();
  if (refusals_ != before) return StayAt(left);
  if (form.Focused() != &model_.Finish()) return;
  values_.clear();
  for (std::size_t line = 0; line < model_.Lines().size(); ++line) {
    if (!Passes(line)) return StayAt(line);
  }
  end_ = End::kFinished;
}

bool FormSession::Passes(std::size_t line) {
  const int before = refusals_;
  FieldValue value = model_.Read(line);
  if (refusals_ == before && value.empty && model_.Lines()[line].spec.required) {
    notices_.Refuse(line, u"preencha este campo");
    ++refusals_;
  }
  values_.push_back(std::move(value));
  return refusals_ == before;
}

// A field that has put something else in place of what it refuses has let the focus go.
void FormSession::StayAt(std::size_t line) {
  if (line < model_.Lines().size() && model_.FocusedLine() != line) {
    model_.Form().SetFocus(*model_.Lines()[line].field->Surface());
  }
}

void FormSession::GiveUp() {
  constexpr std::u32string_view kQuestion = U"Desistir? O que foi preenchido se perde.";
  if (Ask(MessageBox(kQuestion, kMsgQuestion, ToCells(model_.Spec().title))) == kAnswerYes)
    end_ = End::kGivenUp;
}

// A date that is emptied loses what stands between its boxes until it is laid out again.
void FormSession::RestoreSeparators() {
  for (const FormModel::Line& line : model_.Lines()) {
    kit::FieldParts& parts = line.field->Parts();
    const auto pieces = PiecesOf(parts);
    const bool lost = std::ranges::any_of(
        pieces, [](const Piece& piece) { return piece.entry == nullptr && piece.text.empty(); });
    if (lost && IsEmpty(parts)) parts.surface.RaiseResize();
  }
}

std::int32_t FormSession::Told(std::size_t line, std::u16string_view text, std::int32_t flags,
                               std::optional<std::u16string_view> title) {
  const std::u16string_view own = model_.Spec().title;
  const MessageBox box(ToCells(text), flags, ToCells(title.value_or(own)));
  if (!box.IsQuestion()) {
    notices_.Refuse(line, text);
    ++refusals_;
    return kAnswerOk;
  }
  // Whoever has stood by an entry once is not asked again until it changes.
  const std::u16string content = ContentOf(model_.Lines()[line].field->Parts());
  if (agreed_[line] == content) return kAnswerYes;
  const std::int32_t answer = Ask(box);
  if (answer == kAnswerYes) {
    agreed_[line] = content;
  } else {
    ++refusals_;
  }
  return answer;
}

void FormSession::Beeped(std::size_t) {
  ++beeps_;
  display_.Beep();
}

// Inside a handler of the field the form is drawn as it stands half-way, and gets no input. Whoever leaves
// the form from here has answered with Escape.
std::int32_t FormSession::Ask(MessageBox box) {
  while (!box.Answer() && end_ == End::kNotYet && !interrupted_) {
    Screen screen = view_.Draw(display_.Width(), display_.Height());
    DrawFoot(screen.grid, box);
    box.Draw(screen);
    display_.Show(screen);
    Input input;
    try {
      input = display_.Next({});
    } catch (const Interrupted& interrupted) {
      interrupted_ = interrupted;
      break;
    }
    if (input.kind == Input::Kind::kKey) box.Press(input.vk);
    if (input.kind == Input::Kind::kWheel) box.Turn(input.turns);
    if (input.kind == Input::Kind::kClick) ClickTarget(screen, input.at);
    if (input.kind == Input::Kind::kCharacter) {
      if (input.character == kCtrlC) {
        end_ = End::kGivenUp;
      } else {
        box.Type(input.character);
      }
    }
  }
  if (!box.Answer()) box.Press(kVkEscape);
  return *box.Answer();
}

}  // namespace gabarito::terminal
