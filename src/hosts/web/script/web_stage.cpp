#include "hosts/web/script/web_stage.h"

#include <utility>

#include "gabarito/platform/virtual_keys.h"
#include "hosts/kit/faults.h"
#include "hosts/kit/utf8.h"

namespace gabarito::web {

WebStage::WebStage()
    : page_(std::make_shared<Page>(services_.AsServices())), field_(std::make_shared<WebField>(page_, 1)) {
  page_->services.decorate = [this](const Host& host) { return kit::WithFaults(host, services_.faults); };
  page_->Place(kBefore, "before");
  page_->Place(kAfter, "after");
}

// The script makes and ends fields by itself.
void WebStage::Apply() {
  const auto parts = field_->Model().SharedParts();
  if (parts == told_) return;
  told_ = parts;
  field_->Register();
}

void WebStage::Type(std::u16string_view text) {
  for (const char16_t character : text) {
    const char16_t typed = character == u'\n' ? u'\r' : character;
    requests_.push_back({{"do", "key"}, {"character", static_cast<int>(typed)}, {"vk", 0}, {"shift", 0}});
  }
}

void WebStage::Press(std::int16_t vk, std::int16_t shift) {
  const char16_t character = page_->keyboard.CharacterOf(
      {.vk = vk, .shift = static_cast<std::int16_t>(shift & ~(kCtrlMask | kAltMask))});
  requests_.push_back(
      {{"do", "key"}, {"character", static_cast<int>(character)}, {"vk", vk}, {"shift", shift}});
}

void WebStage::Paste(std::u16string_view text) {
  requests_.push_back({{"do", "paste"}, {"text", kit::ToUtf8(text)}});
}

bool WebStage::Select(std::int32_t start, std::int32_t length) {
  const kit::Focusable* const focused = page_->focus.Focused();
  if (focused == nullptr || focused->Name() == "field") return false;
  requests_.push_back({{"do", "select"}, {"start", start}, {"length", length}});
  return true;
}

std::string WebStage::TakeRequests() {
  return std::exchange(requests_, nlohmann::ordered_json::array()).dump();
}

}  // namespace gabarito::web
