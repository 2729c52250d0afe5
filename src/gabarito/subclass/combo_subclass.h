// A window procedure for Combo1 that lets the combo paint itself and then draws a flat double edge over it.
//
// The field never installs it: a host that wants the edge calls HookCombo once the window is there, and
// UnhookCombo at the latest before the field goes.
#ifndef GABARITO_SUBCLASS_COMBO_SUBCLASS_H
#define GABARITO_SUBCLASS_COMBO_SUBCLASS_H

#include "gabarito/state/campo.h"

namespace gabarito {

// Window properties that a hooked window carries. The first two stay on it when it is unhooked.
inline constexpr std::string_view kOldWindowProc = "OldWindowProc";  // the procedure that was in place
inline constexpr std::string_view kObjectPointer = "ObjectPointer";  // the field that the window belongs to
inline constexpr std::string_view kHooked = "Hooked";                // 1 from the hook to the unhook, else 0

// Puts the procedure onto the window of Combo1. A window that is hooked already stays as it is, also one that
// somebody else has hooked over it since. Raises what the window calls of the host raise, and 445 on a host
// without window procedures. What the system calls then lets nothing escape: what is thrown takes the
// procedure off and is told to the trace.
void HookCombo(Campo& c);

// Puts the saved procedure back; a window without one stays as it is. With a Campo: that of its Combo1, and
// 445 on a host without window procedures.
void UnhookCombo(Campo& c);
void UnhookCombo(WindowHook& hook, WindowHandle hWnd);

// Forwards each message to the saved procedure and returns its answer; WM_PAINT of Combo1 then gets the edge,
// WM_NCDESTROY, which a host sends to a window that closes, first takes the procedure off. No error handling
// of its own.
std::int32_t ComboWindowProc(Campo& c, WindowHandle hWnd, std::int32_t uMsg, std::int32_t wParam,
                             std::int32_t lParam);

}  // namespace gabarito

#endif  // GABARITO_SUBCLASS_COMBO_SUBCLASS_H
