#include "cli/line_reader.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <system_error>
#include <utility>

namespace gabarito::cli {
namespace {

// Large enough that a call of the system costs nothing beside the lines in it, small enough for the cache.
constexpr std::size_t kBlock = std::size_t{1} << 17;

// One alone: "12\r\r\n" keeps its first, which is part of the value.
std::string_view WithoutCarriageReturn(std::string_view line) {
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

}  // namespace

LineReader::LineReader(int descriptor, std::string name)
    : descriptor_(descriptor), name_(std::move(name)), buffer_(2 * kBlock) {}

bool LineReader::Next(std::string_view& line) {
  const char* const found =
      static_cast<const char*>(std::memchr(buffer_.data() + scanned_, '\n', end_ - scanned_));
  if (found == nullptr) {
    // Without this a line of 10 MB would be searched from its start at each block.
    scanned_ = end_;
    return false;
  }
  const auto at = static_cast<std::size_t>(found - buffer_.data());
  line = WithoutCarriageReturn({buffer_.data() + begin_, at - begin_});
  begin_ = scanned_ = at + 1;
  return true;
}

bool LineReader::Fill() {
  // The line that the block cut moves to the front. Lines are short, so little moves.
  if (begin_ > 0) {
    std::copy(buffer_.begin() + static_cast<std::ptrdiff_t>(begin_),
              buffer_.begin() + static_cast<std::ptrdiff_t>(end_), buffer_.begin());
    end_ -= begin_;
    scanned_ -= begin_;
    begin_ = 0;
  }
  // Doubling keeps a line of many blocks linear.
  if (buffer_.size() - end_ < kBlock) buffer_.resize(2 * buffer_.size());
  ssize_t got;
  do {
    got = ::read(descriptor_, buffer_.data() + end_, buffer_.size() - end_);
  } while (got < 0 && errno == EINTR);
  if (got < 0) throw std::system_error(errno, std::generic_category(), "cannot read " + name_);
  end_ += static_cast<std::size_t>(got);
  consumed_ += static_cast<std::uint64_t>(got);
  return got > 0;
}

bool LineReader::Rest(std::string_view& line) {
  if (begin_ == end_) return false;
  line = WithoutCarriageReturn({buffer_.data() + begin_, end_ - begin_});
  begin_ = scanned_ = end_;
  return true;
}

}  // namespace gabarito::cli
