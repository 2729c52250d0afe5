// The script language for a page: one line in; what was written and what a person is to do out. The driver is
// web/script/run.mjs.
#include <memory>
#include <sstream>
#include <string>

#include "hosts/web/exports.h"
#include "hosts/web/imports.h"
#include "hosts/web/script/web_stage.h"
#include "script/properties.h"
#include "script/script.h"

namespace gabarito::web {
namespace {

struct Play {
  std::string in, out;
  std::ostringstream written;
  std::unique_ptr<WebStage> stage;
  std::unique_ptr<script::Script> script;
};

Play& ThePlay() {
  static Play play;
  return play;
}

}  // namespace
}  // namespace gabarito::web

using namespace gabarito;
using namespace gabarito::web;

extern "C" {

GABARITO_EXPORT(gs_room) char* gs_room(std::int32_t bytes) {
  ThePlay().in.resize(static_cast<std::size_t>(bytes));
  return ThePlay().in.data();
}

// A fresh stage. Whether a file whose first line is in the buffer is for it.
GABARITO_EXPORT(gs_begin) std::int32_t gs_begin() {
  Play& play = ThePlay();
  if (!script::IsFor(play.in, "web")) return 0;
  play.script.reset();
  play.stage = std::make_unique<WebStage>();
  play.script = std::make_unique<script::Script>(*play.stage, play.written);
  Use(play.stage->ItsPage(), play.stage->ItsField(), [&play](const Erro& erro) { play.script->Error(erro); });
  return 1;
}

// Carries the line in the buffer out: 0, or 1 when it is not understood, with the reason as the text.
GABARITO_EXPORT(gs_line) std::int32_t gs_line() {
  Play& play = ThePlay();
  try {
    play.script->Line(play.in);
    return 0;
  } catch (const script::UsageError& fault) {
    play.out = fault.what();
    return 1;
  }
}

// What has been written since the last call.
GABARITO_EXPORT(gs_written) void gs_written() {
  ThePlay().out = ThePlay().written.str();
  ThePlay().written.str({});
}

GABARITO_EXPORT(gs_requests) void gs_requests() { ThePlay().out = ThePlay().stage->TakeRequests(); }

GABARITO_EXPORT(gs_text) const char* gs_text() { return ThePlay().out.data(); }
GABARITO_EXPORT(gs_size) std::int32_t gs_size() { return static_cast<std::int32_t>(ThePlay().out.size()); }

}  // extern "C"
