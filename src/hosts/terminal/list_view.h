// The open list of a combo box, as a popup with a scroll bar and a count.
#ifndef HOSTS_TERMINAL_LIST_VIEW_H
#define HOSTS_TERMINAL_LIST_VIEW_H

#include "hosts/kit/field_model.h"
#include "hosts/terminal/screen.h"

namespace gabarito::terminal {

class ListView {
 public:
  static constexpr int kMost = 8;  // entries on show

  // Below the box in row `at.y` or, if that gives less room, above it, within `rows`; its frame begins at
  // `at.x`. The selected entry is on show when it has changed; between that the wheel decides.
  void Draw(Screen& screen, int x, int width, Rows field, Rows rows, kit::ComboModel& combo);

  // Turns the list by `entries`, down for more than 0.
  void Wheel(int entries) { first_ += entries; }

 private:
  void DrawBar(Screen& screen, int x, int y, const kit::ComboModel& combo);

  const kit::ComboModel* combo_ = nullptr;  // whose list was drawn last
  int selected_ = -1;
  int count_ = 0;
  int shown_ = 0;
  int first_ = 0;  // the first entry on show
};

}  // namespace gabarito::terminal

#endif  // HOSTS_TERMINAL_LIST_VIEW_H
