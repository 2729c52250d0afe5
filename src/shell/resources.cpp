#include "shell/resources.h"

#include <array>
#include <iterator>
#include <string_view>

#include "gabarito/platform/erro.h"

namespace gabarito {
namespace {

// A field with its caret behind what was typed, and the mark of a value that was taken.
constexpr std::string_view kToolbox[] = {
    "................", "................", "............gg..", "...........gg...", ".......g..gg....",
    ".......gggg.....", "........gg......", "################", "#              #", "# bb bb   |    #",
    "# bb bb   |    #", "# bb bb b |    #", "#              #", "################", "................",
};

constexpr std::size_t kWidth = 16;
constexpr std::size_t kHeight = std::size(kToolbox);
constexpr std::size_t kRow = kWidth * 3;  // a multiple of 4, as rows must be
constexpr std::size_t kHeader = 54;       // of the file, 14, and of the picture, 40
static_assert(kRow % 4 == 0);

// Red in the low byte.
constexpr std::uint32_t ColorOf(char mark) {
  switch (mark) {
    case '#':
      return 0x404040;
    case ' ':
      return 0xFFFFFF;
    case '|':
      return 0x000000;
    case 'b':
      return 0x800000;
    case 'g':
      return 0x008000;
    default:
      return 0xC0C0C0;
  }
}

using File = std::array<std::uint8_t, kHeader + kRow * kHeight>;

constexpr void Put(File& file, std::size_t at, std::size_t bytes, std::uint32_t value) {
  for (std::size_t i = 0; i < bytes; ++i) file[at + i] = static_cast<std::uint8_t>(value >> (8 * i));
}

constexpr File MakeFile() {
  File file{};
  file[0] = 'B';
  file[1] = 'M';
  Put(file, 2, 4, file.size());
  Put(file, 10, 4, kHeader);  // where the pixels begin
  Put(file, 14, 4, 40);       // length of what follows of the header
  Put(file, 18, 4, kWidth);
  Put(file, 22, 4, kHeight);
  Put(file, 26, 2, 1);   // planes
  Put(file, 28, 2, 24);  // bits a pixel
  Put(file, 34, 4, kRow * kHeight);
  for (std::size_t y = 0; y < kHeight; ++y) {
    for (std::size_t x = 0; x < kWidth; ++x) {
      const std::uint32_t color = ColorOf(kToolbox[y][x]);
      const std::size_t at = kHeader + (kHeight - 1 - y) * kRow + x * 3;  // the lowest row comes first
      file[at] = static_cast<std::uint8_t>(color >> 16);                  // blue, green, red
      file[at + 1] = static_cast<std::uint8_t>(color >> 8);
      file[at + 2] = static_cast<std::uint8_t>(color);
    }
  }
  return file;
}

constexpr File kToolboxFile = MakeFile();

}  // namespace

std::span<const std::uint8_t> LoadResPicture(std::int32_t id) {
  if (id != kToolboxPicture) throw Erro(kInvalidProcedureCall);
  return kToolboxFile;
}

}  // namespace gabarito
