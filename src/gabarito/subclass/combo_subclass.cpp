#include "gabarito/subclass/combo_subclass.h"

#include <string>

#include "gabarito/platform/number.h"
#include "gabarito/platform/pula_erros.h"

namespace gabarito {
namespace {

constexpr std::int32_t GWL_WNDPROC = -4;
constexpr std::int32_t WM_PAINT = 15;
constexpr std::int32_t WM_NCDESTROY = 130;
constexpr std::int32_t kRaisedInner = 4;             // BDR_RAISEDINNER
constexpr std::int32_t kFlatRectangle = 15 | 16384;  // BF_RECT with BF_FLAT

std::u16string Hexadecimal(std::uint32_t value) {
  std::u16string digits;
  do {
    digits.insert(digits.begin(), u"0123456789ABCDEF"[value & 15]);
    value >>= 4;
  } while (value != 0);
  return digits;
}

void DesenhaBorda(User32& user32, WindowHandle hWnd) {
  const DeviceContext dc = user32.GetWindowDC(hWnd);
  RECT r;
  user32.GetClientRect(hWnd, r);
  user32.DrawEdge(dc, r, kRaisedInner, kFlatRectangle);
  user32.InflateRect(r, -1, -1);
  user32.DrawEdge(dc, r, kRaisedInner, kFlatRectangle);
  user32.ReleaseDC(hWnd, dc);
}

// What the system calls. An error must not escape into it: it takes the procedure off instead.
std::int32_t ProcedimentoDoModulo(User32& user32, WindowHandle hWnd, std::int32_t uMsg, std::int32_t wParam,
                                  std::int32_t lParam) {
  Campo* campo = nullptr;
  try {
    campo = reinterpret_cast<Campo*>(user32.GetPropA(hWnd, kObjectPointer));
    if (campo == nullptr) throw Erro(kObjectNotSet);
    return ComboWindowProc(*campo, hWnd, uMsg, wParam, lParam);
  } catch (const Erro& erro) {
    PulaErros pula;
    pula([&] { UnhookCombo(user32, hWnd); });
    if (campo == nullptr) return 0;
    pula([&] {
      campo->Dialogs->Trace(u"Unhook on Error, #" + NumberToText(erro.Number()) + u"  Desc: " +
                            erro.Description() + u"  Message, hWnd: &h" +
                            Hexadecimal(static_cast<std::uint32_t>(hWnd)) + u" Msg: &h" +
                            Hexadecimal(static_cast<std::uint32_t>(uMsg)) + u" Params: " +
                            NumberToText(wParam) + u" " + NumberToText(lParam));
    });
    return 0;
  }
}

}  // namespace

void HookCombo(Campo& c) {
  const WindowHandle hWnd = c.Combo1->hWnd();
  const auto procedimento = reinterpret_cast<WindowProc>(static_cast<WindowProcedure>(ProcedimentoDoModulo));
  const WindowProc atual = c.User32->GetWindowLongA(hWnd, GWL_WNDPROC);
  if (atual == procedimento) return;
  c.User32->SetPropA(hWnd, kOldWindowProc, atual);
  c.User32->SetPropA(hWnd, kObjectPointer, reinterpret_cast<std::intptr_t>(&c));
  c.User32->SetWindowLongA(hWnd, GWL_WNDPROC, procedimento);
}

void UnhookCombo(User32& user32, WindowHandle hWnd) {
  const WindowProc anterior = user32.GetPropA(hWnd, kOldWindowProc);
  if (anterior != 0) user32.SetWindowLongA(hWnd, GWL_WNDPROC, anterior);
}

std::int32_t ComboWindowProc(Campo& c, WindowHandle hWnd, std::int32_t uMsg, std::int32_t wParam,
                             std::int32_t lParam) {
  if (uMsg == WM_NCDESTROY) UnhookCombo(*c.User32, c.Combo1->hWnd());
  const WindowProc anterior = c.User32->GetPropA(hWnd, kOldWindowProc);
  const std::int32_t resposta = c.User32->CallWindowProcA(anterior, hWnd, uMsg, wParam, lParam);
  if (hWnd == c.Combo1->hWnd() && uMsg == WM_PAINT) DesenhaBorda(*c.User32, hWnd);
  return resposta;
}

}  // namespace gabarito
