// What the page calls. One call in, one answer out, both in one buffer; see answer.h. The page's half is
// web/src/bridge.ts.
#include <algorithm>
#include <array>
#include <memory>
#include <utility>
#include <vector>

#include "gabarito/platform/erro.h"
#include "hosts/kit/keep_content.h"
#include "hosts/kit/look.h"
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
  kLook,
};

// The call as the page lays it out in the buffer: these words, then the units of both texts.
struct Call {
  std::int32_t child, selStart, selLength, textUnits, dataUnits;
};

struct Bridge {
  std::vector<std::int32_t> buffer;
  std::shared_ptr<Page> page = std::make_shared<Page>();
  std::vector<std::shared_ptr<WebField>> fields;  // by number; null where none is any more
  std::function<void(const Erro&)> on_error;      // null: the page is told
  // Ended inside a call of its own: kept until the outermost call is over.
  std::vector<std::shared_ptr<WebField>> ended;
  int depth = 0;
  Answer answer;
};

Bridge& TheBridge() {
  static Bridge bridge;
  return bridge;
}

// The place of a field; numbers are given out in order, beginning with 1.
std::shared_ptr<WebField>& PlaceOf(std::int32_t number) {
  auto& fields = TheBridge().fields;
  const auto at = static_cast<std::size_t>(number);
  if (at >= fields.size()) fields.resize(at + 1);
  return fields[at];
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
void Create(std::int32_t number, std::int32_t width, std::int32_t mask) {
  const auto field = PlaceOf(number) = std::make_shared<WebField>(TheBridge().page, number);
  field->Create();
  field->Size(static_cast<float>(width), kLine);
  constexpr kit::Property kOff[] = {kit::Property::kAppearance, kit::Property::kMaxLength,
                                    kit::Property::kUsarFundoPastel, kit::Property::kTrataEnterComoTab,
                                    kit::Property::kPreencherDatasInvalidasComDataDeHoje};
  for (const kit::Property off : kOff) kit::SetProperty(*field->Model(), off, 0, {});
  kit::SetProperty(*field->Model(), kit::Property::kMask, mask, {});
}

// The value of a program: written, then checked without a word. What a person has typed is written unchecked.
void Write(WebField& field, std::u16string_view text, bool typed) {
  {
    const WebField::Hush hush(field);
    kit::SetProperty(*field.Model(), kit::Property::kText, 0, text);
  }
  if (!typed) field.CheckQuietly();
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
      return Write(field, with.data, with.a != 0);
    case Event::kCheck:
      return field.CheckQuietly();
    case Event::kLook:
      if (!field.Model()->MostraVazio()) result = u"=" + kit::ValueNow(field.Model());
      return;
    case Event::kClear:
      return field.Model()->ApagaCampos();
    default:
      return;
  }
}

void Run(Bridge& bridge, std::int32_t number, Event event, const Arguments& with, std::u16string& result) {
  if (event == Event::kCreate) return Create(number, with.a, with.b);
  if (event == Event::kLeave) {
    TheBridge().page->focus.Move(TheBridge().page->Place(with.a));
    return TheBridge().page->Run();
  }
  if (event == Event::kMunicipios) {
    if (!OwnMunicipios(with.data)) Fail(kInvalidProcedureCall);
    return;
  }
  WebField* const field = PlaceOf(number).get();
  if (field == nullptr) return;
  if (event == Event::kEnd) {
    field->Model().End();
    bridge.ended.push_back(std::move(PlaceOf(number)));
    return;
  }
  field->HandOver(with.held);
  Carry(*field, event, with, result);
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
  if (const auto* const elsewhere = page.PlaceWith(*focused)) return answer.Number(elsewhere->Number());
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
  if (const auto& field = PlaceOf(number)) {
    field->TellVerdict(answer);
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
    if (const auto& field = PlaceOf(told[i])) field->TellField(answer);
  }
  answer.Number(kNowhere);
  return answer.Data();
}

void Use(std::shared_ptr<Page> page, std::shared_ptr<WebField> field,
         std::function<void(const Erro&)> onError) {
  Bridge& bridge = TheBridge();
  bridge.fields.clear();
  PlaceOf(field->Number()) = field;
  bridge.page = std::move(page);
  bridge.on_error = std::move(onError);
}

const std::int32_t* ListEntry(std::int32_t number, std::int32_t index) {
  Bridge& bridge = TheBridge();
  bridge.answer.Clear();
  const auto& field = PlaceOf(number);
  const bool there = field != nullptr && index >= 0 && index <= INT16_MAX;
  bridge.answer.Text(there ? field->Model().Parts().Combo1.List(static_cast<std::int16_t>(index))
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
