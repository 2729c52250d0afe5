// Everything that one field needs of its host, in one place: what the public class is built from.
#ifndef GABARITO_PLATFORM_HOST_H
#define GABARITO_PLATFORM_HOST_H

#include <array>
#include <memory>

#include "gabarito/platform/clock.h"
#include "gabarito/platform/combo_box.h"
#include "gabarito/platform/dialogs.h"
#include "gabarito/platform/input_queue.h"
#include "gabarito/platform/kernel32.h"
#include "gabarito/platform/label.h"
#include "gabarito/platform/mask_ed_box.h"
#include "gabarito/platform/painting.h"
#include "gabarito/platform/regional.h"
#include "gabarito/platform/text_box.h"
#include "gabarito/platform/user_control.h"
#include "gabarito/platform/window_hook.h"

namespace gabarito {

// The eleven children belong to the surface. One thread.
struct Host {
  std::array<TextBox*, 3> txt_entrada;    // flat
  std::array<TextBox*, 3> txt_entrada3D;  // 3D
  std::array<Label*, 3> lbl_controle;
  ComboBox* Combo1;
  MaskEdBox* MaskEdBox1;
  gabarito::UserControl* UserControl;

  gabarito::Dialogs* Dialogs;
  gabarito::Clock* Clock;
  gabarito::InputQueue* InputQueue;
  gabarito::Painting* Painting;
  gabarito::WindowHook* WindowHook = nullptr;  // optional
  gabarito::Kernel32* Kernel32;
  const gabarito::Regional* Regional;  // read anew at each use

  // Keeps the children alive. The field holds it, and so does each of its operations while it runs: a host
  // that ends or deletes a field inside one lets go of its own share, and the operation comes to its end on
  // children that are still there. Null when the children outlive all of that anyway.
  std::shared_ptr<const void> Filhos = nullptr;
};

}  // namespace gabarito

#endif  // GABARITO_PLATFORM_HOST_H
