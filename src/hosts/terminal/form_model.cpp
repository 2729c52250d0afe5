#include "hosts/terminal/form_model.h"

#include <algorithm>
#include <utility>

#include "hosts/terminal/entries.h"

namespace gabarito::terminal {
namespace {

// One character is as wide as a cell at 8 points: 30 * 8 * 20 / 48 twips.
constexpr float kCharacter = 30;

}  // namespace

FormModel::FormModel(FormSpec spec, std::function<Date()> now)
    : spec_(std::move(spec)), now_(std::move(now)) {
  form_.System().metric.wide = form_.System().metric.narrow = kCharacter;
  form_.Model().comfort = true;
  TakeTime();
  for (FieldSpec& field_spec : std::exchange(spec_.fields, {})) {
    memory::Field& field = form_.AddField(field_spec.name);
    field.Voice(&dialogs_.emplace_back(listener_, lines_.size()));
    const bool taken = SetUp(field, field_spec);
    lines_.push_back({std::move(field_spec), &field, !taken});
  }
  finish_ = &form_.AddButton("finish");
}

bool FormModel::SetUp(memory::Field& field, const FieldSpec& spec) {
  field.Create();
  field.Parts().surface.Size(kFieldWidth * kCell, field.Parts().Combo1.LineHeight());
  // As a field that comes out of a stored form has it.
  field->TrataEnterComoTab(true);
  spec.set_up(*field);
  if (spec.value.empty()) return true;
  field->Text(spec.value);
  return !IsEmpty(field.Parts());
}

std::size_t FormModel::FocusedLine() {
  kit::Focusable* const focused = form_.Focused();
  const auto line = std::ranges::find_if(lines_, [&](const Line& candidate) {
    return focused != nullptr && &focused->Owner() == &candidate.field->Parts();
  });
  return static_cast<std::size_t>(line - lines_.begin());
}

kit::ComboModel* FormModel::FocusedCombo() {
  kit::Focusable* const focused = form_.Focused();
  kit::InputModel* const input = focused == nullptr ? nullptr : focused->Input();
  if (input == nullptr || input->Kind() != kit::InputKind::kCombo) return nullptr;
  return static_cast<kit::ComboModel*>(input);
}

FieldValue FormModel::Read(std::size_t line) {
  memory::Field& field = *lines_[line].field;
  std::u16string text = field->Text();
  // Some kinds give what stands between their boxes, or their pattern, when the boxes are empty.
  const bool empty = IsEmpty(field.Parts());
  if (empty) text.clear();
  return {lines_[line].spec.name, std::move(text), empty};
}

}  // namespace gabarito::terminal
