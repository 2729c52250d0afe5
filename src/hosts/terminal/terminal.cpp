#include "hosts/terminal/terminal.h"

#define NCURSES_WIDECHAR 1
#define NCURSES_NOMACROS 1
#include <curses.h>
#include <fcntl.h>
#include <langinfo.h>
#include <sys/ioctl.h>
#include <term.h>
#include <unistd.h>
#include <wchar.h>

#include <clocale>
#include <cstdlib>
#include <cstring>
#include <string>

#include "hosts/terminal/palette.h"
#include "hosts/terminal/terminal_keys.h"

namespace gabarito::terminal {
namespace {

// Milliseconds that ncurses waits for the rest of a character or of an escape sequence.
constexpr int kRestOfKey = 25;

std::string_view Variable(const char* name) {
  const char* const value = std::getenv(name);
  return value == nullptr ? std::string_view() : value;
}

// The program speaks UTF-8, whatever the locale.
void UseUtf8() {
  std::setlocale(LC_CTYPE, "");
  if (std::string_view(nl_langinfo(CODESET)) != "UTF-8") std::setlocale(LC_CTYPE, "C.UTF-8");
}

std::FILE* OpenScreen() {
  if (isatty(STDIN_FILENO) == 0) throw NoTerminal("standard input is no terminal");
  const int descriptor = isatty(STDOUT_FILENO) != 0 ? fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 3)
                                                    : open("/dev/tty", O_RDWR | O_CLOEXEC);
  std::FILE* const file = descriptor < 0 ? nullptr : fdopen(descriptor, "w");
  if (file == nullptr) throw NoTerminal("there is no terminal to draw on");
  return file;
}

void CheckTerminalType(int descriptor) {
  const std::string_view type = Variable("TERM");
  if (type.empty() || type == "dumb") {
    throw NoTerminal(std::string("needs a terminal that can place its cursor; TERM is ") +
                     (type.empty() ? "not set" : "dumb"));
  }
  int known = 0;
  // newterm would say that it failed, not why.
  const bool found = setupterm(nullptr, descriptor, &known) == OK;
  const bool places = found && cursor_address != nullptr;
  if (found) del_curterm(cur_term);
  if (!found) throw NoTerminal("the terminal type '" + std::string(type) + "' is not known");
  if (!places) throw NoTerminal("the terminal type '" + std::string(type) + "' cannot place its cursor");
}

}  // namespace

Terminal::Terminal() : out_(OpenScreen()) {
  CheckTerminalType(fileno(out_.get()));
  UseUtf8();
  // The size of the window counts, not the LINES and COLUMNS that a shell may have exported.
  use_env(TRUE);
  use_tioctl(TRUE);
  screen_ = newterm(nullptr, out_.get(), stdin);
  if (screen_ == nullptr) throw NoTerminal("the terminal cannot be set up");
  signals_.Install();  // ncurses has put its own in: they would end the program from inside a handler
  SetUpKeys();
  SetUpColors();
}

Terminal::~Terminal() {
  if (screen_ == nullptr) return;
  BracketPastes(false);
  endwin();
  delscreen(screen_);
}

void Terminal::SetUpKeys() {
  raw();
  noecho();
  nonl();  // Enter is 13, and Ctrl+J the line feed that a paste ends its lines with
  set_escdelay(kRestOfKey);
  keypad(stdscr, TRUE);
  timeout(kRestOfKey);
  DefineKeys();
  mouseinterval(0);  // a press counts at once, without waiting for the click that it may become
  mousemask(BUTTON1_PRESSED | BUTTON1_CLICKED | BUTTON4_PRESSED | BUTTON5_PRESSED, nullptr);
  BracketPastes(true);
}

// A terminal that brackets what is pasted tells it from what is typed; one that does not know this ignores
// it.
void Terminal::BracketPastes(bool on) {
  std::fputs(on ? "\033[?2004h" : "\033[?2004l", out_.get());
  std::fflush(out_.get());
}

void Terminal::SetUpColors() {
  if (!Variable("NO_COLOR").empty() || !has_colors() || start_color() != OK || COLORS < 8) return;
  colors_ = COLORS;
}

int Terminal::Width() const { return getmaxx(stdscr); }
int Terminal::Height() const { return getmaxy(stdscr); }

