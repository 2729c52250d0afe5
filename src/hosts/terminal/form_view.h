// Draws the form from the children of its fields, and knows what lies under a click.
#ifndef HOSTS_TERMINAL_FORM_VIEW_H
#define HOSTS_TERMINAL_FORM_VIEW_H

#include <functional>
#include <vector>

#include "hosts/terminal/form_model.h"
#include "hosts/terminal/grid.h"

namespace gabarito::terminal {

// Cells that answer a click.
struct Target {
  int x, y, width;
  std::function<void(int column)> click;  // with the column inside the target

  bool Holds(Point point) const { return point.y == y && point.x >= x && point.x < x + width; }
};

struct Screen {
  Grid grid;
  std::vector<Target> targets;  // of two in one place the later one counts
};

class FormView {
 public:
  // Smaller windows show a notice instead of the form.
  static constexpr int kLeastWidth = 36;
  static constexpr int kLeastHeight = 8;
  static constexpr int kListLines = 8;  // entries that an open list shows

  // `leave` is called for a click on Sair.
  FormView(FormModel& model, std::function<void()> leave) : model_(model), leave_(std::move(leave)) {}

  // The form in a window of this size, scrolled so that the line with the focus is on show.
  Screen Draw(int width, int height);

 private:
  FormModel& model_;
  std::function<void()> leave_;
  int top_ = 0;  // the first line of the form that is on show
};

}  // namespace gabarito::terminal

#endif  // HOSTS_TERMINAL_FORM_VIEW_H
