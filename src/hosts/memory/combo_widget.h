// The drop-down combo box of the in-memory host: an edit part and a list.
#ifndef HOSTS_MEMORY_COMBO_WIDGET_H
#define HOSTS_MEMORY_COMBO_WIDGET_H

#include "gabarito/platform/combo_box.h"
#include "hosts/memory/combo_list.h"
#include "hosts/memory/edit_line.h"
#include "hosts/memory/widget.h"

namespace gabarito::memory {

// Beside the events that combo_box.h tells: the arrows up and down and Page Up and Page Down choose another
// entry, which raises Click; F4 and Alt with an arrow open and close the list. An edit that leaves another
// text than that of the selected entry leaves no entry selected, without a Click.
class ComboWidget final : public InputWidget<ComboBox, EditLine> {
 public:
  ComboWidget(Field& field, Form& form, Control& owner, const ChildDesign& design);
  ~ComboWidget() override;

  using InputWidget::Visible;
  bool Visible() const override;
  using InputWidget::BackColor;
  gabarito::Color BackColor() const override;
  void Move(float left, std::optional<float> top, std::optional<float> width,
            std::optional<float> height) override;
  using InputWidget::Text;
  void Text(std::u16string_view text) override;
  void AddItem(std::u16string_view text) override;
  void Clear() override;
  std::u16string_view List(std::int16_t index) const override;
  std::int16_t ListCount() const override;
  std::int16_t ListIndex() const override;
  void ListIndex(std::int16_t index) override;
  float Height() const override;
  float Width() const override;
  void Width(float width) override;
  void Left(float left) override;
  void ToolTipText(std::u16string_view text) override;
  WindowHandle hWnd() const override;

  void LostFocus() override;
  bool KeyDown(std::int16_t vk, std::int16_t shift) override;
  void Character(char16_t character) override;
  void KeyUp(std::int16_t vk, std::int16_t shift) override;

  // What the system asks and does.
  std::int32_t FindBeginning(std::u16string_view text) { return list_.FindBeginning(text); }
  void DropDown(bool open) { dropped_down_ = open; }
  void TrimList() { list_.Trim(); }
  WindowHandle Window() const { return window_; }

  // What a screen shows.
  const ComboList& Entries() const { return list_; }
  std::int16_t Selected() const { return selected_; }
  bool DroppedDown() const { return dropped_down_; }
  std::u16string_view ToolTip() const { return tool_tip_; }
  float LineHeight() const { return FontMetric::LineHeight(*font_); }

  // A person picks an entry of the list with the mouse: it is selected, Click is raised, the list closes.
  void Pick(std::int16_t index);

 private:
  void Select(std::int16_t index);
  void Edited();
  bool ChooseByKey(std::int16_t vk, std::int16_t shift);

  ComboList list_;
  std::int16_t selected_ = -1;
  bool dropped_down_ = false;
  std::u16string tool_tip_;
  WindowHandle window_;
};

}  // namespace gabarito::memory

#endif  // HOSTS_MEMORY_COMBO_WIDGET_H
