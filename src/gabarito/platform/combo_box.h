// A drop-down combo box, an edit part and a list: Combo1.
//
// Events that the host raises: Click when an entry is chosen or ListIndex is set; KeyPress with the
// code page 1252 code of each character typed, before the edit part acts on it (0 afterwards: it does
// nothing); KeyUp for each key released; LostFocus when the focus leaves the box, before ExitFocus of the
// surface. Ctrl+C, Ctrl+X and Ctrl+V are carried out at key-down and raise no KeyPress. Enter and Escape
// close an open list, as does the loss of the focus.
#ifndef GABARITO_PLATFORM_COMBO_BOX_H
#define GABARITO_PLATFORM_COMBO_BOX_H

#include "gabarito/platform/child.h"

namespace gabarito {

using WindowHandle = std::intptr_t;

inline constexpr std::int32_t kCbFindString = 332;    // CB_FINDSTRING
inline constexpr std::int32_t kCbShowDropDown = 335;  // CB_SHOWDROPDOWN

class ComboBox : public InputChild {
 public:
  using Child::BackColor;
  using Child::Font;
  using Child::Visible;

  virtual bool Visible() const = 0;
  virtual Color BackColor() const = 0;

  // Appends an entry; the list is not sorted. Raises 6 beyond 32,767 entries.
  virtual void AddItem(std::u16string_view text) = 0;
  // Empties the list and the edit part; nothing is selected. Raises no event.
  virtual void Clear() = 0;
  // The entry at a 0-based position; the empty text outside the list. Good until the list changes.
  virtual std::u16string_view List(std::int16_t index) const = 0;
  virtual std::int16_t ListCount() const = 0;

  // Selected entry, 0-based; -1 for none.
  virtual std::int16_t ListIndex() const = 0;
  // Puts the entry into the edit part (-1 leaves it empty) and raises Click before it returns, also when the
  // value is the present one. Raises 380 outside -1 to ListCount() - 1.
  virtual void ListIndex(std::int16_t index) = 0;

  // The height of one line of input in the current font, read only. It is the ruler of the layouts: it has
  // to be right also while the box is hidden, and to follow the font at once.
  virtual float Height() const = 0;
  virtual float Width() const = 0;
  virtual void Width(float width) = 0;  // a negative value raises 380
  virtual void Left(float left) = 0;

  virtual void ToolTipText(std::u16string_view text) = 0;

  // A message to the list. kCbShowDropDown, wParam 1: opens it; an open one stays open. kCbFindString, wParam
  // -1: the 0-based position of the first entry that begins with `text`, comparing without regard to case,
  // from the top of the list; -1 if there is none. Other messages give 0.
  virtual std::int32_t SendMessageA(std::int32_t message, std::int32_t wParam, std::u16string_view text) = 0;

  // For Painting and WindowHook; never 0.
  virtual WindowHandle hWnd() const = 0;
};

}  // namespace gabarito

#endif  // GABARITO_PLATFORM_COMBO_BOX_H
