#include "hosts/terminal/terminal_keys.h"

#define NCURSES_WIDECHAR 1
#define NCURSES_NOMACROS 1
#include <curses.h>

#include <algorithm>

#include "gabarito/platform/virtual_keys.h"

namespace gabarito::terminal {
namespace {

constexpr std::int16_t kVkPageUp = 33, kVkPageDown = 34, kVkEnd = 35, kVkHome = 36, kVkLeft = 37, kVkUp = 38,
                       kVkRight = 39, kVkDown = 40, kVkF4 = 115;

// Codes of our own for keys that ncurses has none for.
enum OwnKey { kShiftHome = KEY_MAX + 1, kShiftEnd, kAltUp, kAltDown };

struct Sequence {
  const char* text;
  int code;
};

// What common terminals send with cursor keys in either mode, and what vt100 and screen do not describe.
constexpr Sequence kSequences[] = {
    {"\033[A", KEY_UP},       {"\033[B", KEY_DOWN},      {"\033[C", KEY_RIGHT},    {"\033[D", KEY_LEFT},
    {"\033[H", KEY_HOME},     {"\033[F", KEY_END},       {"\033OH", KEY_HOME},     {"\033OF", KEY_END},
    {"\033[1~", KEY_HOME},    {"\033[4~", KEY_END},      {"\033[3~", KEY_DC},      {"\033[5~", KEY_PPAGE},
    {"\033[6~", KEY_NPAGE},   {"\033[Z", KEY_BTAB},      {"\033OS", KEY_F(4)},     {"\033[14~", KEY_F(4)},
    {"\033[21~", KEY_F(10)},  {"\033[1;2A", KEY_SR},     {"\033[1;2B", KEY_SF},    {"\033[1;2C", KEY_SRIGHT},
    {"\033[1;2D", KEY_SLEFT}, {"\033[1;2H", kShiftHome}, {"\033[1;2F", kShiftEnd}, {"\033[1;3A", kAltUp},
    {"\033[1;3B", kAltDown},
};

struct Key {
  int code;
  std::int16_t vk;
  std::int16_t shift;
};

constexpr Key kKeys[] = {
    {KEY_BACKSPACE, kVkBack, 0},
    {KEY_BTAB, kVkTab, kShiftMask},
    {KEY_ENTER, kVkReturn, 0},
    {KEY_DC, kVkDelete, 0},
    {KEY_LEFT, kVkLeft, 0},
    {KEY_RIGHT, kVkRight, 0},
    {KEY_UP, kVkUp, 0},
    {KEY_DOWN, kVkDown, 0},
    {KEY_HOME, kVkHome, 0},
    {KEY_END, kVkEnd, 0},
    {KEY_PPAGE, kVkPageUp, 0},
    {KEY_NPAGE, kVkPageDown, 0},
    {KEY_F(4), kVkF4, 0},
    {KEY_SLEFT, kVkLeft, kShiftMask},
    {KEY_SRIGHT, kVkRight, kShiftMask},
    {KEY_SR, kVkUp, kShiftMask},
    {KEY_SF, kVkDown, kShiftMask},
    {KEY_SHOME, kVkHome, kShiftMask},
    {KEY_SEND, kVkEnd, kShiftMask},
    {kShiftHome, kVkHome, kShiftMask},
    {kShiftEnd, kVkEnd, kShiftMask},
    {kAltUp, kVkUp, kAltMask},
    {kAltDown, kVkDown, kAltMask},
};

Input KeyInput(std::int16_t vk, std::int16_t shift = 0) {
  return {.kind = Input::Kind::kKey, .vk = vk, .shift = shift};
}

}  // namespace

void DefineKeys() {
  for (const Sequence& sequence : kSequences) {
    // The description of the terminal knows better where it has the sequence for another key.
    if (key_defined(sequence.text) <= 0) define_key(sequence.text, sequence.code);
  }
}

std::optional<Input> InputOfKey(int code) {
  Input input;
  if (code == KEY_RESIZE) return input;
  if (code == KEY_F(10)) {
    input.kind = Input::Kind::kLeave;
    return input;
  }
  // A release comes as an event of its own, and is none for the form.
  if (code == KEY_MOUSE) {
    MEVENT event;
    if (getmouse(&event) != OK || (event.bstate & (BUTTON1_PRESSED | BUTTON1_CLICKED)) == 0) return {};
    input.kind = Input::Kind::kClick;
    input.at = {event.x, event.y};
    return input;
  }
  const auto key = std::ranges::find(kKeys, code, &Key::code);
  if (key == std::end(kKeys)) return {};
  return KeyInput(key->vk, key->shift);
}

std::optional<Input> InputOfCharacter(char32_t character) {
  constexpr char32_t kCtrlQ = 17, kDel = 127;
  switch (character) {
    case 0:
      return {};
    case kCtrlQ:
      return Input{.kind = Input::Kind::kLeave};
    // Terminals disagree on which of the two Backspace sends.
    case U'\b':
    case kDel:
      return KeyInput(kVkBack);
    case U'\t':
      return KeyInput(kVkTab);
    case U'\r':
    case U'\n':
      return KeyInput(kVkReturn);
    case U'\033':
      return KeyInput(kVkEscape);
    default:
      break;
  }
  // What lies outside the first plane is one character that no field takes, not two.
  const char16_t unit = character > 0xFFFF ? u'�' : static_cast<char16_t>(character);
  return Input{.kind = Input::Kind::kCharacter, .character = unit};
}

}  // namespace gabarito::terminal
