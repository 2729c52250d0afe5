#include "hosts/terminal/form_view.h"

#include <algorithm>

#include "hosts/terminal/field_view.h"

namespace gabarito::terminal {
namespace {

constexpr Color kTitle = 0x00800000;  // dark blue

constexpr int kBefore = 2;  // columns in front of a label: the mark of the focus and a blank
constexpr int kBehind = 2;  // between label and surface: a blank and the edge of the first box
constexpr int kShortestLabel = 12;
constexpr int kLongestLabel = 28;

constexpr int kBodyTop = 2;     // the title and an empty row
constexpr int kBodyBottom = 2;  // the tool tip and the help

constexpr std::u32string_view kSair = U"[ Sair ]";

// Labels give way before fields do: a field that is cut off hides what is typed.
int LabelWidth(const FormModel& model, int width) {
  std::size_t longest = 0;
  for (const auto& line : model.Lines()) longest = std::max(longest, ToCells(line.spec.label).size());
  const int wanted = static_cast<int>(std::min<std::size_t>(longest, kLongestLabel));
  return std::min(wanted, std::max(width - kBefore - kBehind - kFieldWidth, kShortestLabel));
}

void DrawHelp(Grid& grid, const kit::ComboModel* combo) {
  const Style tip{kButtonFace};
  if (combo != nullptr) {
    grid.Put(kBefore, grid.Height() - 2, Shortened(ToCells(combo->ToolTip()), grid.Width() - kBefore), tip);
  }
  // A combo box keeps Enter to itself.
  const std::u32string help = combo != nullptr ? U"Tab avança · Shift+Tab volta · F4 abre a lista · F10 sai"
                                               : U"Enter ou Tab avança · Shift+Tab volta · F10 ou Ctrl+Q sai";
  const Style style{kTitle, kStrong};
  grid.Fill(0, grid.Height() - 1, grid.Width(), style);
  grid.Put(1, grid.Height() - 1, Shortened(help, grid.Width() - 1), style);
}

}  // namespace

Screen FormView::Draw(int width, int height) {
  Screen screen{Grid(width, height), {}};
  Grid& grid = screen.grid;
  if (width < kLeastWidth || height < kLeastHeight) {
    grid.Put(0, 0, U"janela pequena demais", {});
    return screen;
  }
  grid.Fill(0, 0, width, {kTitle, kStrong});
  grid.Put(1, 0, U"gabarito · formulário", {kTitle, kStrong});
  DrawHelp(grid, model_.FocusedCombo());

  const auto count = static_cast<int>(model_.Lines().size());
  const int button = count + 1;  // behind an empty line
  const auto focused_line = static_cast<int>(model_.FocusedLine());
  const int focused = focused_line == count ? button : focused_line;
  const Rows rows{kBodyTop, height - kBodyBottom};
  const int visible = rows.end - rows.first;
  // As few lines as it takes to show the focus, so that the form stands still while a person tabs along.
  top_ = std::clamp(top_, std::max(focused - visible + 1, 0), focused);
  top_ = std::clamp(top_, 0, std::max(button + 1 - visible, 0));

  const int label_width = LabelWidth(model_, width);
  const int surface = kBefore + label_width + kBehind;
  for (int row = rows.first; row < rows.end; ++row) {
    const int index = top_ + row - rows.first;
    if (index == focused) grid.Put(0, row, U'▸', {kButtonFace, kStrong});
    if (index < count) {
      const FormModel::Line& line = model_.Lines()[static_cast<std::size_t>(index)];
      grid.Put(kBefore, row, Shortened(ToCells(line.spec.label), label_width), {});
      DrawField(screen, {surface, row}, model_.Form(), line.field->Parts());
    } else if (index == button) {
      const bool active = model_.Form().Focused() == &model_.Leave();
      grid.Put(surface, row, kSair, {kButtonFace, active ? Marks(kActive | kSelected) : kPlain});
      screen.targets.push_back({surface, row, static_cast<int>(kSair.size()), [this](int) { leave_(); }});
    }
  }
  // There are more lines above or below.
  if (top_ > 0) grid.Put(1, rows.first, U'▲', {});
  if (top_ + visible <= button) grid.Put(1, rows.end - 1, U'▼', {});

  // Last, over the lines that it covers.
  kit::ComboModel* const combo = model_.FocusedCombo();
  if (combo != nullptr && combo->DroppedDown()) {
    DrawList(screen, {surface, rows.first + focused - top_}, rows, *combo);
  }
  return screen;
}

}  // namespace gabarito::terminal
