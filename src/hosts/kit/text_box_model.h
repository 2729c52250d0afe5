// The model of a text box: an element of txt_entrada or txt_entrada3D.
#ifndef HOSTS_KIT_TEXT_BOX_MODEL_H
#define HOSTS_KIT_TEXT_BOX_MODEL_H

#include "gabarito/platform/text_box.h"
#include "hosts/kit/child_model.h"
#include "hosts/kit/text_line.h"

namespace gabarito::kit {

enum class Look : std::uint8_t { kFlat, k3D };

class TextBoxModel final : public InputChildModel<TextBox, TextLine> {
 public:
  TextBoxModel(FieldParts& parts, const ChildDesign& design, Look look, std::int16_t index)
      : InputChildModel(InputKind::kTextBox, parts, design), look_(look), index_(index) {}

  using InputChildModel::Enabled;
  void TextOf(const TextBox& other) override;
  bool Enabled() const override { return enabled_; }
  std::int32_t MaxLength() const override { return limit_; }
  void MaxLength(std::int32_t length) override;
  float Left() const override { return bounds_.left; }
  float Top() const override { return bounds_.top; }
  float Width() const override { return bounds_.width; }
  float Height() const override { return bounds_.height; }
  void Left(float left) override;
  void Width(float width) override;
  void Height(float height) override;
  // The pass after the event shows it.
  void Refresh() override {}

  void GotFocus() override;
  void KeyDown(std::int16_t& vk, std::int16_t& shift) override;
  char16_t KeyPress(char16_t character) override;
  void HandOver(std::u16string_view text, std::int32_t selStart, std::int32_t selLength) override;
  std::int32_t Limit() const override { return limit_; }

  Look ItsLook() const { return look_; }
  std::int16_t Index() const { return index_; }

 private:
  Look look_;
  std::int16_t index_;
  std::int32_t limit_ = 0;
};

}  // namespace gabarito::kit

#endif  // HOSTS_KIT_TEXT_BOX_MODEL_H
