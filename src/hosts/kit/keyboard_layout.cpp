#include "hosts/kit/keyboard_layout.h"

#include <array>
#include <cstddef>
#include <span>

#include "gabarito/platform/text.h"
#include "gabarito/platform/virtual_keys.h"

namespace gabarito::kit {

struct KeyboardTables {
  // What a key types by itself, with Shift, with AltGr and with Ctrl; 0 for nothing.
  struct Key {
    std::uint8_t vk = 0;
    std::uint8_t scanCode = 0;
    char16_t plain = 0;
    char16_t shifted = 0;
    char16_t altGr = 0;
    char16_t control = 0;
  };

  std::array<Key, 256> keys;           // by virtual key
  std::array<KeyStroke, 256> strokes;  // by character up to 255; key 0 where there is none
  // The one stroke of a layout whose character lies above 255.
  char16_t farCharacter;
  KeyStroke farStroke;
};

namespace {

using Key = KeyboardTables::Key;

constexpr std::int16_t kAltGr = kCtrlMask | kAltMask;
constexpr std::uint8_t kFirstKeypadKey = 96, kLastKeypadKey = 111;

// Keys that are the same everywhere.
constexpr Key kCommonKeys[] = {
    {8, 0x0E, 8, 8, 0, 127},    // Backspace
    {9, 0x0F, 9, 9},            // Tab
    {12, 0x4C},                 // Clear
    {13, 0x1C, 13, 13, 0, 10},  // Enter
    {16, 0x2A},                 // Shift
    {17, 0x1D},                 // Ctrl
    {18, 0x38},                 // Alt
    {19, 0x45},                 // Pause
    {20, 0x3A},                 // Caps Lock
    {27, 0x01, 27, 27, 0, 27},  // Escape
    {32, 0x39, ' ', ' ', 0, ' '},
    {33, 0x49},       // Page Up
    {34, 0x51},       // Page Down
    {35, 0x4F},       // End
    {36, 0x47},       // Home
    {37, 0x4B},       // Left
    {38, 0x48},       // Up
    {39, 0x4D},       // Right
    {40, 0x50},       // Down
    {44, 0x54},       // Print Screen
    {45, 0x52},       // Insert
    {46, 0x53},       // Delete
    {47, 0x63},       // Help
    {91, 0x5B},       // Windows, left
    {92, 0x5C},       // Windows, right
    {93, 0x5D},       // Menu
    {96, 0x52, '0'},  // Numeric keypad
    {97, 0x4F, '1'},
    {98, 0x50, '2'},
    {99, 0x51, '3'},
    {100, 0x4B, '4'},
    {101, 0x4C, '5'},
    {102, 0x4D, '6'},
    {103, 0x47, '7'},
    {104, 0x48, '8'},
    {105, 0x49, '9'},
    {106, 0x37, '*', '*'},
    {107, 0x4E, '+', '+'},
    {109, 0x4A, '-', '-'},
    {111, 0x35, '/', '/'},
    {112, 0x3B},  // F1
    {113, 0x3C},
    {114, 0x3D},
    {115, 0x3E},
    {116, 0x3F},
    {117, 0x40},
    {118, 0x41},
    {119, 0x42},
    {120, 0x43},
    {121, 0x44},  // F10
    {122, 0x57},
    {123, 0x58},
    {124, 0x64},
    {125, 0x65},
    {126, 0x66},
    {127, 0x67},  // F16
    {144, 0x45},  // Num Lock
    {145, 0x46},  // Scroll Lock
    {160, 0x2A},  // Shift, left and right
    {161, 0x36},
    {162, 0x1D},  // Ctrl
    {163, 0x1D},
    {164, 0x38},  // Alt
    {165, 0x38},
};

// Scan codes of the letters A to Z.
constexpr std::uint8_t kLetterScanCodes[] = {0x1E, 0x30, 0x2E, 0x20, 0x12, 0x21, 0x22, 0x23, 0x17,
                                             0x24, 0x25, 0x26, 0x32, 0x31, 0x18, 0x19, 0x10, 0x13,
                                             0x1F, 0x14, 0x16, 0x2F, 0x11, 0x2D, 0x15, 0x2C};

// The letters are written where they type something with AltGr.
constexpr Key kAbnt2Keys[] = {
    {0xC0, 0x29, '\'', '"'},
    {'1', 0x02, '1', '!', u'¹'},
    {'2', 0x03, '2', '@', u'²'},
    {'3', 0x04, '3', '#', u'³'},
    {'4', 0x05, '4', '$', u'£'},
    {'5', 0x06, '5', '%', u'¢'},
    {'6', 0x07, '6', 0, u'¬'},  // dead ¨
    {'7', 0x08, '7', '&'},
    {'8', 0x09, '8', '*'},
    {'9', 0x0A, '9', '('},
    {'0', 0x0B, '0', ')'},
    {0xBD, 0x0C, '-', '_', 0, 31},
    {0xBB, 0x0D, '=', '+', u'§'},
    {'Q', 0x10, 'q', 'Q', '/', 17},  // for keyboards that lack the key right of ";"
    {'W', 0x11, 'w', 'W', '?', 23},
    {'E', 0x12, 'e', 'E', u'°', 5},
    {0xDB, 0x1A},  // dead ´ and `
    {0xDD, 0x1B, '[', '{', u'ª', 27},
    {0xBA, 0x27, u'ç', u'Ç', 0, 29},
    {0xDE, 0x28},  // dead ~ and ^
    {0xDC, 0x2B, ']', '}', u'º', 28},
    {0xE2, 0x56, '\\', '|', 0, 28},
    {'C', 0x2E, 'c', 'C', u'\u20A2', 3},  // the cruzeiro sign
    {0xBC, 0x33, ',', '<'},
    {0xBE, 0x34, '.', '>'},
    {0xBF, 0x35, ';', ':'},
    {0xC1, 0x73, '/', '?', u'°'},
    {110, 0x53, ',', ','},   // numeric keypad
    {0xC2, 0x7E, '.', '.'},  // numeric keypad, thousands
};

constexpr Key kUsKeys[] = {
    {0xC0, 0x29, '`', '~'},         {'1', 0x02, '1', '!'},         {'2', 0x03, '2', '@'},
    {'3', 0x04, '3', '#'},          {'4', 0x05, '4', '$'},         {'5', 0x06, '5', '%'},
    {'6', 0x07, '6', '^'},          {'7', 0x08, '7', '&'},         {'8', 0x09, '8', '*'},
    {'9', 0x0A, '9', '('},          {'0', 0x0B, '0', ')'},         {0xBD, 0x0C, '-', '_'},
    {0xBB, 0x0D, '=', '+'},         {0xDB, 0x1A, '[', '{', 0, 27}, {0xDD, 0x1B, ']', '}', 0, 29},
    {0xDC, 0x2B, '\\', '|', 0, 28}, {0xBA, 0x27, ';', ':'},        {0xDE, 0x28, '\'', '"'},
    {0xBC, 0x33, ',', '<'},         {0xBE, 0x34, '.', '>'},        {0xBF, 0x35, '/', '?'},
    {0xE2, 0x56, '\\', '|', 0, 28}, {110, 0x53, '.', '.'},  // numeric keypad
};

constexpr void AddStroke(KeyboardTables& tables, const Key& key, char16_t Key::*level, std::int16_t shift) {
  const char16_t character = key.*level;
  if (character == 0 || (key.vk >= kFirstKeypadKey && key.vk <= kLastKeypadKey)) return;
  const bool far = character > 255;
  if (far) tables.farCharacter = character;
  KeyStroke& stroke = far ? tables.farStroke : tables.strokes[character];
  if (stroke.vk == 0) stroke = {key.vk, shift};
}

constexpr KeyboardTables Build(std::span<const Key> layoutKeys) {
  KeyboardTables tables{};
  for (const Key& key : kCommonKeys) tables.keys[key.vk] = key;
  for (std::size_t i = 0; i < std::size(kLetterScanCodes); ++i) {
    const auto capital = static_cast<std::uint8_t>('A' + i);
    const auto small = static_cast<char16_t>('a' + i);
    tables.keys[capital] = {capital, kLetterScanCodes[i], small, capital, 0, static_cast<char16_t>(i + 1)};
  }
  for (const Key& key : layoutKeys) tables.keys[key.vk] = key;

  // A character is typed with as little as possible: "/" of ABNT2 by its own key and not by AltGr+Q.
  constexpr struct {
    char16_t Key::*level;
    std::int16_t shift;
  } kLevels[] = {
      {&Key::plain, 0}, {&Key::shifted, kShiftMask}, {&Key::altGr, kAltGr}, {&Key::control, kCtrlMask}};
  for (const auto& [level, shift] : kLevels) {
    for (const Key& key : tables.keys) AddStroke(tables, key, level, shift);
  }
  return tables;
}

constexpr KeyboardTables kAbnt2Tables = Build(kAbnt2Keys);
constexpr KeyboardTables kUsTables = Build(kUsKeys);
constexpr KeyboardLayout kAbnt2{0x04160416, u"ABNT2", kAbnt2Tables};
constexpr KeyboardLayout kUs{0x04090409, u"US", kUsTables};

bool IsLetterKey(const Key& key) { return (key.plain >= u'a' && key.plain <= u'z') || key.plain == u'ç'; }

}  // namespace

std::optional<KeyStroke> KeyboardLayout::StrokeFor(char16_t character) const {
  if (character == tables_->farCharacter && character != 0) return tables_->farStroke;
  if (character >= tables_->strokes.size()) return {};
  const KeyStroke& stroke = tables_->strokes[character];
  return stroke.vk == 0 ? std::nullopt : std::optional(stroke);
}

std::int16_t KeyboardLayout::VkKeyScan(std::uint8_t ansi) const {
  const std::optional<KeyStroke> stroke = StrokeFor(Chr(ansi));
  return static_cast<std::int16_t>(stroke ? stroke->shift << 8 | stroke->vk : -1);
}

std::int32_t KeyboardLayout::ScanCode(std::int32_t vk) const {
  return vk >= 0 && vk <= 255 ? tables_->keys[static_cast<std::size_t>(vk)].scanCode : 0;
}

char16_t KeyboardLayout::CharacterOf(std::int16_t vk, std::int16_t shift, bool capsLock) const {
  if (vk < 0 || vk > 255) return 0;
  const Key& key = tables_->keys[static_cast<std::size_t>(vk)];
  const bool shifted = (shift & kShiftMask) != 0;
  if ((shift & kAltGr) == 0) return shifted != (capsLock && IsLetterKey(key)) ? key.shifted : key.plain;
  switch (shift & kAltGr) {
    case kCtrlMask:
      return !shifted || (vk >= 'A' && vk <= 'Z') ? key.control : char16_t{0};
    case kAltGr:
      return shifted ? char16_t{0} : key.altGr;
    default:
      return 0;
  }
}

const KeyboardLayout& Abnt2() { return kAbnt2; }
const KeyboardLayout& Us() { return kUs; }

}  // namespace gabarito::kit
