// The conversions at the edge of the program are those of the host.
#ifndef CLI_UTF8_H
#define CLI_UTF8_H

#include "hosts/memory/utf8.h"

namespace gabarito::cli {

using memory::AppendUtf16;
using memory::AppendUtf8;
using memory::ToUtf16;
using memory::ToUtf8;

}  // namespace gabarito::cli

#endif  // CLI_UTF8_H
