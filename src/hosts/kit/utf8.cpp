#include "hosts/kit/utf8.h"

#include <cstddef>
#include <cstdint>

namespace gabarito::kit {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

struct Sequence {
  char32_t bits;
  int continuation;  // bytes behind the first; -1 for a byte that starts no sequence
  char32_t smallest;
};

Sequence Start(std::uint8_t byte) {
  if (byte < 0x80) return {byte, 0, 0};
  if (byte >= 0xC2 && byte <= 0xDF) return {byte & 0x1Fu, 1, 0x80};
  if (byte >= 0xE0 && byte <= 0xEF) return {byte & 0x0Fu, 2, 0x800};
  if (byte >= 0xF0 && byte <= 0xF4) return {byte & 0x07u, 3, 0x10000};
  return {0, -1, 0};
}

bool IsSurrogate(char32_t c) { return c >= 0xD800 && c <= 0xDFFF; }

void AppendCodePoint(char32_t c, std::string& out) {
  const auto put = [&](char32_t byte) { out.push_back(static_cast<char>(byte)); };
  if (c < 0x80) {
    put(c);
  } else if (c < 0x800) {
    put(0xC0 | c >> 6);
    put(0x80 | (c & 0x3F));
  } else if (c < 0x10000) {
    put(0xE0 | c >> 12);
    put(0x80 | (c >> 6 & 0x3F));
    put(0x80 | (c & 0x3F));
  } else {
    put(0xF0 | c >> 18);
    put(0x80 | (c >> 12 & 0x3F));
    put(0x80 | (c >> 6 & 0x3F));
    put(0x80 | (c & 0x3F));
  }
}

}  // namespace

bool AppendUtf16(std::string_view utf8, std::u16string& out) {
  for (std::size_t i = 0; i < utf8.size();) {
    const auto [bits, continuation, smallest] = Start(static_cast<std::uint8_t>(utf8[i]));
    if (continuation < 0 || utf8.size() - i <= static_cast<std::size_t>(continuation)) return false;
    char32_t c = bits;
    for (int k = 1; k <= continuation; ++k) {
      const auto byte = static_cast<std::uint8_t>(utf8[i + static_cast<std::size_t>(k)]);
      if ((byte & 0xC0) != 0x80) return false;
      c = c << 6 | (byte & 0x3Fu);
    }
    if (c < smallest || c > 0x10FFFF || IsSurrogate(c)) return false;
    if (c < 0x10000) {
      out.push_back(static_cast<char16_t>(c));
    } else {
      out.push_back(static_cast<char16_t>(0xD800 + ((c - 0x10000) >> 10)));
      out.push_back(static_cast<char16_t>(0xDC00 + ((c - 0x10000) & 0x3FF)));
    }
    i += static_cast<std::size_t>(continuation) + 1;
  }
  return true;
}

std::optional<std::u16string> ToUtf16(std::string_view utf8) {
  std::u16string out;
  out.reserve(utf8.size());
  if (!AppendUtf16(utf8, out)) return std::nullopt;
  return out;
}

void AppendUtf8(std::u16string_view text, std::string& out) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    char32_t c = text[i];
    if (IsSurrogate(c)) {
      const bool pair = c < 0xDC00 && i + 1 < text.size() && text[i + 1] >= 0xDC00 && text[i + 1] <= 0xDFFF;
      c = pair ? 0x10000 + ((c - 0xD800) << 10) + (text[++i] - 0xDC00u) : kReplacement;
    }
    AppendCodePoint(c, out);
  }
}

std::string ToUtf8(std::u16string_view text) {
  std::string out;
  out.reserve(text.size());
  AppendUtf8(text, out);
  return out;
}

}  // namespace gabarito::kit
