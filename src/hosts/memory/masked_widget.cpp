#include "hosts/memory/masked_widget.h"

#include <algorithm>

#include "gabarito/platform/text.h"
#include "hosts/memory/field.h"
#include "hosts/memory/text_entry.h"

namespace gabarito::memory {

MaskedWidget::MaskedWidget(Field& field, Form& form, Control& owner, const ChildDesign& design)
    : InputWidget(field, form, owner, design) {
  auto font = std::make_shared<StdFont>();
  font->Size = 8.25F;
  font_ = font;
}

std::u16string_view MaskedWidget::Mask() const {
  Use("Mask");
  return line_.Mask();
}

void MaskedWidget::Mask(std::u16string_view pattern) {
  Use("Mask");
  line_.Mask(pattern);
}

void MaskedWidget::SelText(std::u16string_view text) {
  Use("SelText");
  line_.SelText(text);
}

void MaskedWidget::MaxLength(std::int16_t length) {
  Use("MaxLength");
  line_.MaxLength(length);
}

void MaskedWidget::Appearance(std::int32_t look) {
  Use("Appearance");
  appearance_ = look;
}

void MaskedWidget::Height(float height) {
  Use("Height");
  RefuseNegative(height);
  bounds_.height = height;
}

void MaskedWidget::GotFocus() { field_->MaskEdBox1_GotFocus(); }

void MaskedWidget::CutOrCopy(bool cut) {
  if (line_.SelLength() == 0) return;
  form_.System().clipboard = line_.SelText();
  if (cut) line_.Delete();
}

// The engine itself sets MaxLength no bound to a text that is handed to it.
void MaskedWidget::Paste() {
  std::u16string_view text = FirstLine(form_.System().clipboard);
  if (line_.Mask().empty() && line_.MaxLength() > 0) {
    const std::int32_t kept = Len(line_.Text()) - line_.SelLength();
    text = Left(text, std::max(line_.MaxLength() - kept, 0));
  }
  if (!text.empty()) line_.SelText(text);
}

bool MaskedWidget::KeyDown(std::int16_t vk, std::int16_t shift) {
  switch (ClipboardKey(vk, shift)) {
    case 0:
      break;
    case kPaste:
      Paste();
      return false;
    case kCut:
      CutOrCopy(true);
      return false;
    default:
      CutOrCopy(false);
      return false;
  }
  if (vk == kVkDelete) {
    line_.Delete();
  } else {
    Navigate(line_, anchor_, vk, (shift & kShiftMask) != 0);
  }
  return true;
}

void MaskedWidget::Character(char16_t character) {
  std::int16_t KeyAscii = Asc(character);
  field_->MaskEdBox1_KeyPress(KeyAscii);
  if (KeyAscii == 0) return;
  if (KeyAscii == kBackspace) {
    line_.Backspace();
  } else if (KeyAscii >= u' ' && !line_.Type(Chr(KeyAscii))) {
    form_.System().voice->Beep();
  }
}

}  // namespace gabarito::memory
