// Text on its way to a descriptor, written in large pieces.
#ifndef CLI_OUTPUT_BUFFER_H
#define CLI_OUTPUT_BUFFER_H

#include <cstddef>
#include <string>

namespace gabarito::cli {

class OutputBuffer {
 public:
  // The descriptor stays the caller's. What is not flushed is lost.
  explicit OutputBuffer(int descriptor) : descriptor_(descriptor) {}

  // What is to be written; append to it.
  std::string& Text() { return text_; }
  bool IsLarge() const { return text_.size() >= kLarge; }

  // Writes it all. Raises std::system_error.
  void Flush();

 private:
  static constexpr std::size_t kLarge = std::size_t{1} << 17;

  int descriptor_;
  std::string text_;
};

}  // namespace gabarito::cli

#endif  // CLI_OUTPUT_BUFFER_H
