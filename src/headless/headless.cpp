// What a server or a worker calls: the whole field on the in-memory host. web/src/headless_core.ts is the
// other half.
//
// Texts go in by one buffer and come out by another, as their 16-bit units; the second is good until the next
// call.
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <utility>

#include "gabarito/platform/erro.h"
#include "hosts/kit/numbered_properties.h"
#include "hosts/memory/cleaner.h"

#define GABARITO_EXPORT(name) __attribute__((export_name(#name)))

extern "C" __attribute__((import_module("env"), import_name("gb_now"))) double gb_now();

namespace gabarito::headless {
namespace {

// Between the messages of one call.
constexpr char16_t kNext = 0;

constexpr double kMillisecondsADay = 86400000;
constexpr double kDaysTo1970 = 25569;  // since 30 December 1899

// The clock on the wall; a field keeps the moment at which it was made.
Date Now() { return kDaysTo1970 + gb_now() / kMillisecondsADay; }

// A field with what it has said since it was last asked.
struct Entry {
  std::u16string said;
  memory::Cleaner cleaner{[this](std::u16string_view text) { said.append(text).push_back(kNext); }, Now()};
};

std::u16string in, out;
std::map<std::int32_t, std::unique_ptr<Entry>> entries;
std::int32_t last = 0;

Entry& At(std::int32_t number) {
  const auto found = entries.find(number);
  if (found == entries.end()) Fail(kObjectNotSet);
  return *found->second;
}

// Runs an action; gives 0, or the number of the error, whose description is then the text.
template <class Action>
std::int32_t Try(Action action) {
  try {
    action();
    return 0;
  } catch (const Erro& erro) {
    out = erro.Description();
    return erro.Number();
  }
}

std::u16string_view Given(std::int32_t units) {
  return std::u16string_view(in).substr(0, static_cast<std::size_t>(units));
}

}  // namespace
}  // namespace gabarito::headless

using namespace gabarito;
using namespace gabarito::headless;

extern "C" {

// Room for a text of so many units to go in.
GABARITO_EXPORT(hl_room) char16_t* hl_room(std::int32_t units) {
  if (in.size() < static_cast<std::size_t>(units)) in.resize(static_cast<std::size_t>(units));
  return in.data();
}

GABARITO_EXPORT(hl_text) const char16_t* hl_text() { return out.data(); }
GABARITO_EXPORT(hl_size) std::int32_t hl_size() { return static_cast<std::int32_t>(out.size()); }

GABARITO_EXPORT(hl_new) std::int32_t hl_new() {
  entries[++last] = std::make_unique<Entry>();
  return last;
}

GABARITO_EXPORT(hl_end) void hl_end(std::int32_t field) { entries.erase(field); }

GABARITO_EXPORT(hl_set)
std::int32_t hl_set(std::int32_t field, std::int32_t property, std::int32_t number, std::int32_t units) {
  return Try([&] {
    kit::SetProperty(*At(field).cleaner.ItsField(), static_cast<kit::Property>(property), number,
                     Given(units));
  });
}

GABARITO_EXPORT(hl_get) std::int32_t hl_get(std::int32_t field, std::int32_t property) {
  return Try(
      [&] { out = kit::GetProperty(*At(field).cleaner.ItsField(), static_cast<kit::Property>(property)); });
}

// 0 and the value; the messages are asked for with hl_said.
GABARITO_EXPORT(hl_clean) std::int32_t hl_clean(std::int32_t field, std::int32_t units) {
  return Try([&] {
    Entry& entry = At(field);
    entry.said.clear();
    entry.cleaner.Clean(std::u16string(Given(units)), out);
  });
}

// What the field has said since the last call, each message ended by U+0000.
GABARITO_EXPORT(hl_said) std::int32_t hl_said(std::int32_t field) {
  return Try([&] { out = std::exchange(At(field).said, {}); });
}

// A person comes to the field, types, presses a key, pastes, goes away.
GABARITO_EXPORT(hl_type) std::int32_t hl_type(std::int32_t field, std::int32_t units) {
  return Try([&] {
    memory::Cleaner& cleaner = At(field).cleaner;
    if (cleaner.ItsForm().Focused() == nullptr) cleaner.ItsForm().SetFocus(*cleaner.ItsField().Surface());
    cleaner.ItsForm().Type(std::u16string(Given(units)));
  });
}

GABARITO_EXPORT(hl_press) std::int32_t hl_press(std::int32_t field, std::int32_t vk, std::int32_t shift) {
  return Try([&] {
    memory::Cleaner& cleaner = At(field).cleaner;
    if (cleaner.ItsForm().Focused() == nullptr) cleaner.ItsForm().SetFocus(*cleaner.ItsField().Surface());
    cleaner.ItsForm().Press(static_cast<std::int16_t>(vk), static_cast<std::int16_t>(shift));
  });
}

GABARITO_EXPORT(hl_paste) std::int32_t hl_paste(std::int32_t field, std::int32_t units) {
  return Try([&] {
    memory::Cleaner& cleaner = At(field).cleaner;
    if (cleaner.ItsForm().Focused() == nullptr) cleaner.ItsForm().SetFocus(*cleaner.ItsField().Surface());
    cleaner.ItsForm().Paste(Given(units));
  });
}

}  // extern "C"
