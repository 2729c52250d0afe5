// A terminal with a screen, through ncursesw.
#ifndef HOSTS_TERMINAL_TERMINAL_H
#define HOSTS_TERMINAL_TERMINAL_H

#include <cstdio>
#include <map>
#include <memory>
#include <stdexcept>
#include <utility>

#include "hosts/terminal/display.h"
#include "hosts/terminal/signals.h"

struct screen;  // ncurses

namespace gabarito::terminal {

// There is no terminal for a form; what() says why in one line.
struct NoTerminal : std::runtime_error {
  using std::runtime_error::runtime_error;
};

// Keys come from standard input. The form is drawn on standard output or, when that is no terminal because a
// script collects it, on the controlling terminal. The terminal is as it was when the object is gone.
//
// NO_COLOR leaves the colours away: entries are underlined then, and what is selected is reversed.
class Terminal final : public Display {
 public:
  // NoTerminal when there is no terminal, or one that cannot place its cursor.
  Terminal();
  ~Terminal() override;
  Terminal(const Terminal&) = delete;
  Terminal& operator=(const Terminal&) = delete;

  int Width() const override;
  int Height() const override;
  void Show(const Screen& screen) override;
  Input Next(std::optional<std::chrono::milliseconds> most) override;
  void Beep() override;

 private:
  struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
  };

  void SetUpKeys();
  void BracketPastes(bool on);
  void SetUpColors();
  void Suspend();
  void FitWindow();
  // The attributes and the colour pair of a style.
  std::pair<unsigned, int> AttributesOf(const Style& style);
  int PairOf(int fore, int back);

  std::unique_ptr<std::FILE, CloseFile> out_;
  Signals signals_;
  ::screen* screen_ = nullptr;
  int colors_ = 0;  // 0: none are used
  std::map<std::pair<int, int>, int> pairs_;
};

}  // namespace gabarito::terminal

#endif  // HOSTS_TERMINAL_TERMINAL_H
