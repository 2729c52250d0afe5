// The model of the drop-down combo box, Combo1: an edit part and a list.
#ifndef HOSTS_KIT_COMBO_MODEL_H
#define HOSTS_KIT_COMBO_MODEL_H

#include <string>

#include "gabarito/platform/combo_box.h"
#include "hosts/kit/child_model.h"
#include "hosts/kit/combo_list.h"
#include "hosts/kit/text_line.h"

namespace gabarito::kit {

// Beside the events that combo_box.h tells: the arrows up and down and Page Up and Page Down choose another
// entry, which raises Click; F4 and Alt with an arrow open and close the list. An edit that leaves another
// text than that of the selected entry leaves no entry selected, without a Click.
class ComboModel final : public InputChildModel<ComboBox, TextLine> {
 public:
  ComboModel(FieldParts& parts, const ChildDesign& design);

  using InputChildModel::Visible;
  bool Visible() const override { return visible_; }
  using InputChildModel::BackColor;
  gabarito::Color BackColor() const override { return color_; }
  void Move(float left, std::optional<float> top, std::optional<float> width,
            std::optional<float> height) override;
  using InputChildModel::Text;
  void Text(std::u16string_view text) override;
  void AddItem(std::u16string_view text) override;
  void Clear() override;
  std::u16string_view List(std::int16_t index) const override;
  std::int16_t ListCount() const override { return static_cast<std::int16_t>(list_.Count()); }
  std::int16_t ListIndex() const override { return selected_; }
  void ListIndex(std::int16_t index) override;
  float Height() const override { return LineHeight(); }
  float Width() const override { return bounds_.width; }
  void Width(float width) override;
  void Left(float left) override;
  void ToolTipText(std::u16string_view text) override;
  std::int32_t SendMessageA(std::int32_t message, std::int32_t wParam, std::u16string_view text) override;
  WindowHandle hWnd() const override { return window_; }

  void LostFocus() override;
  char16_t KeyPress(char16_t character) override;
  void KeyUp(std::int16_t vk, std::int16_t shift) override;
  void HandOver(std::u16string_view text, std::int32_t selStart, std::int32_t selLength) override;

  // The text has been changed through Entry: an entry that it no longer is is not selected any more.
  void Edited();

  // What a combo box does with a key by itself, before its edit part: choosing an entry, opening and closing
  // the list. False for any other key.
  bool ChooseByKey(std::int16_t vk, std::int16_t shift);
  // A person picks an entry of the list with the mouse: it is selected, Click is raised, the list closes.
  // Nothing happens outside the list.
  void Pick(std::int16_t index);

  const ComboList& Entries() const { return list_; }
  std::int16_t Selected() const { return selected_; }
  bool DroppedDown() const { return dropped_down_; }
  void DropDown(bool open);
  std::u16string_view ToolTip() const { return tool_tip_; }
  float LineHeight() const;

 private:
  void Select(std::int16_t index);

  ComboList list_;
  std::int16_t selected_ = -1;
  bool dropped_down_ = false;
  std::u16string tool_tip_;
  WindowHandle window_;
};

}  // namespace gabarito::kit

#endif  // HOSTS_KIT_COMBO_MODEL_H
