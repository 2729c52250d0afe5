// The members of the children by their names, as a script reads, writes and breaks them.
#ifndef SCRIPT_CHILD_MEMBERS_H
#define SCRIPT_CHILD_MEMBERS_H

#include <string_view>

#include "hosts/kit/field_parts.h"
#include "script/properties.h"

namespace gabarito::script {

// UsageError on a child or a member that does not exist, or a value that is not of the member's type. What a
// write raises passes.
Json ReadChild(kit::FieldParts& parts, std::string_view child, std::string_view member);
void WriteChild(kit::FieldParts& parts, std::string_view child, std::string_view member,
                std::string_view value);

// UsageError unless `child` ("Combo1", "UserControl", ...) has an operation `member` that the field uses.
void CheckOperation(std::string_view child, std::string_view member);

// The child that takes input with this name, or null.
kit::Focusable* InputChildOf(kit::FieldParts& parts, std::string_view name);

// All children in the order of TabIndex, each with its members, after the surface.
Json DumpChildren(kit::FieldParts& parts);

}  // namespace gabarito::script

#endif  // SCRIPT_CHILD_MEMBERS_H
