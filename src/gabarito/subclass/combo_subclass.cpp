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

void DesenhaBorda(WindowHook& hook, WindowHandle hWnd) {
  const DeviceContext dc = hook.GetWindowDC(hWnd);
  try {
    RECT r;
    hook.GetClientRect(hWnd, r);
    hook.DrawEdge(dc, r, kRaisedInner, kFlatRectangle);
    hook.InflateRect(r, -1, -1);
    hook.DrawEdge(dc, r, kRaisedInner, kFlatRectangle);
  } catch (...) {
    SemEscapar([&] { hook.ReleaseDC(hWnd, dc); });
    throw;
  }
  hook.ReleaseDC(hWnd, dc);
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
std::int32_t ProcedimentoDoModulo(WindowHook& hook, WindowHandle hWnd, std::int32_t uMsg, std::int32_t wParam,
                                  std::int32_t lParam) noexcept {
  const Mensagem mensagem{hWnd, uMsg, wParam, lParam};
  Campo* campo = nullptr;
  const auto desiste = [&](std::int32_t numero, std::u16string_view descricao) {
    SemEscapar([&] { UnhookCombo(hook, hWnd); });
    if (campo != nullptr) SemEscapar([&] { ContaNoRastro(*campo, numero, descricao, mensagem); });
  };
  try {
    campo = reinterpret_cast<Campo*>(hook.GetPropA(hWnd, kObjectPointer));
    if (campo == nullptr) Fail(kObjectNotSet);
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
  if (c.WindowHook == nullptr) Fail(kNotSupported);
  const WindowHandle hWnd = c.Combo1->hWnd();
  const auto procedimento = reinterpret_cast<WindowProc>(static_cast<WindowProcedure>(ProcedimentoDoModulo));
  const WindowProc atual = c.WindowHook->GetWindowLongA(hWnd, GWL_WNDPROC);
  // Under somebody else's procedure too: hooked once more it would forward to that one, and that one back.
  if (atual == procedimento || c.WindowHook->GetPropA(hWnd, kHooked) != 0) return;
  c.WindowHook->SetPropA(hWnd, kOldWindowProc, atual);
  c.WindowHook->SetPropA(hWnd, kObjectPointer, reinterpret_cast<std::intptr_t>(&c));
  c.WindowHook->SetWindowLongA(hWnd, GWL_WNDPROC, procedimento);
  c.WindowHook->SetPropA(hWnd, kHooked, 1);
}

void UnhookCombo(Campo& c) {
  if (c.WindowHook == nullptr) Fail(kNotSupported);
  UnhookCombo(*c.WindowHook, c.Combo1->hWnd());
}

void UnhookCombo(WindowHook& hook, WindowHandle hWnd) {
  const WindowProc anterior = hook.GetPropA(hWnd, kOldWindowProc);
  if (anterior == 0) return;
  hook.SetWindowLongA(hWnd, GWL_WNDPROC, anterior);
  hook.SetPropA(hWnd, kHooked, 0);
}

std::int32_t ComboWindowProc(Campo& c, WindowHandle hWnd, std::int32_t uMsg, std::int32_t wParam,
                             std::int32_t lParam) {
  if (uMsg == WM_NCDESTROY) UnhookCombo(*c.WindowHook, c.Combo1->hWnd());
  const WindowProc anterior = c.WindowHook->GetPropA(hWnd, kOldWindowProc);
  const std::int32_t resposta = c.WindowHook->CallWindowProcA(anterior, hWnd, uMsg, wParam, lParam);
  if (hWnd == c.Combo1->hWnd() && uMsg == WM_PAINT) DesenhaBorda(*c.WindowHook, hWnd);
  return resposta;
}

}  // namespace gabarito
