// What a person who typed a command or a script got wrong.
#ifndef SCRIPT_USAGE_ERROR_H
#define SCRIPT_USAGE_ERROR_H

#include <stdexcept>

namespace gabarito::script {

// An unknown name, a value of the wrong type or out of range. what() says so in one line.
struct UsageError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

}  // namespace gabarito::script

#endif  // SCRIPT_USAGE_ERROR_H
