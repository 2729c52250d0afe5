// The form itself: labelled fields and the button Sair on the in-memory host.
#ifndef CLI_FORM_FORM_MODEL_H
#define CLI_FORM_FORM_MODEL_H

#include <string>
#include <vector>

#include "cli/form/field_list.h"
#include "hosts/memory/button.h"
#include "hosts/memory/field.h"
#include "hosts/memory/form.h"

namespace gabarito::cli {

// A cell of the terminal in twips; the font of the form is made to fit it.
inline constexpr int kCell = 100;
// Cells of a field's surface. It never follows the window: a new width would run the layouts, and they empty
// the boxes of a date.
inline constexpr int kFieldWidth = 38;

class FormModel {
 public:
  // UsageError, with the place, when a property of `fields` does not exist or does not take its value.
  explicit FormModel(std::vector<FieldSpec> fields);

  struct Line {
    FieldSpec spec;
    memory::Field* field;
  };
  const std::vector<Line>& Lines() const { return lines_; }
  memory::Form& Form() { return form_; }
  memory::Button& Leave() { return *leave_; }

  // The line of the control with the focus; Lines().size() for the button, and when nothing has it.
  std::size_t FocusedLine() const;
  // The combo box with the focus, or null.
  memory::ComboWidget* FocusedCombo() const;

  // The value of each field by its name, in order; a name that comes again gets "_2", "_3", ... behind it.
  // Each `Text` is read once, with message boxes answered unseen by their default button: what a field
  // refuses gives what its last exit left. Ends the form: the fields are disabled, so that no refusal moves
  // the focus.
  Json Values();

 private:
  void SetUp(memory::Field& field, const FieldSpec& spec);

  memory::Form form_;
  std::vector<Line> lines_;
  memory::Button* leave_;
};

}  // namespace gabarito::cli

#endif  // CLI_FORM_FORM_MODEL_H
