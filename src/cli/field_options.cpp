#include "cli/field_options.h"

#include <string_view>

#include "cli/names.h"

namespace gabarito::cli {
namespace {

struct Setting {
  std::string_view name;
  std::string_view value;

  // Mask fills the list and gives Text its meaning: before it an index selects in the list of another kind.
  bool NeedsLayout() const { return name == "ComboListIndex" || name == "Text"; }
};

Setting Split(std::string_view setting) {
  const std::size_t equals = setting.find('=');
  if (equals == 0 || equals == std::string_view::npos) {
    throw UsageError("--set takes NAME=VALUE, not '" + std::string(setting) + "'");
  }
  return {setting.substr(0, equals), setting.substr(equals + 1)};
}

}  // namespace

void Apply(const FieldOptions& options, Gabarito& field) {
  // The kind and the shape of each setting first: a fault in them is told before anything is set.
  const std::int32_t mask = MaskFromText(options.mask);
  std::vector<Setting> settings;
  for (const std::string& set : options.sets) settings.push_back(Split(set));
  for (const Setting& setting : settings) {
    if (!setting.NeedsLayout()) SetPropertyFromText(field, setting.name, setting.value);
  }
  field.Mask(mask);
  for (const Setting& setting : settings) {
    if (setting.NeedsLayout()) SetPropertyFromText(field, setting.name, setting.value);
  }
}

}  // namespace gabarito::cli
