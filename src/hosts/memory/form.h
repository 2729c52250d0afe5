// A form in memory: controls in tab order, one focus, one keyboard. What a program or a test drives.
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

#include "hosts/kit/field_model.h"
#include "hosts/kit/scripted.h"
#include "hosts/memory/windows.h"

namespace gabarito::memory {

class Button;
class OwnControl;
class PlainBox;
using Field = kit::FieldModel;

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

  // Scripted answers, the clock, the region, the ambient properties.
  kit::ScriptedServices& System() { return services_; }
  // The focus, the keyboard, the recorder, comfort.
  kit::FormModel& Model();
  Windows& AllWindows() { return windows_; }
  std::u16string& Clipboard() { return clipboard_; }

  // Fields that are made from now on fail as System().faults tells them to.
  void MakeFieldsBreakable();

  // --- Focus ---------------------------------------------------------------------------------------------

  // Null before the first SetFocus.
  kit::Focusable* Focused();
  // See kit::Focus::Move. Raises 5 when the receiver is hidden or disabled.
  void SetFocus(kit::Focusable& receiver);
  // The next or previous tab stop that can take the focus, round the form. Nothing happens without one.
  void Tab(bool backwards);

  // --- Keyboard ------------------------------------------------------------------------------------------

  // Delivers what is queued until the queue is empty: see kit::FormModel::Run.
  void Run();
  // One key by its virtual-key code, with the mask 1 Shift, 2 Ctrl, 4 Alt, then Run.
  void Press(std::int16_t vk, std::int16_t shift = 0);
  // Each character as a person types it on the keyboard layout, one run each; one without a key arrives as it
  // is. Line feed and carriage return are Enter.
  void Type(std::u16string_view text);
  // Puts the text on the clipboard and presses Ctrl+V.
  void Paste(std::u16string_view text);

 private:
  class OwnModel;

  // One place in the tab order holds one of the two.
  struct Place {
    std::unique_ptr<Field> field;
    std::unique_ptr<OwnControl> own;
  };

  void TabStops();
  kit::Focusable* NextStop(bool backwards);
  kit::ComboModel* ComboOf(WindowHandle window) const;

  kit::ScriptedServices services_;
  std::u16string clipboard_;
  Windows windows_;
  std::shared_ptr<OwnModel> model_;
  std::vector<Place> places_;
  std::vector<kit::Focusable*> stops_;  // room for the tab stops, so that a Tab allocates nothing
};

}  // namespace gabarito::memory

#endif  // HOSTS_MEMORY_FORM_H
