// Everything that one field needs of its host, in one place: what the public class is built from.
#ifndef GABARITO_PLATFORM_HOST_H
#define GABARITO_PLATFORM_HOST_H

#include <array>

#include "gabarito/platform/clock.h"
#include "gabarito/platform/combo_box.h"
#include "gabarito/platform/dialogs.h"
#include "gabarito/platform/kernel32.h"
#include "gabarito/platform/label.h"
#include "gabarito/platform/mask_ed_box.h"
#include "gabarito/platform/regional.h"
#include "gabarito/platform/text_box.h"
#include "gabarito/platform/user32.h"
#include "gabarito/platform/user_control.h"

namespace gabarito {

// The eleven children belong to the surface, and all that is named here outlives the field. One thread.
struct Host {
  std::array<TextBox*, 3> txt_entrada;    // flat
  std::array<TextBox*, 3> txt_entrada3D;  // 3D
  std::array<Label*, 3> lbl_controle;
  ComboBox* Combo1;
  MaskEdBox* MaskEdBox1;
  gabarito::UserControl* UserControl;

  gabarito::Dialogs* Dialogs;
  gabarito::Clock* Clock;
  gabarito::User32* User32;
  gabarito::Kernel32* Kernel32;
  const gabarito::Regional* Regional;  // read anew at each use
};

}  // namespace gabarito

#endif  // GABARITO_PLATFORM_HOST_H
