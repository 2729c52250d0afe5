// The kind of a field and its properties, as a person types them behind a command.
#ifndef CLI_FIELD_OPTIONS_H
#define CLI_FIELD_OPTIONS_H

#include <string>
#include <vector>

#include "gabarito/control/gabarito.h"

namespace gabarito::cli {

struct FieldOptions {
  std::string mask;               // a name or a number
  std::vector<std::string> sets;  // NAME=VALUE each
};

// Sets the properties in the order given, then Mask, so that the layout of the kind finds words, pattern,
// font and limits in place; what works on the children of a layout (ComboListIndex, Text) comes behind Mask.
// UsageError on a name, a value or a kind that is none.
void Apply(const FieldOptions& options, Gabarito& field);

}  // namespace gabarito::cli

#endif  // CLI_FIELD_OPTIONS_H
