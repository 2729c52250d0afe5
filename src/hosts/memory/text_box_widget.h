// The text box of the in-memory host: an element of txt_entrada or txt_entrada3D.
#ifndef HOSTS_MEMORY_TEXT_BOX_WIDGET_H
#define HOSTS_MEMORY_TEXT_BOX_WIDGET_H

#include "gabarito/platform/text_box.h"
#include "hosts/memory/edit_line.h"
#include "hosts/memory/widget.h"

namespace gabarito::memory {

enum class Look { kFlat, k3D };

class TextBoxWidget final : public InputWidget<TextBox, EditLine> {
 public:
  TextBoxWidget(Field& field, Form& form, Control& owner, const ChildDesign& design, Look look,
                std::int16_t index)
      : InputWidget(field, form, owner, design), look_(look), index_(index) {}

  using InputWidget::Enabled;
  bool Enabled() const override;
  std::int32_t MaxLength() const override;
  void MaxLength(std::int32_t length) override;
  float Left() const override;
  float Top() const override;
  float Width() const override;
  float Height() const override;
  void Left(float left) override;
  void Width(float width) override;
  void Height(float height) override;
  void Refresh() override;

  void GotFocus() override;
  bool KeyDown(std::int16_t vk, std::int16_t shift) override;
  void Character(char16_t character) override;

  std::int32_t Limit() const { return limit_; }

 private:
  Look look_;
  std::int16_t index_;
  std::int32_t limit_ = 0;
};

}  // namespace gabarito::memory

#endif  // HOSTS_MEMORY_TEXT_BOX_WIDGET_H
