// The model of the masked edit box, MaskEdBox1: the engine of platform/masked_edit.h as a child.
#ifndef HOSTS_KIT_MASKED_MODEL_H
#define HOSTS_KIT_MASKED_MODEL_H

#include "gabarito/platform/mask_ed_box.h"
#include "gabarito/platform/masked_edit.h"
#include "hosts/kit/child_model.h"

namespace gabarito::kit {

// A native widget shows Entry().Text() and leaves every change of it to the engine (own_entry.h): pressing a
// key in it inserts nothing by itself.
class MaskedModel final : public InputChildModel<MaskEdBox, MaskedEdit> {
 public:
  MaskedModel(FieldParts& parts, const ChildDesign& design);

  std::u16string_view Mask() const override { return line_.Mask(); }
  void Mask(std::u16string_view pattern) override;
  void SelText(std::u16string_view text) override;
  void MaxLength(std::int16_t length) override;
  void Appearance(std::int32_t look) override;
  void Height(float height) override;

  void GotFocus() override;
  char16_t KeyPress(char16_t character) override;
  void HandOver(std::u16string_view text, std::int32_t selStart, std::int32_t selLength) override;
  std::int32_t Limit() const override { return line_.Mask().empty() ? line_.MaxLength() : 0; }

  std::int32_t ShownAppearance() const { return appearance_; }

 private:
  std::int32_t appearance_ = 1;
};

}  // namespace gabarito::kit

#endif  // HOSTS_KIT_MASKED_MODEL_H
