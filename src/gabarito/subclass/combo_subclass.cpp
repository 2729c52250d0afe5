#include "gabarito/subclass/combo_subclass.h"

#include <new>
#include <string>

#include "gabarito/platform/number.h"

namespace gabarito {
namespace {

constexpr std::int32_t GWL_WNDPROC = -4;
constexpr std::int32_t WM_PAINT = 15;
constexpr std::int32_t WM_NCDESTROY = 130;
constexpr std::int32_t kOutOfMemory = 7;
constexpr std::int32_t kInternalError = 51;
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

// Runs a step of which nothing may get out, whatever it throws.
template <class Passo>
void SemEscapar(Passo passo) noexcept {
  try {
    passo();
  } catch (...) {
    // Nobody is left to tell: the caller is the system.
  }
}

void DesenhaBorda(User32& user32, WindowHandle hWnd) {
  const DeviceContext dc = user32.GetWindowDC(hWnd);
  try {
    RECT r;
    user32.GetClientRect(hWnd, r);
    user32.DrawEdge(dc, r, kRaisedInner, kFlatRectangle);
    user32.InflateRect(r, -1, -1);
    user32.DrawEdge(dc, r, kRaisedInner, kFlatRectangle);
  } catch (...) {
    SemEscapar([&] { user32.ReleaseDC(hWnd, dc); });
    throw;
  }
  user32.ReleaseDC(hWnd, dc);
}

struct Mensagem {
  WindowHandle hWnd;
  std::int32_t uMsg, wParam, lParam;
};

void ContaNoRastro(const Campo& c, std::int32_t numero, std::u16string_view descricao, const Mensagem& m) {
  c.Dialogs->Trace((u"Unhook on Error, #" + NumberToText(numero) + u"  Desc: ")
                       .append(descricao)
                       .append(u"  Message, hWnd: &h")
                       .append(Hexadecimal(static_cast<std::uint32_t>(m.hWnd)))
                       .append(u" Msg: &h")
                       .append(Hexadecimal(static_cast<std::uint32_t>(m.uMsg)))
                       .append(u" Params: " + NumberToText(m.wParam) + u" " + NumberToText(m.lParam)));
}

// What the system calls. Nothing may escape into it, of whatever type: a failure takes the procedure off
// instead, and is told to the trace of the field, if the window has one.
std::int32_t ProcedimentoDoModulo(User32& user32, WindowHandle hWnd, std::int32_t uMsg, std::int32_t wParam,
                                  std::int32_t lParam) noexcept {
  const Mensagem mensagem{hWnd, uMsg, wParam, lParam};
  Campo* campo = nullptr;
  const auto desiste = [&](std::int32_t numero, std::u16string_view descricao) {
    SemEscapar([&] { UnhookCombo(user32, hWnd); });
    if (campo != nullptr) SemEscapar([&] { ContaNoRastro(*campo, numero, descricao, mensagem); });
  };
  try {
    campo = reinterpret_cast<Campo*>(user32.GetPropA(hWnd, kObjectPointer));
    if (campo == nullptr) throw Erro(kObjectNotSet);
    return ComboWindowProc(*campo, hWnd, uMsg, wParam, lParam);
  } catch (const Erro& erro) {
    desiste(erro.Number(), erro.Description());
  } catch (const std::bad_alloc&) {
    desiste(kOutOfMemory, u"Memória insuficiente");
  } catch (...) {
    desiste(kInternalError, u"Erro interno");
  }
  return 0;
}

}  // namespace

void HookCombo(Campo& c) {
  const WindowHandle hWnd = c.Combo1->hWnd();
  const auto procedimento = reinterpret_cast<WindowProc>(static_cast<WindowProcedure>(ProcedimentoDoModulo));
  const WindowProc atual = c.User32->GetWindowLongA(hWnd, GWL_WNDPROC);
  // Under somebody else's procedure too: hooked once more it would forward to that one, and that one back.
  if (atual == procedimento || c.User32->GetPropA(hWnd, kHooked) != 0) return;
  c.User32->SetPropA(hWnd, kOldWindowProc, atual);
  c.User32->SetPropA(hWnd, kObjectPointer, reinterpret_cast<std::intptr_t>(&c));
  c.User32->SetWindowLongA(hWnd, GWL_WNDPROC, procedimento);
  c.User32->SetPropA(hWnd, kHooked, 1);
}

void UnhookCombo(User32& user32, WindowHandle hWnd) {
  const WindowProc anterior = user32.GetPropA(hWnd, kOldWindowProc);
  if (anterior == 0) return;
  user32.SetWindowLongA(hWnd, GWL_WNDPROC, anterior);
  user32.SetPropA(hWnd, kHooked, 0);
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
