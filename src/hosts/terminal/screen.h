// What a terminal shows: the cells, and what lies under a click.
#ifndef HOSTS_TERMINAL_SCREEN_H
#define HOSTS_TERMINAL_SCREEN_H

#include <functional>
#include <vector>

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

// Rows [first, end) of a screen.
struct Rows {
  int first, end;
  int Count() const { return end - first; }
};

}  // namespace gabarito::terminal

#endif  // HOSTS_TERMINAL_SCREEN_H
