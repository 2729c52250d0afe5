#include "cli/form/form_model.h"

#include <algorithm>

#include "cli/local_clock.h"
#include "cli/utf8.h"
#include "gabarito/platform/erro.h"

namespace gabarito::cli {
namespace {

// One character is as wide as a cell at 8 points: 30 * 8 * 20 / 48 twips.
constexpr float kCharacter = 30;

void Set(Gabarito& field, std::string_view name, const Json& value) {
  try {
    SetProperty(field, name, value);
  } catch (const Erro& erro) {
    throw UsageError(std::string(name) + ": error " + std::to_string(erro.Number()) + ", " +
                     ToUtf8(erro.Description()));
  }
}

// What a layout would undo.
bool ComesLast(std::string_view name) { return name == "Text" || name == "ComboListIndex"; }

}  // namespace

FormModel::FormModel(std::vector<FieldSpec> fields) {
  form_.System().metric = {.wide = kCharacter, .narrow = kCharacter};
  form_.System().clock.Set(LocalNow());
  for (FieldSpec& spec : fields) {
    memory::Field& field = form_.AddField(spec.name);
    try {
      SetUp(field, spec);
    } catch (const UsageError& error) {
      throw UsageError(spec.where + ": " + error.what());
    }
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
  // The kind takes its shape from words, pattern and length that are there.
  for (const auto& [name, value] : spec.set.items()) {
    if (!ComesLast(name)) Set(*field, name, value);
  }
  field->Mask(spec.mask);
  for (const auto& [name, value] : spec.set.items()) {
    if (ComesLast(name)) Set(*field, name, value);
  }
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

Json FormModel::Values() {
  memory::ScriptedDialogs& dialogs = form_.System().dialogs;
  dialogs.onMsgBox = nullptr;
  dialogs.onBeep = nullptr;
  // Two fields that refuse their entries would else pull the focus to and fro between the reads.
  for (const Line& line : lines_) (*line.field)->Enabled(false);
  Json values = Json::object();
  for (const Line& line : lines_) {
    std::string name = line.spec.name;
    for (int again = 2; values.contains(name); ++again) name = line.spec.name + "_" + std::to_string(again);
    values[name] = ToUtf8((*line.field)->Text());
  }
  return values;
}

}  // namespace gabarito::cli
