// A form: controls in tab order, one focus, one keyboard. What a program or a test drives.
//
//   gabarito::memory::Form form;
//   gabarito::memory::Field& cpf = form.AddField("cpf");
//   cpf.Create();
//   cpf->Mask(gabarito::gbCPF);
//   form.SetFocus(*cpf.Surface());
//   form.Type(u"11144477735");
//
// Everything happens inside the call that causes it. One thread.
#ifndef HOSTS_MEMORY_FORM_H
#define HOSTS_MEMORY_FORM_H

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "hosts/memory/environment.h"
#include "hosts/memory/focusable.h"
#include "hosts/memory/windows.h"

namespace gabarito::memory {

class Button;
class Field;
class PlainBox;

class Form {
 public:
  Form();
  ~Form();
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  // A control at the end of the tab order; it lives as long as the form.
  Field& AddField(std::string name);
  PlainBox& AddBox(std::string name);
  Button& AddButton(std::string name);

  Environment& System() { return environment_; }
  Windows& AllWindows() { return windows_; }

  // --- Focus ---------------------------------------------------------------------------------------------

  // Null before the first SetFocus.
  Focusable* Focused() const { return focused_; }

  // Raises LostFocus of what has the focus, moves the focus, raises ExitFocus of a control that is left and
  // GotFocus of the receiver. A handler that moves the focus on ends the earlier move where it stands.
  // Raises 5 when the receiver is hidden or disabled.
  void SetFocus(Focusable& receiver);

  // The next or previous tab stop that can take the focus, round the form. Nothing happens without one.
  void Tab(bool backwards);

  // Gives the focus of a part that cannot keep it to the surface of its control; see UserControl::Settle.
  void Settle();

  // A part has been hidden or disabled: the next Settle has something to look at.
  void Unsettle() { unsettled_ = true; }

  // The control is about to go: the focus leaves it without an event.
  void Forget(Control& control);

  // --- Keyboard ------------------------------------------------------------------------------------------

  // Delivers what is queued until the queue is empty. Called inside a handler it does nothing: the run in
  // progress takes what is queued.
  void Run();

  // One key by its virtual-key code, with the mask 1 Shift, 2 Ctrl, 4 Alt, then Run.
  void Press(std::int16_t vk, std::int16_t shift = 0);

  // Each character as a person types it on the keyboard layout; one without a key arrives as it is. Line
  // feed and carriage return are Enter.
  void Type(std::u16string_view text);

  // Puts the text on the clipboard and presses Ctrl+V.
  void Paste(std::u16string_view text);

 private:
  void Deliver(const KeyEvent& event);
  Focusable* NextStop(bool backwards);

  Environment environment_;
  Windows windows_;
  std::vector<std::unique_ptr<Control>> controls_;
  Focusable* focused_ = nullptr;
  bool entered_ = false;     // GotFocus of what has the focus has been raised
  std::uint64_t moves_ = 0;  // counts moves of the focus, to notice one that happened inside a handler
  bool unsettled_ = false;
  bool running_ = false;
  std::vector<Focusable*> stops_;  // room for the tab stops, so that a Tab allocates nothing
};

}  // namespace gabarito::memory

#endif  // HOSTS_MEMORY_FORM_H
