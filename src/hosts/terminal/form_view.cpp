#include "hosts/terminal/form_view.h"

#include <algorithm>

#include "hosts/terminal/field_view.h"
#include "hosts/terminal/foot_line.h"
#include "hosts/terminal/message_box.h"

namespace gabarito::terminal {
namespace {

constexpr int kBefore = 2;         // columns in front of a label: the mark of the focus and a blank
constexpr int kBehind = 2;         // between label and boxes
constexpr int kMargin = 1;         // behind the boxes
constexpr int kShortestLabel = 8;  // a column of labels has this width at least
constexpr int kRoomy = 16;         // rows from which the title has an empty one below it
constexpr int kFootRows = 2;       // help and keys

std::u32string LabelOf(const FormModel::Line& line) {
  return ToCells(line.spec.label) + (line.spec.required ? U" *" : U"");
}

std::u32string Number(std::size_t number) {
  const std::string digits = std::to_string(number);
  return {digits.begin(), digits.end()};
}

}  // namespace

FormView::Columns FormView::ColumnsFor(int width) const {
  std::size_t longest = kShortestLabel;
  for (const auto& line : model_.Lines()) longest = std::max(longest, LabelOf(line).size());
  const int beside = width - kBefore - kBehind - kFieldWidth - kMargin;
  if (static_cast<int>(std::min(longest, std::size_t{1000})) <= beside) {
    const int label = static_cast<int>(longest);
    return {false, kBefore, kBefore + label + kBehind, label, kFieldWidth};
  }
  const int room = std::max(width - kBefore - kMargin, 1);
  return {true, kBefore, kBefore, room, std::min(room, kFieldWidth)};
}

std::vector<FormView::Row> FormView::RowsFor(const Columns& columns, int width) const {
  std::vector<Row> rows;
  const auto& lines = model_.Lines();
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (!lines[i].spec.heading.empty()) {
      if (!rows.empty()) rows.push_back({Row::Kind::kBlank, i, {}});
      rows.push_back({Row::Kind::kHeading, i, ToCells(lines[i].spec.heading)});
    }
    AppendField(rows, i, columns, width);
  }
  rows.push_back({Row::Kind::kBlank, lines.size(), {}});
  rows.push_back({Row::Kind::kFinish, lines.size(), U"[ " + ToCells(model_.Spec().finish) + U" ]"});
  return rows;
}

// What a field has said stands beside it where there is room for it, so that nothing below moves, and else
// under it.
void FormView::AppendField(std::vector<Row>& rows, std::size_t line, const Columns& columns,
                           int width) const {
  const FormModel::Line& field = model_.Lines()[line];
  const std::u32string label = LabelOf(field);
  const std::u32string notice = ToCells(notices_.At(line));
  const std::size_t first = rows.size();
  if (columns.stacked) rows.push_back({Row::Kind::kLabel, line, label});
  rows.push_back({Row::Kind::kField, line, label});
  if (notice.empty()) return;
  const int end = columns.stacked ? columns.label + static_cast<int>(label.size())
                                  : columns.boxes + WidthOf(field.field->Parts(), columns.width);
  if (end + kBehind + static_cast<int>(notice.size()) + kMargin <= width) {
    rows[first].notice = notice;
    rows[first].notice_at = end + kBehind;
    return;
  }
  for (std::u32string& text : Wrapped(notice, width - columns.boxes - kMargin)) {
    rows.push_back({Row::Kind::kNotice, line, std::move(text)});
  }
}

// As few rows as it takes to show all of what has the focus, so that the form stands still while a person
// tabs along. The wheel may turn it away until something changes.
void FormView::Scroll(const std::vector<Row>& rows, int visible) {
  const std::size_t focused = model_.FocusedLine();
  std::vector<std::size_t> state{focused, rows.size(), static_cast<std::size_t>(visible)};
  if (state != scrolled_for_) {
    scrolled_for_ = std::move(state);
    const auto first = std::ranges::find(rows, focused, &Row::line);
    const auto end = std::find_if(first, rows.end(), [&](const Row& row) { return row.line != focused; });
    const int from = static_cast<int>(first - rows.begin()), to = static_cast<int>(end - rows.begin());
    top_ = std::max(top_, to - visible);
    top_ = std::min(top_, from);
    // A window that cannot hold all of it shows the boxes.
    const auto boxes = std::find_if(first, end, [](const Row& row) { return row.kind == Row::Kind::kField; });
    if (boxes != end) top_ = std::max(top_, static_cast<int>(boxes - rows.begin()) + 1 - visible);
  }
  top_ = std::clamp(top_, 0, std::max(static_cast<int>(rows.size()) - visible, 0));
}

void FormView::Wheel(int rows) {
  const kit::ComboModel* const combo = model_.FocusedCombo();
  if (combo != nullptr && combo->DroppedDown()) {
    list_.Wheel(rows);
  } else {
    top_ += rows;
  }
}

