// What the page calls. One call in, one answer out, both in one buffer; see answer.h. The page's half is
// web/src/bridge.ts.
#include <algorithm>
#include <array>
#include <map>
#include <memory>
#include <utility>
#include <vector>

#include "gabarito/platform/erro.h"
#include "hosts/kit/keep_content.h"
#include "hosts/kit/numbered_properties.h"
#include "hosts/web/answer.h"
#include "hosts/web/exports.h"
#include "hosts/web/imports.h"
#include "hosts/web/municipios.h"
#include "hosts/web/web_field.h"

namespace gabarito::web {
namespace {

// The same numbers stand in web/src/bridge.ts.
enum class Event : std::int32_t {
  kSync,
  kKeyDown,
  kKeyUp,
  kInsert,
  kPaste,
  kCut,
  kInput,
  kFocus,
  kLeave,
  kPick,
  kDropDown,
  kSize,
  kSet,
  kGet,
  kWrite,
  kCreate,
  kEnd,
  kClear,
  kMunicipios,
  kCheck,
};

// The call as the page lays it out in the buffer: these words, then the units of both texts.
struct Call {
  std::int32_t child, selStart, selLength, textUnits, dataUnits;
};

struct Bridge {
  std::vector<std::int32_t> buffer;
  std::shared_ptr<Page> page = std::make_shared<Page>();
  std::map<std::int32_t, std::shared_ptr<WebField>> fields;
  std::function<void(const Erro&)> on_error;  // null: the page is told
  // Ended inside a call of its own: kept until the outermost call is over.
  std::vector<std::shared_ptr<WebField>> ended;
  int depth = 0;
  Answer answer;
};

Bridge& TheBridge() {
  static Bridge bridge;
  return bridge;
}

// Twips, of one line of the design font.
constexpr float kLine = 315;

// As the child of a call: nothing is to be told yet.
constexpr std::int32_t kUntold = -2;

struct Arguments {
  std::int32_t a, b, c;
  Held held;
  std::u16string_view data;
};

// Of that width in twips and that kind; what an element has to be asked for is off.
void Create(Bridge& bridge, std::int32_t number, std::int32_t width, std::int32_t mask) {
  auto& field = bridge.fields[number];
  field = std::make_shared<WebField>(bridge.page, number);
  field->Create();
  field->Size(static_cast<float>(width), kLine);
  constexpr kit::Property kOff[] = {kit::Property::kAppearance, kit::Property::kMaxLength,
                                    kit::Property::kUsarFundoPastel, kit::Property::kTrataEnterComoTab,
                                    kit::Property::kPreencherDatasInvalidasComDataDeHoje};
  for (const kit::Property off : kOff) kit::SetProperty(*field->Model(), off, 0, {});
  kit::SetProperty(*field->Model(), kit::Property::kMask, mask, {});
}

// The value of a program: written, then checked without a word.
void Write(WebField& field, std::u16string_view text) {
  field.Quiet(true);
  kit::SetProperty(*field.Model(), kit::Property::kText, 0, text);
  field.CheckQuietly();
}

// The page has given the field another width: what is in it stays, which a layout alone would empty.
void Resize(WebField& field, float width) {
  const kit::KeepContent keep(field.Model());
  field.Size(width, kLine);
}

void Carry(WebField& field, Event event, const Arguments& with, std::u16string& result) {
  const auto a = static_cast<std::int16_t>(with.a);
  const auto b = static_cast<std::int16_t>(with.b);
  const auto character = static_cast<char16_t>(with.c);
  const std::int32_t child = with.held.child;
  switch (event) {
    case Event::kKeyDown:
      return field.KeyDown(child, a, b, character);
    case Event::kKeyUp:
      return field.KeyUp(child, a, b, character);
    case Event::kInsert:
      return field.Insert(child, with.data);
    case Event::kPaste:
      return field.Paste(child, with.data);
    case Event::kCut:
      field.Cut(child);
      result = TheBridge().page->clipboard;
      return;
    case Event::kInput:
      return field.Go();
    case Event::kFocus:
      return field.Focus(with.a);
    case Event::kPick:
      return field.Pick(a);
    case Event::kDropDown:
      return field.DropDown(with.a != 0);
    case Event::kSize:
      return Resize(field, static_cast<float>(with.a));
    case Event::kSet:
      return kit::SetProperty(*field.Model(), static_cast<kit::Property>(with.a), with.b, with.data);
    case Event::kGet:
      result = kit::GetProperty(*field.Model(), static_cast<kit::Property>(with.a));
      return;
    case Event::kWrite:
      return Write(field, with.data);
    case Event::kCheck:
      return field.CheckQuietly();
    case Event::kClear:
      return field.Model()->ApagaCampos();
    default:
      return;
  }
}

void Run(Bridge& bridge, std::int32_t number, Event event, const Arguments& with, std::u16string& result) {
  if (event == Event::kCreate) return Create(bridge, number, with.a, with.b);
  if (event == Event::kLeave) {
    TheBridge().page->focus.Move(TheBridge().page->Place(with.a));
    return TheBridge().page->Run();
  }
  if (event == Event::kMunicipios) {
    OwnMunicipios(with.data);
    return;
  }
  const auto found = bridge.fields.find(number);
  if (found == bridge.fields.end()) return;
  if (event == Event::kEnd) {
    found->second->Model().End();
    bridge.ended.push_back(std::move(found->second));
    bridge.fields.erase(found);
    return;
  }
  found->second->HandOver(with.held);
  Carry(*found->second, event, with, result);
}

std::int32_t FocusedField() {
  const auto* const focused = TheBridge().page->focus.Focused();
  return focused == nullptr ? 0 : TheBridge().page->NumberOf(&const_cast<kit::Focusable*>(focused)->Owner());
}

void TellFocus(Answer& answer) {
  Page& page = *TheBridge().page;
  kit::Focusable* const focused = page.focus.Focused();
  answer.Number(FocusedField());
  if (focused == nullptr) return answer.Number(kNowhere);
  if (const auto* const elsewhere = dynamic_cast<Elsewhere*>(focused))
    return answer.Number(elsewhere->Number());
  if (focused->Input() == nullptr) return answer.Number(kSurface);
  const auto& children = static_cast<kit::FieldParts&>(focused->Owner()).InTabOrder();
  answer.Number(static_cast<std::int32_t>(std::find(children.begin(), children.end(), focused->Input()) -
                                          children.begin()));
}

}  // namespace

const std::int32_t* Handle(std::int32_t number, std::int32_t eventNumber, std::int32_t a, std::int32_t b,
                           std::int32_t c) {
  Bridge& bridge = TheBridge();
  const auto* const call = reinterpret_cast<const Call*>(bridge.buffer.data());
  const auto* const units = reinterpret_cast<const char16_t*>(call + 1);
  const auto size = [](std::int32_t count) { return static_cast<std::size_t>(count); };
  // Copies: a handler may let the page call again, which writes into the buffer.
  const std::u16string text(units, size(call->textUnits));
  const std::u16string data(units + call->textUnits, size(call->dataUnits));
  const Arguments with = {a, b, c, {call->child, text, call->selStart, call->selLength}, data};

  const std::array<std::int32_t, 2> before = {number, FocusedField()};
  std::int32_t error = 0;
  std::u16string result;
  ++bridge.depth;
  try {
    Run(bridge, number, static_cast<Event>(eventNumber), with, result);
  } catch (const Erro& erro) {
    if (bridge.on_error) {
      bridge.on_error(erro);
    } else {
      error = erro.Number();
      result = erro.Description();
    }
  }
  if (--bridge.depth == 0) bridge.ended.clear();

  Answer& answer = bridge.answer;
  answer.Clear();
  const auto found = bridge.fields.find(number);
  if (found != bridge.fields.end()) {
    found->second->TellVerdict(answer);
  } else {
    answer.Number(static_cast<std::int32_t>(Verdict::kNative));
    answer.Number(0);
  }
  TellFocus(answer);
  answer.Number(error);
  answer.Text(result);
  // Several calls in a row: the news of all of them come with the last one.
  if (with.held.child == kUntold) {
    answer.Number(kNowhere);
    return answer.Data();
  }
  std::array<std::int32_t, 3> told = {before[0], before[1], FocusedField()};
  for (std::size_t i = 0; i < told.size(); ++i) {
    if (std::find(told.begin(), told.begin() + i, told[i]) != told.begin() + i) continue;
    if (const auto field = bridge.fields.find(told[i]); field != bridge.fields.end())
      field->second->TellField(answer);
  }
  answer.Number(kNowhere);
  return answer.Data();
}

void Use(std::shared_ptr<Page> page, std::shared_ptr<WebField> field,
         std::function<void(const Erro&)> onError) {
  Bridge& bridge = TheBridge();
  bridge.fields.clear();
  bridge.fields[field->Number()] = std::move(field);
  bridge.page = std::move(page);
  bridge.on_error = std::move(onError);
}

const std::int32_t* ListEntry(std::int32_t number, std::int32_t index) {
  Bridge& bridge = TheBridge();
  bridge.answer.Clear();
  const auto found = bridge.fields.find(number);
  const bool there = found != bridge.fields.end() && index >= 0 && index <= INT16_MAX;
  bridge.answer.Text(there ? found->second->Model().Parts().Combo1.List(static_cast<std::int16_t>(index))
                           : std::u16string_view());
  return bridge.answer.Data();
}

}  // namespace gabarito::web

extern "C" {

GABARITO_EXPORT(gb_buffer) std::int32_t* gb_buffer(std::int32_t words) {
  auto& buffer = gabarito::web::TheBridge().buffer;
  if (buffer.size() < static_cast<std::size_t>(words)) buffer.resize(static_cast<std::size_t>(words));
  return buffer.data();
}

GABARITO_EXPORT(gb_event)
const std::int32_t* gb_event(std::int32_t field, std::int32_t event, std::int32_t a, std::int32_t b,
                             std::int32_t c) {
  return gabarito::web::Handle(field, event, a, b, c);
}

// An entry of the list of a field, as a text of an answer; the empty one outside the list.
GABARITO_EXPORT(gb_entry) const std::int32_t* gb_entry(std::int32_t field, std::int32_t index) {
  return gabarito::web::ListEntry(field, index);
}

}  // extern "C"
