// The model of a label: an element of lbl_controle.
#ifndef HOSTS_KIT_LABEL_MODEL_H
#define HOSTS_KIT_LABEL_MODEL_H

#include <string>

#include "gabarito/platform/label.h"
#include "hosts/kit/child_model.h"

namespace gabarito::kit {

class LabelModel final : public ChildModel<Label> {
 public:
  LabelModel(FieldParts& parts, const ChildDesign& design)
      : ChildModel(design), parts_(parts), caption_(design.text) {}

  void Caption(std::u16string_view caption) override;
  void AutoSize(bool on) override;
  void Font(const FontRef& font) override;
  float Left() const override { return bounds_.left; }
  float Top() const override { return bounds_.top; }
  float Width() const override { return bounds_.width; }
  // The field sets one look, opaque and without a border, and so a host shows a label.
  void BackStyle(std::int32_t) override {}
  void BorderStyle(std::int32_t) override {}
  // The pass after the event shows it.
  void Refresh() override {}

  std::u16string_view Shown() const { return caption_; }
  bool SizesItself() const { return auto_size_; }

 private:
  void FitCaption();

  FieldParts& parts_;
  std::u16string caption_;
  bool auto_size_ = false;
};

}  // namespace gabarito::kit

#endif  // HOSTS_KIT_LABEL_MODEL_H
