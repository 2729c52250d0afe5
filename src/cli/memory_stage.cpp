#include "cli/memory_stage.h"

#include "hosts/memory/plain_box.h"

namespace gabarito::cli {

MemoryStage::MemoryStage()
    : before_(form_.AddBox("before")),
      field_(form_.AddField("field")),
      after_(form_.AddBox("after")),
      other_window_(form_.AllWindows().Open()) {
  form_.MakeFieldsBreakable();
}

kit::Focusable& MemoryStage::Before() { return before_; }
kit::Focusable& MemoryStage::After() { return after_; }

bool MemoryStage::Select(std::int32_t start, std::int32_t length) {
  kit::Focusable* const focused = form_.Focused();
  if (focused != nullptr && focused->Input() != nullptr) {
    InputChild& child = focused->Input()->AsChild();
    child.SelStart(start);
    child.SelLength(length);
    return true;
  }
  auto* const box = dynamic_cast<memory::PlainBox*>(focused);
  if (box == nullptr) return false;
  box->Line().SelStart(start);
  box->Line().SelLength(length);
  return true;
}

void MemoryStage::SendMessage(std::int32_t message, bool toAnotherWindow) {
  const WindowHandle window = toAnotherWindow ? other_window_ : field_.Parts().Combo1.hWnd();
  form_.AllWindows().Send(window, message, 0, 0);
}

}  // namespace gabarito::cli
