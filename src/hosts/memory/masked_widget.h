// The masked edit box of the in-memory host.
#ifndef HOSTS_MEMORY_MASKED_WIDGET_H
#define HOSTS_MEMORY_MASKED_WIDGET_H

#include "gabarito/platform/mask_ed_box.h"
#include "gabarito/platform/masked_edit.h"
#include "hosts/memory/widget.h"

namespace gabarito::memory {

// A character that fits nowhere beeps.
class MaskedWidget final : public InputWidget<MaskEdBox, MaskedEdit> {
 public:
  MaskedWidget(Field& field, Form& form, Control& owner, const ChildDesign& design);

  std::u16string_view Mask() const override;
  void Mask(std::u16string_view pattern) override;
  void SelText(std::u16string_view text) override;
  void MaxLength(std::int16_t length) override;
  void Appearance(std::int32_t look) override;
  void Height(float height) override;

  void GotFocus() override;
  bool KeyDown(std::int16_t vk, std::int16_t shift) override;
  void Character(char16_t character) override;

  std::int32_t ShownAppearance() const { return appearance_; }

 private:
  void CutOrCopy(bool cut);
  void Paste();

  std::int32_t appearance_ = 1;
};

}  // namespace gabarito::memory

#endif  // HOSTS_MEMORY_MASKED_WIDGET_H
