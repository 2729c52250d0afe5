#include "hosts/terminal/form_model.h"

#include <algorithm>

namespace gabarito::terminal {
namespace {

// One character is as wide as a cell at 8 points: 30 * 8 * 20 / 48 twips.
constexpr float kCharacter = 30;

}  // namespace

FormModel::FormModel(std::vector<FieldSpec> fields, std::function<Date()> now) : now_(std::move(now)) {
  form_.System().metric = {.wide = kCharacter, .narrow = kCharacter};
  TakeTime();
  for (FieldSpec& spec : fields) {
    memory::Field& field = form_.AddField(spec.name);
    form_.System().voice = &dialogs_.emplace_back(listener_, lines_.size());
    SetUp(field, spec);
    lines_.push_back({std::move(spec), &field});
  }
  leave_ = &form_.AddButton("Sair");
}

void FormModel::SetUp(memory::Field& field, const FieldSpec& spec) {
  field.Create();
  // The labels have the ambient colour from the start, the surface only after it has been told of a change.
  field->UserControl_AmbientChanged(u"BackColor");
  field.Parts().surface.Size(kFieldWidth * kCell, field.Parts().Combo1.LineHeight());
  // As a field that comes out of a stored form has it.
  field->TrataEnterComoTab(true);
  spec.set_up(*field);
}

std::size_t FormModel::FocusedLine() const {
  memory::Focusable* const focused = form_.Focused();
  const auto line = std::ranges::find_if(lines_, [&](const Line& candidate) {
    return focused != nullptr && &focused->Owner() == candidate.field;
  });
  return static_cast<std::size_t>(line - lines_.begin());
}

memory::ComboWidget* FormModel::FocusedCombo() const {
  return dynamic_cast<memory::ComboWidget*>(form_.Focused());
}

std::vector<std::pair<std::string, std::u16string>> FormModel::Values() {
  Listen(nullptr);
  // Two fields that refuse their entries would else pull the focus to and fro between the reads.
  for (const Line& line : lines_) (*line.field)->Enabled(false);
  std::vector<std::pair<std::string, std::u16string>> values;
  for (const Line& line : lines_) values.emplace_back(line.spec.name, (*line.field)->Text());
  return values;
}

}  // namespace gabarito::terminal
