// The label of the in-memory host.
#ifndef HOSTS_MEMORY_LABEL_WIDGET_H
#define HOSTS_MEMORY_LABEL_WIDGET_H

#include <string>

#include "hosts/memory/widget.h"

namespace gabarito::memory {

class LabelWidget final : public Widget<Label> {
 public:
  LabelWidget(Field& field, Form& form, const ChildDesign& design)
      : Widget(field, form, design), caption_(design.text) {}

  void Caption(std::u16string_view caption) override;
  void AutoSize(bool on) override;
  void Font(const FontRef& font) override;
  float Left() const override;
  float Top() const override;
  float Width() const override;
  void BackStyle(std::int32_t style) override;
  void BorderStyle(std::int32_t style) override;
  void Refresh() override;

  std::u16string_view Shown() const { return caption_; }
  bool SizesItself() const { return auto_size_; }

 private:
  void FitCaption();

  std::u16string caption_;
  bool auto_size_ = false;
  std::int32_t back_style_ = 1;
  std::int32_t border_style_ = 0;
};

}  // namespace gabarito::memory

#endif  // HOSTS_MEMORY_LABEL_WIDGET_H
