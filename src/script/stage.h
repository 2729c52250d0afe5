// Where a script plays: the form of one host, with real input of that host.
#ifndef SCRIPT_STAGE_H
#define SCRIPT_STAGE_H

#include <cstdint>
#include <string_view>

#include "hosts/kit/field_model.h"
#include "hosts/kit/scripted.h"

namespace gabarito::script {

// The form has a plain entry "before", the field, and a plain entry "after", in this tab order; the focus is
// in "before". Everything that a script sets stands in Services, which the form is built on; what happens is
// told to kit::FormModel::recorder.
//
// A host whose input comes back later (a page) takes note in Type, Press, Paste, Select and Run of what is to
// be done, and has it done before the next line.
class Stage {
 public:
  virtual ~Stage() = default;

  // As stories name it in their first line: "memory".
  virtual std::string_view Name() const = 0;
  virtual kit::ScriptedServices& Services() = 0;
  virtual kit::FieldModel& Field() = 0;
  kit::FormModel& Form() { return Field().Form(); }
  virtual kit::Focusable& Before() = 0;
  virtual kit::Focusable& After() = 0;

  // Around each line: the models take over what the widgets hold, and the widgets what has changed in the
  // models.
  virtual void HandOver() {}
  virtual void Apply() {}

  // A person types each character on the keyboard layout of the form; each key runs out, with what it made
  // the field send, before the next.
  virtual void Type(std::u16string_view text) = 0;
  // One key by its virtual-key code, with the mask 1 Shift, 2 Ctrl, 4 Alt.
  virtual void Press(std::int16_t vk, std::int16_t shift) = 0;
  // The text comes onto the clipboard and Ctrl+V is pressed.
  virtual void Paste(std::u16string_view text) = 0;
  // A person selects in what has the focus. False when that holds no text.
  virtual bool Select(std::int32_t start, std::int32_t length) = 0;
  // Delivers the keys that wait in the queue of the form.
  virtual void Run() = 0;

  // The system sends a message to the window of Combo1, or to another window. Raises 445 where there are no
  // window procedures.
  virtual void SendMessage(std::int32_t /*message*/, bool /*toAnotherWindow*/) { throw Erro(kNotSupported); }
};

}  // namespace gabarito::script

#endif  // SCRIPT_STAGE_H
