// Draws the form: title and progress, the fields with what they have said, help and the keys that work now.
#ifndef HOSTS_TERMINAL_FORM_VIEW_H
#define HOSTS_TERMINAL_FORM_VIEW_H

#include <functional>
#include <string>
#include <vector>

#include "hosts/terminal/form_model.h"
#include "hosts/terminal/list_view.h"
#include "hosts/terminal/notices.h"
#include "hosts/terminal/screen.h"

namespace gabarito::terminal {

class FormView {
 public:
  // Smaller windows show a notice instead of the form; from 40 by 10 on nothing is cut off.
  static constexpr int kLeastWidth = 24;
  static constexpr int kLeastHeight = 6;

  // `finish` is called for a click on the button. All outlive the view.
  FormView(FormModel& model, const Notices& notices, std::function<void()> finish)
      : model_(model), notices_(notices), finish_(std::move(finish)) {}

  // The form in a window of this size, scrolled so that what has the focus is on show.
  Screen Draw(int width, int height);

  // Turns the open list or, without one, the form until the focus moves; down for more than 0.
  void Wheel(int rows);

 private:
  // One row of the form, from its top to its button.
  struct Row {
    enum class Kind { kBlank, kHeading, kLabel, kField, kNotice, kFinish };
    Kind kind;
    std::size_t line;  // the field; Lines().size() for the button
    std::u32string text;
    std::u32string notice = {};  // beside it
    int notice_at = 0;           // column
  };
  // Where the parts of a row stand. A narrow window has the labels above their fields.
  struct Columns {
    bool stacked;
    int label, boxes;  // first columns
    int label_width, width;
  };

  Columns ColumnsFor(int width) const;
  std::vector<Row> RowsFor(const Columns& columns, int width) const;
  void AppendField(std::vector<Row>& rows, std::size_t line, const Columns& columns, int width) const;
  void Scroll(const std::vector<Row>& rows, int visible);
  void DrawFrame(Screen& screen);
  void DrawRow(Screen& screen, int y, const Row& row, const Columns& columns);

  FormModel& model_;
  const Notices& notices_;
  std::function<void()> finish_;
  ListView list_;
  int top_ = 0;  // the first row of the form that is on show
  // What the form was scrolled for: the line with the focus, the rows of the form and of the window.
  std::vector<std::size_t> scrolled_for_;
};

}  // namespace gabarito::terminal

#endif  // HOSTS_TERMINAL_FORM_VIEW_H
