#include "cli/script/script.h"

#include <algorithm>
#include <istream>
#include <ostream>
#include <stdexcept>
#include <string>

#include "cli/properties.h"
#include "cli/script/child_members.h"
#include "cli/utf8.h"
#include "gabarito/keyinject/send_input.h"
#include "hosts/memory/memory_bag.h"

namespace gabarito::cli {
namespace {

// Some editors put it in front of a text in UTF-8.
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

// Cuts the first word off `rest`; one blank parts it from what is left.
std::string_view Word(std::string_view& rest) {
  const std::size_t end = rest.find(' ');
  const std::string_view word = rest.substr(0, end);
  rest = end == std::string_view::npos ? std::string_view() : rest.substr(end + 1);
  return word;
}

void NoMore(std::string_view rest) {
  if (!rest.empty()) throw UsageError("too many arguments: '" + std::string(rest) + "'");
}

std::int16_t Int16(std::string_view text, std::string_view what, std::int16_t least = -32768,
                   std::int16_t most = 32767) {
  return static_cast<std::int16_t>(NumberFromText(text, what, least, most));
}

memory::MemoryBag Bag(std::string_view json) {
  try {
    return memory::MemoryBag::FromJson(json);
  } catch (const std::invalid_argument& fault) {
    throw UsageError(fault.what());
  }
}

Date Moment(std::string_view text) {
  // YYYY-MM-DDThh:mm:ss
  constexpr std::string_view kForm = "0000-00-00T00:00:00";
  bool fits = text.size() == kForm.size();
  for (std::size_t i = 0; fits && i < text.size(); ++i) {
    fits = kForm[i] == '0' ? text[i] >= '0' && text[i] <= '9' : text[i] == kForm[i];
  }
  if (!fits) throw UsageError("a moment is written YYYY-MM-DDThh:mm:ss, not '" + std::string(text) + "'");
  const auto part = [&](std::size_t at, std::size_t length) {
    return static_cast<std::int32_t>(NumberFromText(text.substr(at, length), "the moment", 0, 9999));
  };
  try {
    return DateFromParts({part(0, 4), part(5, 2), part(8, 2), part(11, 2), part(14, 2), part(17, 2)});
  } catch (const Erro&) {
    throw UsageError("there is no such moment: " + std::string(text));
  }
}

}  // namespace

enum class Needs { kNothing, kField };

struct Script::Action {
  std::string_view name;
  Needs needs;
  void (Script::*run)(std::string_view rest);
};

const Script::Action* Script::Find(std::string_view name) {
  static constexpr Action kActions[] = {
      {"new", Needs::kNothing, &Script::New},
      {"load", Needs::kNothing, &Script::Load},
      {"init", Needs::kNothing, &Script::Init},
      {"raise", Needs::kField, &Script::Raise},
      {"save", Needs::kField, &Script::Save},
      {"size", Needs::kField, &Script::Size},
      {"ambient", Needs::kNothing, &Script::Ambient},
      {"set", Needs::kField, &Script::Set},
      {"get", Needs::kField, &Script::Get},
      {"call", Needs::kField, &Script::Call},
      {"focus", Needs::kField, &Script::Focus},
      {"type", Needs::kField, &Script::Type},
      {"key", Needs::kField, &Script::Key},
      {"keys", Needs::kField, &Script::Keys},
      {"paste", Needs::kField, &Script::Paste},
      {"select", Needs::kField, &Script::Select},
      {"child", Needs::kField, &Script::Child},
      {"answer", Needs::kNothing, &Script::Answer},
      {"onkeyup", Needs::kNothing, &Script::OnKeyUp},
      {"clock", Needs::kNothing, &Script::Clock},
      {"region", Needs::kNothing, &Script::Region},
      {"layout", Needs::kNothing, &Script::Layout},
      {"capslock", Needs::kNothing, &Script::CapsLock},
      {"fail", Needs::kField, &Script::Fail},
      {"hook", Needs::kField, &Script::Hook},
      {"unhook", Needs::kField, &Script::Unhook},
      {"message", Needs::kField, &Script::Message},
      {"dump", Needs::kField, &Script::Dump},
  };
  for (const Action& action : kActions) {
    if (action.name == name) return &action;
  }
  return nullptr;
}

Script::Script(std::ostream& out)
    : transcript_(out),
      before_(form_.AddBox("before")),
      field_(form_.AddField("field")),
      after_(form_.AddBox("after")),
      other_window_(form_.AllWindows().Open(nullptr)) {
  form_.SetFocus(before_);
  form_.System().recorder = &transcript_;
}

void Script::Line(std::string_view line) {
  if (line.ends_with('\r')) line.remove_suffix(1);
  line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
  if (line.empty() || line.front() == '#') return;
  const std::string_view name = Word(line);
  const Action* const action = Find(name);
  if (action == nullptr) throw UsageError("unknown action '" + std::string(name) + "'");
  if (action->needs == Needs::kField && !field_.Exists()) {
    throw UsageError("there is no field yet: start with new, load or init");
  }
  try {
    (this->*action->run)(line);
    form_.Settle();
  } catch (const Erro& erro) {
    transcript_.Error(erro);
  }
}

// The focus of a field that ends goes back to where it started.
void Script::ReadyForField() {
  field_.End();
  if (form_.Focused() != nullptr) return;
  form_.System().recorder = nullptr;
  form_.SetFocus(before_);
  form_.System().recorder = &transcript_;
}

void Script::ListenToKeyUp() {
  field_->KeyUp([this](std::int16_t& KeyCode, std::int16_t& Shift) {
    transcript_.KeyUp(KeyCode, Shift);
    if (key_code_) KeyCode = *key_code_;
  });
}

void Script::New(std::string_view rest) {
  NoMore(rest);
  ReadyForField();
  field_.Create();
  ListenToKeyUp();
}

void Script::Load(std::string_view rest) {
  const memory::MemoryBag bag = Bag(rest);
  ReadyForField();
  field_.Load(bag);
  ListenToKeyUp();
}

void Script::Init(std::string_view rest) {
  NoMore(rest);
  ReadyForField();
  field_.Place();
  ListenToKeyUp();
}

void Script::Raise(std::string_view rest) {
  const std::string_view event = Word(rest);
  Gabarito& field = *field_;
  if (event == "AmbientChanged") return field.UserControl_AmbientChanged(TextFromText(rest));
  if (event == "ReadProperties") return field.UserControl_ReadProperties(Bag(rest));
  NoMore(rest);
  if (event == "Show") return field.UserControl_Show();
  if (event == "Resize") return field_.Parts().surface.RaiseResize();
  if (event == "GotFocus") return field.UserControl_GotFocus();
  if (event == "ExitFocus") return field_.ExitFocus();
  if (event == "Terminate") return field.UserControl_Terminate();
  throw UsageError("the host raises no event '" + std::string(event) + "'");
}

void Script::Save(std::string_view rest) {
  NoMore(rest);
  memory::MemoryBag bag;
  field_->UserControl_WriteProperties(bag);
  transcript_.Write({{"bag", Json::parse(bag.ToJson())}});
}

void Script::Size(std::string_view rest) {
  const float width = LengthFromText(Word(rest));
  const float height = LengthFromText(Word(rest));
  NoMore(rest);
  field_.Parts().surface.Size(width, height);
}

void Script::Ambient(std::string_view rest) {
  memory::SettableAmbient& ambient = form_.System().ambient;
  const std::string_view what = Word(rest);
  if (what == "BackColor") {
    ambient.backColor = static_cast<Color>(NumberFromText(rest, "BackColor", -2147483648LL, 4294967295LL));
  } else if (what == "Font") {
    ambient.font = FontFromJson(JsonFromText(rest, "Font"));
  } else if (what == "none" || what == "available") {
    NoMore(rest);
    ambient.available = what == "available";
  } else {
    throw UsageError("there is no ambient '" + std::string(what) + "'");
  }
}

void Script::Set(std::string_view rest) {
  const std::string_view name = Word(rest);
  SetPropertyFromText(*field_, name, rest);
}

void Script::Get(std::string_view rest) {
  Json value = GetProperty(*field_, rest);
  transcript_.Write({{"get", std::string(rest)}, {"value", std::move(value)}});
}

void Script::Call(std::string_view rest) {
  const std::string_view name = Word(rest);
  if (name == "pfTiraAcentoDeFrase") {
    const std::u16string result = field_->pfTiraAcentoDeFrase(TextFromText(rest));
    transcript_.Write({{"call", "pfTiraAcentoDeFrase"}, {"value", ToUtf8(result)}});
    return;
  }
  NoMore(rest);
  if (name == "ApagaCampos") return field_->ApagaCampos();
  if (name == "Sobre") return field_->Sobre();
  throw UsageError("there is no method '" + std::string(name) + "'");
}

memory::Focusable& Script::Receiver(std::string_view name) {
  if (name == "before") return before_;
  if (name == "after") return after_;
  if (name == "field") return field_.Parts().surface;
  if (memory::Focusable* child = InputChildOf(field_.Parts(), name)) return *child;
  throw UsageError("nothing called '" + std::string(name) + "' takes the focus");
}

void Script::Focus(std::string_view rest) { form_.SetFocus(Receiver(rest)); }

void Script::Type(std::string_view rest) { form_.Type(TextFromText(rest)); }

void Script::Key(std::string_view rest) {
  const std::int16_t vk = Int16(Word(rest), "a virtual key", 1, 254);
  const std::int16_t shift = rest.empty() ? std::int16_t{0} : Int16(Word(rest), "the shift mask", 0, 7);
  NoMore(rest);
  form_.Press(vk, shift);
}

void Script::Keys(std::string_view rest) {
  memory::Environment& system = form_.System();
  SendKeyString(form_.AllWindows(), system.kernel, system.dialogs, TextFromText(rest), true);
  form_.Run();
}

void Script::Paste(std::string_view rest) { form_.Paste(TextFromText(rest)); }

void Script::Select(std::string_view rest) {
  const auto start = static_cast<std::int32_t>(NumberFromText(Word(rest), "the start", 0, 2147483647));
  const auto length = static_cast<std::int32_t>(NumberFromText(Word(rest), "the length", 0, 2147483647));
  NoMore(rest);
  if (auto* child = dynamic_cast<InputChild*>(form_.Focused())) {
    child->SelStart(start);
    child->SelLength(length);
  } else if (auto* box = dynamic_cast<memory::PlainBox*>(form_.Focused())) {
    box->Line().SelStart(start);
    box->Line().SelLength(length);
  } else {
    throw UsageError("what has the focus has no text to select");
  }
}

void Script::Child(std::string_view rest) {
  const std::string_view child = Word(rest);
  const bool reads = rest.find(' ') == std::string_view::npos;
  const std::string_view member = Word(rest);
  if (!reads) return WriteChild(field_.Parts(), child, member, rest);
  Json value = ReadChild(field_.Parts(), child, member);
  transcript_.Write({{"child", std::string(child)}, {std::string(member), std::move(value)}});
}

void Script::Answer(std::string_view rest) {
  form_.System().dialogs.answers.push_back(
      static_cast<std::int32_t>(NumberFromText(rest, "an answer", 0, 2147483647)));
}

void Script::OnKeyUp(std::string_view rest) {
  if (rest == "none") {
    key_code_.reset();
  } else {
    key_code_ = Int16(rest, "a key code");
  }
}

void Script::Clock(std::string_view rest) { form_.System().clock.Set(Moment(rest)); }

void Script::Region(std::string_view rest) {
  Regional& regional = form_.System().kernel.regional;
  const std::string_view key = Word(rest);
  if (key == "decimal") {
    regional.decimal = TextFromText(rest);
  } else if (key == "thousands") {
    regional.thousands = TextFromText(rest);
  } else if (key == "lastTwoDigitYear") {
    regional.lastTwoDigitYear = static_cast<std::int32_t>(NumberFromText(rest, "a year", 199, 9999));
  } else {
    throw UsageError("the region has no '" + std::string(key) + "'");
  }
}

void Script::Layout(std::string_view rest) {
  if (rest != "abnt2" && rest != "us") throw UsageError("the layout is abnt2 or us");
  form_.System().keyboard.Layout(rest == "us" ? memory::Us() : memory::Abnt2());
}

void Script::CapsLock(std::string_view rest) {
  if (rest != "on" && rest != "off") throw UsageError("capslock is on or off");
  form_.System().keyboard.CapsLock(rest == "on");
}

void Script::Fail(std::string_view rest) {
  const std::string_view operation = Word(rest);
  const std::size_t dot = operation.find('.');
  if (dot == std::string_view::npos) throw UsageError("fail takes CHILD.MEMBER and an error number");
  const std::string_view child = operation.substr(0, dot);
  const std::string_view member = operation.substr(dot + 1);
  CheckOperation(child, member);
  const auto number = static_cast<std::int32_t>(NumberFromText(rest, "an error number", 1, 65535));
  form_.System().faults.FailNext(std::string(child), std::string(member), number);
}

void Script::Hook(std::string_view rest) {
  NoMore(rest);
  field_->HookCombo();
}

void Script::Unhook(std::string_view rest) {
  NoMore(rest);
  field_->UnhookCombo();
}

void Script::Message(std::string_view rest) {
  std::string_view word = Word(rest);
  WindowHandle window = field_.Parts().Combo1.Window();
  if (word == "other") {
    window = other_window_;
    word = Word(rest);
  }
  NoMore(rest);
  const auto message = static_cast<std::int32_t>(NumberFromText(word, "a message", 0, 65535));
  form_.AllWindows().Send(window, message, 0, 0);
}

void Script::Dump(std::string_view rest) {
  NoMore(rest);
  const Campo& state = field_->Estado();
  const memory::Focusable* focused = form_.Focused();
  Json dump = {{"Mask", state.mMask},
               {"mSegmentos", state.mSegmentos},
               {"mMaxLength", state.mMaxLength},
               {"mValor", ToUtf8(state.mValor)},
               {"mTeclaDeEdicao", state.mTeclaDeEdicao},
               {"focus", focused == nullptr ? Json(nullptr) : Json(std::string(focused->Name()))}};
  dump.update(DumpChildren(field_.Parts()));
  transcript_.Write({{"dump", std::move(dump)}});
}

int RunScript(std::istream& in, std::ostream& out, std::ostream& err) {
  Script script(out);
  std::string line;
  for (std::size_t number = 1; std::getline(in, line); ++number) {
    if (number == 1 && line.starts_with(kByteOrderMark)) line.erase(0, kByteOrderMark.size());
    try {
      script.Line(line);
    } catch (const UsageError& fault) {
      out.flush();
      err << "gabarito script: line " << number << ": " << fault.what() << '\n';
      return 2;
    }
  }
  return 0;
}

}  // namespace gabarito::cli
