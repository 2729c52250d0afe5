// Texts of message boxes on one line.
#ifndef CLI_ONE_LINE_H
#define CLI_ONE_LINE_H

#include <string>
#include <string_view>

namespace gabarito::cli {

// Appends `text` with each run of line breaks as one blank.
inline void AppendOnOneLine(std::u16string_view text, std::u16string& line) {
  while (!text.empty()) {
    const std::size_t line_break = text.find_first_of(u"\r\n");
    line.append(text.substr(0, line_break));
    if (line_break == std::u16string_view::npos) return;
    line.push_back(u' ');
    const std::size_t rest = text.find_first_not_of(u"\r\n", line_break);
    text = rest == std::u16string_view::npos ? std::u16string_view() : text.substr(rest);
  }
}

}  // namespace gabarito::cli

#endif  // CLI_ONE_LINE_H
