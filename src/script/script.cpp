#include "script/script.h"

#include <algorithm>
#include <ostream>
#include <stdexcept>
#include <string>

#include "gabarito/keyinject/send_input.h"
#include "gabarito/state/campo.h"
#include "hosts/kit/utf8.h"
#include "script/bag_json.h"
#include "script/child_members.h"
#include "script/json.h"
#include "script/key_check.h"
#include "script/properties.h"

namespace gabarito::script {

using kit::ToUtf8;
namespace {

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
      {"comfort", Needs::kNothing, &Script::Comfort},
      {"dump", Needs::kField, &Script::Dump},
  };
  for (const Action& action : kActions) {
    if (action.name == name) return &action;
  }
  return nullptr;
}

Script::Script(Stage& stage, std::ostream& out) : stage_(stage), transcript_(out) {
  Form().focus.Move(stage_.Before());
  Form().recorder = &transcript_;
}

Script::~Script() { Form().recorder = nullptr; }

void Script::Line(std::string_view line) {
  if (line.ends_with('\r')) line.remove_suffix(1);
  line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
  if (line.empty() || line.front() == '#') return;
  const std::string_view name = Word(line);
  const Action* const action = Find(name);
  if (action == nullptr) throw UsageError("unknown action '" + std::string(name) + "'");
  if (action->needs == Needs::kField && !TheField().Exists()) {
    throw UsageError("there is no field yet: start with new, load or init");
  }
  stage_.HandOver();
  try {
    (this->*action->run)(line);
    Form().focus.Settle();
  } catch (const Erro& erro) {
    transcript_.Error(erro);
  }
  stage_.Apply();
}

// The focus of a field that ends goes back to where it started.
void Script::ReadyForField() {
  TheField().End();
  if (Form().focus.Focused() != nullptr) return;
  Form().recorder = nullptr;
  Form().focus.Move(stage_.Before());
  Form().recorder = &transcript_;
}

void Script::ListenToKeyUp() {
  TheField()->KeyUp([this](std::int16_t& KeyCode, std::int16_t& Shift) {
    transcript_.KeyUp(KeyCode, Shift);
    if (key_code_) KeyCode = *key_code_;
  });
}

void Script::New(std::string_view rest) {
  NoMore(rest);
  ReadyForField();
  TheField().Create();
  ListenToKeyUp();
}

void Script::Load(std::string_view rest) {
  const kit::MemoryBag bag = BagFromJson(rest);
  ReadyForField();
  TheField().Load(bag);
  ListenToKeyUp();
}

void Script::Init(std::string_view rest) {
  NoMore(rest);
  ReadyForField();
  TheField().Place();
  ListenToKeyUp();
}

void Script::Raise(std::string_view rest) {
  const std::string_view event = Word(rest);
  FieldEvents field = TheField().Events();
  if (event == "AmbientChanged") return field.UserControl_AmbientChanged(TextFromText(rest));
  if (event == "ReadProperties") return field.UserControl_ReadProperties(BagFromJson(rest));
  NoMore(rest);
  if (event == "Show") return field.UserControl_Show();
  if (event == "Resize") return TheField().Parts().surface.RaiseResize();
  if (event == "GotFocus") return field.UserControl_GotFocus();
  if (event == "ExitFocus") return TheField().Parts().ExitFocus();
  if (event == "Terminate") return field.UserControl_Terminate();
  throw UsageError("the host raises no event '" + std::string(event) + "'");
}

void Script::Save(std::string_view rest) {
  NoMore(rest);
  kit::MemoryBag bag;
  TheField().Events().UserControl_WriteProperties(bag);
  transcript_.Write({{"bag", ToJson(bag)}});
}

void Script::Size(std::string_view rest) {
  const float width = LengthFromText(Word(rest));
  const float height = LengthFromText(Word(rest));
  NoMore(rest);
  TheField().Parts().surface.Size(width, height);
}

void Script::Ambient(std::string_view rest) {
  kit::SettableAmbient& ambient = stage_.Services().ambient;
  const std::string_view what = Word(rest);
  if (what == "BackColor") {
    ambient.backColor = static_cast<Color>(NumberFromText(rest, "BackColor", -2147483648LL, 4294967295LL));
  } else if (what == "Font") {
    ambient.font = FontFromJson(JsonFromText(rest, "Font"));
  } else if (what == "none" || what == "available") {
    NoMore(rest);
    Form().services.ambient = what == "available" ? &ambient : nullptr;
  } else {
    throw UsageError("there is no ambient '" + std::string(what) + "'");
  }
}

void Script::Set(std::string_view rest) {
  const std::string_view name = Word(rest);
  SetPropertyFromText(*TheField(), name, rest);
}

void Script::Get(std::string_view rest) {
  Json value = GetProperty(*TheField(), rest);
  transcript_.Write({{"get", std::string(rest)}, {"value", std::move(value)}});
}

void Script::Call(std::string_view rest) {
  const std::string_view name = Word(rest);
  if (name == "pfTiraAcentoDeFrase") {
    const std::u16string result = TheField()->pfTiraAcentoDeFrase(TextFromText(rest));
    transcript_.Write({{"call", "pfTiraAcentoDeFrase"}, {"value", ToUtf8(result)}});
    return;
  }
  NoMore(rest);
  if (name == "ApagaCampos") return TheField()->ApagaCampos();
  if (name == "Sobre") return TheField()->Sobre();
  throw UsageError("there is no method '" + std::string(name) + "'");
}