int Terminal::PairOf(int fore, int back) {
  const auto [place, added] = pairs_.try_emplace({fore, back}, static_cast<int>(pairs_.size()) + 1);
  // A terminal of eight colours has 64 pairs; what comes after them is drawn in its own colours.
  if (added && (place->second >= COLOR_PAIRS || init_extended_pair(place->second, fore, back) != OK)) {
    place->second = 0;
  }
  return place->second;
}

std::pair<unsigned, int> Terminal::AttributesOf(const Style& style) {
  const auto has = [&](Marks marks) { return (style.marks & marks) != 0; };
  unsigned attributes = A_NORMAL;
  if (has(kSelected)) attributes |= A_REVERSE;
  if (has(kDim) && colors_ < 16) attributes |= A_DIM;
  if (colors_ == 0) {
    if (has(kEntry)) attributes |= A_UNDERLINE;
    if (has(kActive | kStrong | kAlarm)) attributes |= A_BOLD;
    // Title and help are dark bars.
    if (IsDark(style.back)) attributes ^= A_REVERSE;
    return {attributes, 0};
  }
  if (has(kFlatEdge)) attributes |= A_UNDERLINE;
  if (has(kStrong | kAlarm)) attributes |= A_BOLD;
  constexpr Color kWhite = 0x00FFFFFF, kBlack = 0, kGrey = 0x00686868, kRed = 0x000000B0;
  int fore = TerminalColor(IsDark(style.back) ? kWhite : kBlack, colors_);
  if (has(kAlarm)) fore = TerminalColor(kRed, colors_);
  // The grey of 16 colours that stands out from the face of buttons is the bright black.
  if (has(kDim) && colors_ >= 16) fore = colors_ >= 256 ? TerminalColor(kGrey, colors_) : 8;
  return {attributes, PairOf(fore, TerminalColor(style.back, colors_))};
}

void Terminal::Show(const Screen& screen) {
  const Grid& grid = screen.grid;
  for (int y = 0; y < grid.Height(); ++y) {
    for (int x = 0; x < grid.Width(); ++x) {
      const Cell& cell = grid.At(x, y);
      auto [attributes, pair] = AttributesOf(cell.style);
      const auto glyph = static_cast<wchar_t>(cell.glyph);
      // A cell holds one column: what takes none, two or is no character shows the replacement.
      const wchar_t text[] = {wcwidth(glyph) == 1 ? glyph : L'�', 0};
      cchar_t shown;
      setcchar(&shown, text, attributes, 0, &pair);
      mvadd_wch(y, x, &shown);
    }
  }
  // Some terminals cannot hide their cursor: it stays where the drawing ended then.
  curs_set(grid.caret ? 1 : 0);
  if (grid.caret) move(grid.caret->y, grid.caret->x);
  refresh();
}

void Terminal::Beep() { beep(); }

Input Terminal::Next(std::optional<std::chrono::milliseconds> most) {
  while (true) {
    if (const std::optional<Input> input = ReadInput()) {
      if (input->kind != Input::Kind::kNothing) return *input;
      continue;
    }
    // Nothing is left in the queue of ncurses, so there is nothing that waiting could overlook.
    const Signals::Event event = signals_.Wait(STDIN_FILENO, most);
    if (event.closed) throw Interrupted{SIGHUP};
    if (event.late) return {.kind = Input::Kind::kTime};
    switch (event.signal) {
      case 0:
        break;
      case SIGTSTP:
        Suspend();
        return {};
      case SIGCONT:
      case SIGWINCH:
        FitWindow();
        return {};
      default:
        throw Interrupted{event.signal};
    }
  }
}

// Another program has had the terminal when this one goes on.
void Terminal::Suspend() {
  BracketPastes(false);
  endwin();
  signals_.Stop();
  FitWindow();
}

void Terminal::FitWindow() {
  // Whoever continued the program may have left the terminal in another mode.
  reset_prog_mode();
  BracketPastes(true);
  winsize size{};
  if (ioctl(fileno(out_.get()), TIOCGWINSZ, &size) == 0 && size.ws_row > 0 && size.ws_col > 0) {
    resizeterm(size.ws_row, size.ws_col);
  }
  clearok(curscr, TRUE);
}

}  // namespace gabarito::terminal
