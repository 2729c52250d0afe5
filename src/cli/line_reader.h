// Lines of any length from a descriptor, read in blocks.
#ifndef CLI_LINE_READER_H
#define CLI_LINE_READER_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace gabarito::cli {

// A line ends with LF or CR LF, which is not part of it; the last one may end with the input. Use:
//
//   do {
//     while (reader.Next(line)) ...
//   } while (reader.Fill());
//   if (reader.Rest(line)) ...
class LineReader {
 public:
  // `name` appears in errors. The descriptor stays the caller's.
  LineReader(int descriptor, std::string name);

  // The next line that is there as a whole; the view is good until Fill.
  bool Next(std::string_view& line);

  // Waits for another block; false at the end of the input. Raises std::system_error.
  bool Fill();

  // After the end: what stands behind the last line end, unless that is nothing.
  bool Rest(std::string_view& line);

  // Bytes read so far.
  std::uint64_t Consumed() const { return consumed_; }

 private:
  int descriptor_;
  std::string name_;
  std::vector<char> buffer_;
  std::size_t begin_ = 0;    // first byte of the next line
  std::size_t scanned_ = 0;  // there is no line end between begin_ and here
  std::size_t end_ = 0;      // behind the last byte read
  std::uint64_t consumed_ = 0;
};

}  // namespace gabarito::cli

#endif  // CLI_LINE_READER_H
