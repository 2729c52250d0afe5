#include "hosts/terminal/form_model.h"

#include <algorithm>

namespace gabarito::terminal {
namespace {

// One character is as wide as a cell at 8 points: 30 * 8 * 20 / 48 twips.
constexpr float kCharacter = 30;

}  // namespace

FormModel::FormModel(std::vector<FieldSpec> fields, std::function<Date()> now) : now_(std::move(now)) {
  form_.System().metric.wide = form_.System().metric.narrow = kCharacter;
  TakeTime();
  for (FieldSpec& spec : fields) {
    memory::Field& field = form_.AddField(spec.name);
    field.Voice(&dialogs_.emplace_back(listener_, lines_.size()));
    SetUp(field, spec);
    lines_.push_back({std::move(spec), &field});
  }
  leave_ = &form_.AddButton("Sair");
}

void FormModel::SetUp(memory::Field& field, const FieldSpec& spec) {
  field.Create();
  // The labels have the ambient colour from the start, the surface only after it has been told of a change.
  field.Events().UserControl_AmbientChanged(u"BackColor");
  field.Parts().surface.Size(kFieldWidth * kCell, field.Parts().Combo1.LineHeight());
  // As a field that comes out of a stored form has it.
  field->TrataEnterComoTab(true);
  spec.set_up(*field);
}

std::size_t FormModel::FocusedLine() {
  kit::Focusable* const focused = form_.Focused();
  const auto line = std::ranges::find_if(lines_, [&](const Line& candidate) {
    return focused != nullptr && candidate.field->Exists() && &focused->Owner() == &candidate.field->Parts();
  });
  return static_cast<std::size_t>(line - lines_.begin());
}

kit::ComboModel* FormModel::FocusedCombo() { return dynamic_cast<kit::ComboModel*>(form_.Focused()); }

std::vector<std::pair<std::string, std::u16string>> FormModel::Values() {
  Listen(nullptr);
  // Two fields that refuse their entries would else pull the focus to and fro between the reads.
  for (const Line& line : lines_) (*line.field)->Enabled(false);
  std::vector<std::pair<std::string, std::u16string>> values;
  for (const Line& line : lines_) values.emplace_back(line.spec.name, (*line.field)->Text());
  return values;
}

}  // namespace gabarito::terminal
