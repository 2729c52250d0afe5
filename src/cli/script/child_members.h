// The members of the children by their names, as a script reads, writes and breaks them.
#ifndef CLI_SCRIPT_CHILD_MEMBERS_H
#define CLI_SCRIPT_CHILD_MEMBERS_H

#include <string_view>

#include "cli/properties.h"
#include "hosts/memory/field.h"

namespace gabarito::cli {

// UsageError on a child or a member that does not exist, or a value that is not of the member's type. What a
// write raises passes.
Json ReadChild(memory::FieldParts& parts, std::string_view child, std::string_view member);
void WriteChild(memory::FieldParts& parts, std::string_view child, std::string_view member,
                std::string_view value);

// UsageError unless `child` ("Combo1", "UserControl", ...) has an operation `member` that the field uses.
void CheckOperation(std::string_view child, std::string_view member);

// The child that takes input with this name, or null.
memory::Focusable* InputChildOf(memory::FieldParts& parts, std::string_view name);

// All children in the order of TabIndex, each with its members, after the surface.
Json DumpChildren(memory::FieldParts& parts);

}  // namespace gabarito::cli

#endif  // CLI_SCRIPT_CHILD_MEMBERS_H
