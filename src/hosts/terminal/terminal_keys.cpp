#include "hosts/terminal/terminal_keys.h"

#define NCURSES_WIDECHAR 1
#define NCURSES_NOMACROS 1
#include <curses.h>
#include <poll.h>
#include <unistd.h>

#include <algorithm>

#include "gabarito/platform/virtual_keys.h"

namespace gabarito::terminal {
namespace {

// Codes of our own for keys that ncurses has none for, beyond those that it gives to the extended keys of a
// terminal's description.
enum OwnKey {
  kShiftHome = KEY_MAX + 1000,
  kShiftEnd,
  kAltUp,
  kAltDown,
  kWordLeft,
  kWordRight,
  kShiftWordLeft,
  kShiftWordRight,
  kPasteStart,
  kPasteEnd
};

struct Sequence {
  const char* text;
  int code;
};

// What common terminals send with cursor keys in either mode, and what vt100 and screen do not describe.
constexpr Sequence kSequences[] = {
    {"\033[A", KEY_UP},
    {"\033[B", KEY_DOWN},
    {"\033[C", KEY_RIGHT},
    {"\033[D", KEY_LEFT},
    {"\033[H", KEY_HOME},
    {"\033[F", KEY_END},
    {"\033OH", KEY_HOME},
    {"\033OF", KEY_END},
    {"\033[1~", KEY_HOME},
    {"\033[4~", KEY_END},
    {"\033[3~", KEY_DC},
    {"\033[5~", KEY_PPAGE},
    {"\033[6~", KEY_NPAGE},
    {"\033[Z", KEY_BTAB},
    {"\033OS", KEY_F(4)},
    {"\033[14~", KEY_F(4)},
    {"\033[21~", KEY_F(10)},
    {"\033[1;2A", KEY_SR},
    {"\033[1;2B", KEY_SF},
    {"\033[1;2C", KEY_SRIGHT},
    {"\033[1;2D", KEY_SLEFT},
    {"\033[1;2H", kShiftHome},
    {"\033[1;2F", kShiftEnd},
    {"\033[1;3A", kAltUp},
    {"\033[1;3B", kAltDown},
    {"\033OP", KEY_F(1)},
    {"\033[11~", KEY_F(1)},
    {"\033[[A", KEY_F(1)},
    {"\033[[D", KEY_F(4)},
    {"\033[1;5D", kWordLeft},
    {"\033[1;5C", kWordRight},
    {"\033[1;3D", kWordLeft},
    {"\033[1;3C", kWordRight},
    {"\033Od", kWordLeft},
    {"\033Oc", kWordRight},
    {"\033[1;6D", kShiftWordLeft},
    {"\033[1;6C", kShiftWordRight},
    {"\033[200~", kPasteStart},
    {"\033[201~", kPasteEnd},
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

struct WordKey {
  int code;
  int turns;
  std::int16_t shift;
};

constexpr WordKey kWordKeys[] = {{kWordLeft, -1, 0},
                                 {kWordRight, 1, 0},
                                 {kShiftWordLeft, -1, kShiftMask},
                                 {kShiftWordRight, 1, kShiftMask}};

constexpr char32_t kEscape = 27, kDel = 127;
const Input kNoInput{.kind = Input::Kind::kNothing};

Input KeyInput(std::int16_t vk, std::int16_t shift = 0) {
  return {.kind = Input::Kind::kKey, .vk = vk, .shift = shift};
}

Input WordStep(int turns, std::int16_t shift) {
  return {.kind = Input::Kind::kWordStep, .shift = shift, .turns = turns};
}

// What ncurses has to give: a key by its code or a character; `none` when nothing is there.
struct Event {
  bool none = false;
  int code = 0;  // 0: a character
  char32_t character = 0;
};

// Waits as long as a sequence needs for its rest.
Event NextEvent() {
  wint_t given = 0;
  const int result = get_wch(&given);
  if (result == ERR) return {.none = true};
  if (result == KEY_CODE_YES) return {.code = static_cast<int>(given)};
  return {.character = static_cast<char32_t>(given)};
}

// What lies outside the first plane is one character that no field takes, not two.
char16_t Unit(char32_t character) {
  return character > 0xFFFF ? u'\uFFFD' : static_cast<char16_t>(character);
}

Input MouseInput() {
  MEVENT event;
  // A release comes as an event of its own, and is none for the form.
  if (getmouse(&event) != OK) return kNoInput;
  const Point at{event.x, event.y};
  if ((event.bstate & (BUTTON1_PRESSED | BUTTON1_CLICKED)) != 0) {
    return {.kind = Input::Kind::kClick, .at = at};
  }
  if ((event.bstate & BUTTON4_PRESSED) != 0) return {.kind = Input::Kind::kWheel, .turns = -1, .at = at};
  if ((event.bstate & BUTTON5_PRESSED) != 0) return {.kind = Input::Kind::kWheel, .turns = 1, .at = at};
  return kNoInput;
}

// Up to the end of the paste, as one line: a run of line breaks and tabs becomes a blank, but for those
// around it all; other control characters and keys that the text happens to spell are left out.
Input PasteInput() {
  constexpr int kPatience = 1000;  // milliseconds for the rest of a paste that a slow line breaks up
  constexpr std::size_t kLongest = 100000;
  Input input{.kind = Input::Kind::kPaste};
  bool blank = false;  // one is due before the next character
  while (true) {
    const Event event = NextEvent();
    if (event.none) {
      pollfd more{.fd = STDIN_FILENO, .events = POLLIN, .revents = 0};
      if (poll(&more, 1, kPatience) <= 0 || (more.revents & POLLIN) == 0) return input;
      continue;
    }
    if (event.code == kPasteEnd) return input;
    if (event.code != 0 || input.text.size() >= kLongest) continue;
    const char32_t c = event.character;
    if (c == U'\r' || c == U'\n' || c == U'\t') blank = !input.text.empty();
    if (c < U' ' || c == kDel) continue;
    if (blank) input.text.push_back(u' ');
    blank = false;
    input.text.push_back(Unit(c));
  }
}

bool EndsSequence(char32_t c) { return c >= U'@' && c <= U'~'; }

// Takes the rest of a sequence whose introducer has been taken. What is no sequence at all ends with the
// first pause.
void Swallow(char32_t introducer) {
  const bool text = introducer != U'[' && introducer != U'O';  // ends with BEL or ESC "\"
  constexpr char32_t kBell = 7;
  bool first = true, escaped = false;
  while (true) {
    const Event event = NextEvent();
    if (event.none || event.code != 0) return;
    const char32_t c = event.character;
    if (text) {
      if (c == kBell || (escaped && c == U'\\')) return;
      escaped = c == kEscape;
      continue;
    }
    // The console of Linux has a second "[" in front of a letter.
    if (EndsSequence(c) && !(first && introducer == U'[' && c == U'[')) return;
    first = false;
  }
}

// Behind an Escape: alone it is the key; with a character it is Alt and that key, or a sequence that ncurses
// does not know.
Input EscapeInput() {
  Event event = NextEvent();
  while (event.character == kEscape) event = NextEvent();
  if (event.none) return KeyInput(kVkEscape);
  if (event.code != 0) return kNoInput;
  switch (event.character) {
    case U'b':
      return WordStep(-1, 0);
    case U'f':
      return WordStep(1, 0);
    case U'[':
    case U'O':
    case U']':
    case U'P':
    case U'_':
    case U'^':
    case U'X':
      Swallow(event.character);
      return kNoInput;
    default:
      return kNoInput;
  }
}

// A key code of ncurses.
Input InputOfKey(int code) {
  if (code == KEY_RESIZE) return {};
  if (code == KEY_F(1)) return {.kind = Input::Kind::kHelp};
  if (code == KEY_F(10)) return {.kind = Input::Kind::kFinish};
  if (code == KEY_MOUSE) return MouseInput();
  if (code == kPasteStart) return PasteInput();
  const auto* const word = std::ranges::find(kWordKeys, code, &WordKey::code);
  if (word != std::end(kWordKeys)) return WordStep(word->turns, word->shift);
  const auto* const key = std::ranges::find(kKeys, code, &Key::code);
  return key == std::end(kKeys) ? kNoInput : KeyInput(key->vk, key->shift);
}

// A character that a key typed.
Input InputOfCharacter(char32_t character) {
  switch (character) {
    case 0:
      return kNoInput;
    // Terminals disagree on which of the two Backspace sends.
    case U'\b':
    case kDel:
      return KeyInput(kVkBack);
    case U'\t':
      return KeyInput(kVkTab);
    case U'\r':
    case U'\n':
      return KeyInput(kVkReturn);
    case kEscape:
      return EscapeInput();
    default:
      return {.kind = Input::Kind::kCharacter, .character = Unit(character)};
  }
}

}  // namespace

void DefineKeys() {
  for (const Sequence& sequence : kSequences) {
    // The description of the terminal knows better where it has the sequence for another key. Its extended
    // keys have codes that differ from terminal to terminal.
    const int known = key_defined(sequence.text);
    if (known <= 0 || known > KEY_MAX) define_key(sequence.text, sequence.code);
  }
}

std::optional<Input> ReadInput() {
  const Event event = NextEvent();
  if (event.none) return {};
  return event.code != 0 ? InputOfKey(event.code) : InputOfCharacter(event.character);
}

}  // namespace gabarito::terminal