kit::Focusable& Script::Receiver(std::string_view name) {
  if (name == "before") return stage_.Before();
  if (name == "after") return stage_.After();
  if (name == "field") return TheField().Parts().surface;
  if (kit::Focusable* child = InputChildOf(TheField().Parts(), name)) return *child;
  throw UsageError("nothing called '" + std::string(name) + "' takes the focus");
}

void Script::Focus(std::string_view rest) { Form().focus.Move(Receiver(rest)); }

void Script::Type(std::string_view rest) { stage_.Type(TextFromText(rest)); }

void Script::Key(std::string_view rest) {
  const std::int16_t vk = Int16(Word(rest), "a virtual key", 1, 254);
  const std::int16_t shift = rest.empty() ? std::int16_t{0} : Int16(Word(rest), "the shift mask", 0, 7);
  NoMore(rest);
  stage_.Press(vk, shift);
}

void Script::Keys(std::string_view rest) {
  const std::u16string keys = TextFromText(rest);
  if (const auto remark = UnknownKeyNames(keys); remark && onRemark) onRemark(*remark);
  SendKeyString(Form().keyboard, stage_.Services().kernel, Form().dialogs, keys, true);
  stage_.Run();
}

void Script::Paste(std::string_view rest) { stage_.Paste(TextFromText(rest)); }

void Script::Select(std::string_view rest) {
  const auto start = static_cast<std::int32_t>(NumberFromText(Word(rest), "the start", 0, 2147483647));
  const auto length = static_cast<std::int32_t>(NumberFromText(Word(rest), "the length", 0, 2147483647));
  NoMore(rest);
  if (!stage_.Select(start, length)) throw UsageError("what has the focus has no text to select");
}

void Script::Child(std::string_view rest) {
  const std::string_view child = Word(rest);
  const bool reads = rest.find(' ') == std::string_view::npos;
  const std::string_view member = Word(rest);
  if (!reads) return WriteChild(TheField().Parts(), child, member, rest);
  Json value = ReadChild(TheField().Parts(), child, member);
  transcript_.Write({{"child", std::string(child)}, {std::string(member), std::move(value)}});
}

void Script::Answer(std::string_view rest) {
  stage_.Services().dialogs.answers.push_back(
      static_cast<std::int32_t>(NumberFromText(rest, "an answer", 0, 2147483647)));
}

void Script::OnKeyUp(std::string_view rest) {
  if (rest == "none") {
    key_code_.reset();
  } else {
    key_code_ = Int16(rest, "a key code");
  }
}

void Script::Clock(std::string_view rest) { stage_.Services().clock.Set(Moment(rest)); }

void Script::Region(std::string_view rest) {
  Regional& regional = stage_.Services().kernel.regional;
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
  Form().keyboard.Layout(rest == "us" ? kit::Us() : kit::Abnt2());
}

void Script::CapsLock(std::string_view rest) {
  if (rest != "on" && rest != "off") throw UsageError("capslock is on or off");
  Form().keyboard.CapsLock(rest == "on");
}

void Script::Fail(std::string_view rest) {
  const std::string_view operation = Word(rest);
  const std::size_t dot = operation.find('.');
  if (dot == std::string_view::npos) throw UsageError("fail takes CHILD.MEMBER and an error number");
  const std::string_view child = operation.substr(0, dot);
  const std::string_view member = operation.substr(dot + 1);
  CheckOperation(child, member);
  const auto number = static_cast<std::int32_t>(NumberFromText(rest, "an error number", 1, 65535));
  stage_.Services().faults.FailNext(std::string(child), std::string(member), number);
}

void Script::Hook(std::string_view rest) {
  NoMore(rest);
  TheField().Events().HookCombo();
}

void Script::Unhook(std::string_view rest) {
  NoMore(rest);
  TheField().Events().UnhookCombo();
}

void Script::Message(std::string_view rest) {
  std::string_view word = Word(rest);
  const bool other = word == "other";
  if (other) word = Word(rest);
  NoMore(rest);
  const auto message = static_cast<std::int32_t>(NumberFromText(word, "a message", 0, 65535));
  stage_.SendMessage(message, other);
}

void Script::Comfort(std::string_view rest) {
  if (rest != "on" && rest != "off") throw UsageError("comfort is on or off");
  Form().comfort = rest == "on";
}

void Script::Dump(std::string_view rest) {
  NoMore(rest);
  const FieldEvents events = TheField().Events();
  const Campo& state = events.Estado();
  const kit::Focusable* focused = Form().focus.Focused();
  Json dump = {{"Mask", state.mMask},
               {"mSegmentos", state.mSegmentos},
               {"mMaxLength", state.mMaxLength},
               {"mValor", ToUtf8(state.mValor)},
               {"mTeclaDeEdicao", state.mTeclaDeEdicao},
               {"focus", focused == nullptr ? Json(nullptr) : Json(std::string(focused->Name()))}};
  dump.update(DumpChildren(TheField().Parts()));
  transcript_.Write({{"dump", std::move(dump)}});
}

}  // namespace gabarito::script
