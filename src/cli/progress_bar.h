// A line on the terminal that shows how much of a file is done.
#ifndef CLI_PROGRESS_BAR_H
#define CLI_PROGRESS_BAR_H

#include <cstdint>

namespace gabarito::cli {

// Draws on standard error, and only when that is a terminal and the input is a file with a size.
class ProgressBar {
 public:
  explicit ProgressBar(int input);
  ~ProgressBar() { Hide(); }
  ProgressBar(const ProgressBar&) = delete;
  ProgressBar& operator=(const ProgressBar&) = delete;

  void Show(std::uint64_t done);
  // Makes way for other output on the same terminal.
  void Hide();

 private:
  std::uint64_t total_ = 0;  // 0: nothing is drawn
  bool shown_ = false;
};

}  // namespace gabarito::cli

#endif  // CLI_PROGRESS_BAR_H
