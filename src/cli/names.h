// Names that the commands borrow from the libraries under them.
#ifndef CLI_NAMES_H
#define CLI_NAMES_H

#include "hosts/kit/utf8.h"
#include "script/nearest.h"
#include "script/properties.h"

namespace gabarito::cli {

using kit::AppendUtf16;
using kit::AppendUtf8;
using kit::ToUtf16;
using kit::ToUtf8;
using script::DidYouMean;
using script::GetProperty;
using script::Json;
using script::MaskFromText;
using script::SetProperty;
using script::SetPropertyFromText;
using script::UsageError;

}  // namespace gabarito::cli

#endif  // CLI_NAMES_H
