// The form itself: labelled fields and the button Sair on the in-memory host.
#ifndef HOSTS_TERMINAL_FORM_MODEL_H
#define HOSTS_TERMINAL_FORM_MODEL_H

#include <deque>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "hosts/kit/field_model.h"
#include "hosts/memory/button.h"
#include "hosts/memory/form.h"
#include "hosts/terminal/field_dialogs.h"

namespace gabarito::terminal {

// A cell of the terminal in twips; the font of the form is made to fit it.
inline constexpr int kCell = 100;
// Cells of a field's surface. It never follows the window: a new width would run the layouts, and they empty
// the boxes of a date.
inline constexpr int kFieldWidth = 38;

struct FieldSpec {
  std::string name;  // the key of its value; UTF-8
  std::u16string label;
  // Gives a new field its properties, its kind and its value, in this order.
  std::function<void(gabarito::Gabarito&)> set_up;
};

class FormModel {
 public:
  // What a `set_up` throws passes. `now` is asked for the time at each step of the person.
  FormModel(std::vector<FieldSpec> fields, std::function<Date()> now);
  FormModel(const FormModel&) = delete;
  FormModel& operator=(const FormModel&) = delete;

  struct Line {
    FieldSpec spec;
    memory::Field* field;
  };
  const std::vector<Line>& Lines() const { return lines_; }
  memory::Form& Form() { return form_; }
  memory::Button& Leave() { return *leave_; }

  // The line of the control with the focus; Lines().size() for the button, and when nothing has it.
  std::size_t FocusedLine();
  // The combo box with the focus, or null.
  kit::ComboModel* FocusedCombo();

  // Hears the fields from now on; null for nobody.
  void Listen(Listener* listener) { listener_ = listener; }

  // Sets the clock of the form to the present.
  void TakeTime() { form_.System().clock.Set(now_()); }

  // The value of each field by its name, in order. Each `Text` is read once, with message boxes answered
  // unseen by their default button: what a field refuses gives what its last exit left. Ends the form: the
  // fields are disabled, so that no refusal moves the focus.
  std::vector<std::pair<std::string, std::u16string>> Values();

 private:
  void SetUp(memory::Field& field, const FieldSpec& spec);

  std::function<Date()> now_;
  Listener* listener_ = nullptr;
  std::deque<FieldDialogs> dialogs_;  // one a line; they outlive the fields and never move
  memory::Form form_;
  std::vector<Line> lines_;
  memory::Button* leave_;
};

}  // namespace gabarito::terminal

#endif  // HOSTS_TERMINAL_FORM_MODEL_H
