// A terminal with a screen, through ncursesw.
#ifndef CLI_FORM_TERMINAL_H
#define CLI_FORM_TERMINAL_H

#include <cstdio>
#include <map>
#include <memory>
#include <utility>

#include "cli/form/display.h"
#include "cli/form/signals.h"

struct screen;  // ncurses

namespace gabarito::cli {

// Keys come from standard input. The form is drawn on standard output or, when that is no terminal because a
// script collects it, on the controlling terminal. The terminal is as it was when the object is gone.
//
// NO_COLOR leaves the colours away: entries are underlined then, and what is selected is reversed.
class Terminal final : public Display {
 public:
  // UsageError when there is no terminal, or one that cannot place its cursor.
  Terminal();
  ~Terminal() override;
  Terminal(const Terminal&) = delete;
  Terminal& operator=(const Terminal&) = delete;

  int Width() const override;
  int Height() const override;
  void Show(const Screen& screen) override;
  Input Next() override;
  void Beep() override;

 private:
  struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
  };

  void SetUpKeys();
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

}  // namespace gabarito::cli

#endif  // CLI_FORM_TERMINAL_H
