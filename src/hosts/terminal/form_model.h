// The form itself: labelled fields and the button that finishes, on the in-memory host.
#ifndef HOSTS_TERMINAL_FORM_MODEL_H
#define HOSTS_TERMINAL_FORM_MODEL_H

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "hosts/kit/field_model.h"
#include "hosts/memory/button.h"
#include "hosts/memory/form.h"
#include "hosts/terminal/field_dialogs.h"
#include "hosts/terminal/form_spec.h"

namespace gabarito::terminal {

// A cell of the terminal in twips; the font of the form is made to fit it.
inline constexpr int kCell = 100;
// Cells of a field's surface. It never follows the window: a new width would run the layouts, and they empty
// the boxes of a date.
inline constexpr int kFieldWidth = 40;

class FormModel {
 public:
  // What a `set_up` throws passes. `now` is asked for the time at each step of the person.
  FormModel(FormSpec spec, std::function<Date()> now);
  FormModel(const FormModel&) = delete;
  FormModel& operator=(const FormModel&) = delete;

  struct Line {
    FieldSpec spec;
    memory::Field* field;
    bool lost = false;  // the field has taken nothing of the value to start from
  };
  // Title and button; the fields are in Lines.
  const FormSpec& Spec() const { return spec_; }
  const std::vector<Line>& Lines() const { return lines_; }
  memory::Form& Form() { return form_; }
  memory::Button& Finish() { return *finish_; }

  // The line of the control with the focus; Lines().size() for the button, and when nothing has it.
  std::size_t FocusedLine();
  // The combo box with the focus, or null.
  kit::ComboModel* FocusedCombo();

  // Hears the fields from now on; null for nobody.
  void Listen(Listener* listener) { listener_ = listener; }

  // Sets the clock of the form to the present.
  void TakeTime() { form_.System().clock.Set(now_()); }

  // Reads the value, which judges the field as leaving it does.
  FieldValue Read(std::size_t line);

 private:
  // Whether the field has taken something of its value.
  bool SetUp(memory::Field& field, const FieldSpec& spec);

  FormSpec spec_;
  std::function<Date()> now_;
  Listener* listener_ = nullptr;
  std::deque<FieldDialogs> dialogs_;  // one a line; they outlive the fields and never move
  memory::Form form_;
  std::vector<Line> lines_;
  memory::Button* finish_;
};

}  // namespace gabarito::terminal

#endif  // HOSTS_TERMINAL_FORM_MODEL_H
