#include "cli/progress_bar.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <string>

namespace gabarito::cli {
namespace {

constexpr std::size_t kCells = 40;

}  // namespace

ProgressBar::ProgressBar(int input) {
  struct stat status {};
  if (isatty(STDERR_FILENO) == 0 || fstat(input, &status) != 0 || !S_ISREG(status.st_mode)) return;
  // A pipe has no size to be a part of, and a file on standard input has one as well.
  total_ = static_cast<std::uint64_t>(status.st_size);
}

void ProgressBar::Show(std::uint64_t done) {
  if (total_ == 0) return;
  // A file that grows while it is read never shows more than all.
  const double part = std::min(static_cast<double>(done) / static_cast<double>(total_), 1.0);
  const auto full = static_cast<std::size_t>(part * kCells);
  const std::string cells = std::string(full, '#') + std::string(kCells - full, '.');
  std::fprintf(stderr, "\r[%s] %3d%%", cells.c_str(), static_cast<int>(part * 100));
  std::fflush(stderr);
  shown_ = true;
}

void ProgressBar::Hide() {
  if (!shown_) return;
  // Overwritten with blanks, and no escape sequence: any terminal knows the carriage return.
  std::fprintf(stderr, "\r%*s\r", static_cast<int>(kCells) + 7, "");
  std::fflush(stderr);
  shown_ = false;
}

}  // namespace gabarito::cli