void FormView::DrawFrame(Screen& screen) {
  Grid& grid = screen.grid;
  const int width = grid.Width();
  const Style bar{kBar, kStrong};
  const std::size_t count = model_.Lines().size();
  const std::size_t focused = model_.FocusedLine();
  const std::u32string progress =
      focused < count ? U"campo " + Number(focused + 1) + U" de " + Number(count) : U"fim";
  const int left = width - static_cast<int>(progress.size()) - 1;
  grid.Fill(0, 0, width, bar);
  grid.Put(1, 0, Shortened(ToCells(model_.Spec().title), left - 2), bar);
  grid.Put(left, 0, progress, bar);

  if (focused < count) {
    const kit::ComboModel* const combo = model_.FocusedCombo();
    const FieldSpec& spec = model_.Lines()[focused].spec;
    const std::u16string_view tip = combo == nullptr ? std::u16string_view() : combo->ToolTip();
    const std::u32string help = ToCells(spec.help.empty() ? tip : std::u16string_view(spec.help));
    grid.Put(kBefore, grid.Height() - 2, Shortened(help, width - kBefore - kMargin), {kButtonFace, kDim});
  }
  DrawFoot(grid, model_);
}

void FormView::DrawRow(Screen& screen, int y, const Row& row, const Columns& columns) {
  Grid& grid = screen.grid;
  const Style plain{kButtonFace}, strong{kButtonFace, kStrong};
  const bool focused = row.line == model_.FocusedLine();
  grid.Put(row.notice_at, y, row.notice, {kButtonFace, kAlarm});
  switch (row.kind) {
    case Row::Kind::kBlank:
      return;
    case Row::Kind::kHeading: {
      const int room = grid.Width() - kBefore - kMargin;
      const std::u32string text = Shortened(row.text, room - 4) + U" ";
      grid.Put(kBefore, y, text, strong);
      for (int x = kBefore + static_cast<int>(text.size()); x < grid.Width() - kMargin; ++x) {
        grid.Put(x, y, U'─', plain);
      }
      return;
    }
    case Row::Kind::kLabel:
      grid.Put(columns.label, y, Shortened(row.text, columns.label_width), focused ? strong : plain);
      return;
    case Row::Kind::kField: {
      const FormModel::Line& line = model_.Lines()[row.line];
      if (focused) grid.Put(0, y, U'▸', strong);
      if (!columns.stacked) grid.Put(columns.label, y, row.text, focused ? strong : plain);
      DrawField(screen, {columns.boxes, y}, columns.width, model_.Form(), line.field->Parts(),
                line.spec.placeholders);
      return;
    }
    case Row::Kind::kNotice:
      grid.Put(columns.boxes, y, row.text, {kButtonFace, kAlarm});
      return;
    case Row::Kind::kFinish: {
      const bool active = model_.Form().Focused() == &model_.Finish();
      if (active) grid.Put(0, y, U'▸', strong);
      const std::u32string text = Shortened(row.text, grid.Width() - columns.boxes - kMargin);
      grid.Put(columns.boxes, y, text, {kButtonFace, active ? Marks(kActive | kSelected) : kPlain});
      screen.targets.push_back({columns.boxes, y, static_cast<int>(text.size()), [this](int) { finish_(); }});
      return;
    }
  }
}

Screen FormView::Draw(int width, int height) {
  Screen screen{Grid(width, height), {}};
  Grid& grid = screen.grid;
  if (width < kLeastWidth || height < kLeastHeight) {
    grid.Put(0, 0, Shortened(U"janela pequena demais", grid.Width()), {});
    return screen;
  }
  DrawFrame(screen);
  const Rows body{height < kRoomy ? 1 : 2, height - kFootRows};
  const Columns columns = ColumnsFor(width);
  const std::vector<Row> rows = RowsFor(columns, width);
  Scroll(rows, body.Count());
  Rows focused{body.end, body.first};
  for (int y = body.first; y < body.end; ++y) {
    const auto index = static_cast<std::size_t>(top_ + y - body.first);
    if (index >= rows.size()) break;
    DrawRow(screen, y, rows[index], columns);
    if (rows[index].line == model_.FocusedLine() && rows[index].kind != Row::Kind::kBlank) {
      focused = {std::min(focused.first, y), y + 1};
    }
  }
  // There are more rows above or below.
  if (top_ > 0) grid.Put(width - 1, body.first, U'▲', {});
  if (top_ + body.Count() < static_cast<int>(rows.size())) {
    grid.Put(width - 1, body.end - 1, U'▼', {});
  }

  // Last, over the rows that it covers.
  kit::ComboModel* const combo = model_.FocusedCombo();
  if (combo != nullptr && combo->DroppedDown()) {
    list_.Draw(screen, columns.boxes, columns.width, focused, body, *combo);
  }
  return screen;
}

}  // namespace gabarito::terminal
