#include "script/transcript.h"

#include <ostream>

#include "hosts/kit/focusable.h"
#include "hosts/kit/utf8.h"
#include "script/json.h"

namespace gabarito::script {

using kit::ToUtf8;

void Transcript::Write(const Json& object) { out_ << object.dump() << '\n'; }

void Transcript::Error(const Erro& erro) {
  Write({{"error",
          {{"number", erro.Number()},
           {"source", ToUtf8(erro.Source())},
           {"description", ToUtf8(erro.Description())}}}});
}

void Transcript::KeyUp(std::int16_t code, std::int16_t shift) {
  Write({{"event", "KeyUp"}, {"KeyCode", code}, {"Shift", shift}});
}

void Transcript::PropertyChanged(std::u16string_view name) {
  Write({{"event", "PropertyChanged"}, {"name", ToUtf8(name)}});
}

void Transcript::MsgBox(std::u16string_view text, std::int32_t flags,
                        std::optional<std::u16string_view> title, std::int32_t answer) {
  Json box = {{"event", "MsgBox"}, {"text", ToUtf8(text)}, {"flags", flags}};
  if (title) box["title"] = ToUtf8(*title);
  box["answer"] = answer;
  Write(box);
}

void Transcript::Beep() { Write({{"event", "Beep"}}); }

void Transcript::SendKeys(std::u16string_view text, bool wait) {
  Write({{"event", "SendKeys"}, {"text", ToUtf8(text)}, {"wait", wait}});
}

void Transcript::SendInput(std::span<const INPUT> events) {
  Json records = Json::array();
  for (const INPUT& event : events) {
    records.push_back({{"wVk", event.wVk}, {"wScan", event.wScan}, {"dwFlags", event.dwFlags}});
  }
  Write({{"event", "SendInput"}, {"records", std::move(records)}});
}

void Transcript::Focus(const kit::Focusable& to) {
  Write({{"event", "Focus"}, {"to", std::string(to.Name())}});
}

void Transcript::ExitFocus() { Write({{"event", "ExitFocus"}}); }

void Transcript::Resize() { Write({{"event", "Resize"}}); }

void Transcript::DrawEdge(const RECT& r, std::int32_t edge, std::int32_t flags) {
  Write({{"event", "DrawEdge"},
         {"rect", {r.left, r.top, r.right, r.bottom}},
         {"edge", edge},
         {"flags", flags}});
}

void Transcript::OldWindowProc(std::int32_t message) {
  Write({{"event", "OldWindowProc"}, {"msg", message}});
}

void Transcript::Trace(std::u16string_view text) { Write({{"event", "Trace"}, {"text", ToUtf8(text)}}); }

}  // namespace gabarito::script
