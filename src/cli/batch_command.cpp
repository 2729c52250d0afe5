#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>
#include <utility>

#include "cli/commands.h"
#include "cli/line_reader.h"
#include "cli/names.h"
#include "cli/one_line.h"
#include "cli/output_buffer.h"
#include "cli/progress_bar.h"
#include "hosts/kit/system_clock.h"
#include "hosts/memory/cleaner.h"

namespace gabarito::cli {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kReplacement = "\xEF\xBF\xBD";

// Keeps the texts of the message boxes of one line. Several boxes of one line stand in its last column
// together: the load and the check of 40,000 digits could each tell of their own. The buffer is kept, so a
// file of refusals allocates no more than a file of good values.
class Messages {
 public:
  void Add(std::u16string_view text) {
    if (!joined_.empty()) joined_.append(u"; ");
    AppendOnOneLine(text, joined_);
  }
  void Forget() { joined_.clear(); }
  const std::u16string& Joined() const { return joined_; }

 private:
  std::u16string joined_;
};

// A column may hold no TAB.
void AppendColumn(std::string_view text, std::string& out) {
  for (;;) {
    const std::size_t tab = text.find('\t');
    out.append(text.substr(0, tab));
    if (tab == std::string_view::npos) return;
    out.append("\\t");
    text.remove_prefix(tab + 1);
  }
}

// A surrogate counts half of the four bytes that its pair takes.
std::size_t Utf8Length(std::u16string_view text) {
  std::size_t length = 0;
  for (const char16_t c : text) {
    const bool half_of_a_pair = c >= 0xD800 && c <= 0xDFFF;
    length += c < 0x80 ? 1 : c < 0x800 || half_of_a_pair ? 2 : 3;
  }
  return length;
}

// `line` with each byte that belongs to no character as U+FFFD.
std::string Repaired(std::string_view line) {
  std::string repaired;
  std::u16string valid;
  for (;;) {
    valid.clear();
    const bool whole = AppendUtf16(line, valid);
    const std::size_t length = Utf8Length(valid);
    repaired.append(line.substr(0, length));
    if (whole) return repaired;
    repaired.append(kReplacement);
    line.remove_prefix(length + 1);
  }
}

// The field that all lines go through, and the output line of each.
class LineCheck {
 public:
  explicit LineCheck(const FieldOptions& options)
      : cleaner_([this](std::u16string_view text) { messages_.Add(text); }, kit::SystemClock().Now()) {
    Apply(options, *cleaner_.ItsField());
  }

  // Appends the output line of `line`.
  void Check(std::string_view line, std::string& out) {
    ++number_;
    text_.clear();
    if (!AppendUtf16(line, text_)) {
      AppendColumn(Repaired(line), out);
      out.append("\t\tlinha ").append(std::to_string(number_)).append(": não é UTF-8\n");
      refused_ = true;
      return;
    }
    AppendColumn(line, out);
    out.push_back('\t');
    messages_.Forget();
    if (cleaner_.Clean(text_, value_)) {
      AppendValue(value_, out);
      out.append("\t\n");
      return;
    }
    refused_ = true;
    out.push_back('\t');
    AppendUtf8(messages_.Joined(), out);
    out.push_back('\n');
  }

  bool Refused() const { return refused_; }

 private:
  void AppendValue(std::u16string_view value, std::string& out) {
    column_.clear();
    AppendUtf8(value, column_);
    AppendColumn(column_, out);
  }

  Messages messages_;
  memory::Cleaner cleaner_;
  std::u16string text_, value_;
  std::string column_;
  std::uint64_t number_ = 0;
  bool refused_ = false;
};

// The descriptor of a file that is closed at the end, or one that is somebody else's.
class Input {
 public:
  Input(const std::string& file, int standard) : descriptor_(standard) {
    if (file.empty() || file == "-") return;
    name_ = file;
    descriptor_ = ::open(file.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor_ < 0) throw std::system_error(errno, std::generic_category(), "cannot open " + file);
    own_ = true;
  }
  ~Input() {
    if (own_) ::close(descriptor_);
  }
  Input(const Input&) = delete;
  Input& operator=(const Input&) = delete;

  int Descriptor() const { return descriptor_; }
  const std::string& Name() const { return name_; }

 private:
  std::string name_ = "the standard input";
  int descriptor_;
  bool own_ = false;
};

}  // namespace

int RunBatch(const BatchOptions& options, int in, int out) {
  LineCheck check(options.field);
  const Input input(options.file, in);
  LineReader reader(input.Descriptor(), input.Name());
  OutputBuffer output(out);
  ProgressBar bar(input.Descriptor());

  // The bar shares the terminal with the lines when nothing is redirected.
  const auto flush = [&] {
    bar.Hide();
    output.Flush();
  };
  const auto process = [&](std::string_view line) {
    check.Check(line, output.Text());
    if (output.IsLarge()) flush();
  };
  bool first = true;
  std::string_view line;
  do {
    while (reader.Next(line)) {
      if (std::exchange(first, false) && line.starts_with(kByteOrderMark)) line.remove_prefix(3);
      process(line);
    }
    // What is done is out before the next wait: a program may sit at both ends of a pipe.
    flush();
    bar.Show(reader.Consumed());
  } while (reader.Fill());
  if (reader.Rest(line)) {
    if (first && line.starts_with(kByteOrderMark)) line.remove_prefix(3);
    process(line);
  }
  flush();
  return check.Refused() ? kRefused : kNothingRefused;
}

}  // namespace gabarito::cli
