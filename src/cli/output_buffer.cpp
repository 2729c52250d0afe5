#include "cli/output_buffer.h"

#include <unistd.h>

#include <cerrno>
#include <system_error>

namespace gabarito::cli {

void OutputBuffer::Flush() {
  std::size_t written = 0;
  while (written < text_.size()) {
    const ssize_t n = ::write(descriptor_, text_.data() + written, text_.size() - written);
    // A pipe may take less than it is given.
    if (n >= 0) {
      written += static_cast<std::size_t>(n);
    } else if (errno != EINTR) {
      throw std::system_error(errno, std::generic_category(), "cannot write the output");
    }
  }
  text_.clear();
}

}  // namespace gabarito::cli
