// The pass after an event: the widgets take over what the models have noted.
#include <QtWidgets/QLayout>

#include "gabarito/platform/color.h"
#include "hosts/kit/box_names.h"
#include "hosts/kit/visit_input.h"
#include "hosts/qt/field_bridge.h"

namespace gabarito::qt {
namespace {

bool IsShown(kit::InputModel& child) {
  return kit::VisitInput(child, [](auto& model) { return model.IsVisible(); });
}

// The list is as high as a line of its font, which no move changes.
kit::Geometry BoundsOf(kit::InputModel& child) {
  kit::Geometry bounds = kit::VisitInput(child, [](auto& model) { return model.Bounds(); });
  if (child.Kind() == kit::InputKind::kCombo)
    bounds.height = static_cast<kit::ComboModel&>(child).LineHeight();
  return bounds;
}

QString ToObjectName(std::string_view name) {
  return QString::fromLatin1(name.data(), static_cast<qsizetype>(name.size()));
}

// A colour of the system is the widget's own, so that palettes and style sheets hold.
void Paint(QWidget& box, gabarito::Color color) {
  if (IsSystemColor(color)) {
    if (box.testAttribute(Qt::WA_SetPalette)) box.setPalette(QPalette());
    return;
  }
  const QColor base = ToQColor(color);
  QPalette palette;
  for (const auto group : {QPalette::Active, QPalette::Inactive}) {
    palette.setColor(group, QPalette::Base, base);
    // Legible also where the program's own text is light on dark.
    palette.setColor(group, QPalette::Text, base.lightness() > 127 ? Qt::black : Qt::white);
  }
  box.setPalette(palette);
}

}  // namespace

bool FieldBridge::Apply() {
  if (Parts() == nullptr) return true;
  if (passing_) return again_ = true;
  const auto form = form_;
  ++form->running;  // the boxes outlive the pass
  passing_ = true;
  bool here = true;
  do {
    again_ = false;
    here = ApplySurface() && (!made_ || ApplyChildren());
  } while (here && again_);
  if (here) passing_ = false;
  --form->running;
  return here;
}

// This and the next are false when the widget has gone: a change of size, font, focus or text is told to
// filters, to editors that lose the focus and to listeners, and any of them may delete it.
bool FieldBridge::ApplySurface() {
  const auto form = form_;
  kit::SurfaceModel& surface = model_->Parts().surface;
  const kit::Changes changes = surface.TakeChanges();
  if (changes.Has(kit::Change::kGeometry)) {
    const int height = metric_->PixelsDown(surface.Bounds().height);
    const int width = metric_->PixelsAcross(surface.Bounds().width);
    widget_.updateGeometry();
    if (widget_.isWindow() || widget_.parentWidget()->layout() == nullptr) widget_.resize(width, height);
    if (form->Bridge() == nullptr) return false;
  }
  if (StdFont font = *surface.Font(); changes.Has(kit::Change::kFont) && font != font_) {
    font_ = font;
    widget_.setFont(ToQt(font));
    if (form->Bridge() == nullptr) return false;
    metric_->Renew();
  }
  return true;
}

// First what comes up, then the focus, then what goes: Qt moves the focus by itself off a widget that is
// hidden or disabled with it.
bool FieldBridge::ApplyChildren() {
  const auto form = form_;
  const auto held = model_->SharedParts();
  kit::FieldParts& parts = *held;
  const bool fresh = applied_ != &parts;
  applied_ = &parts;
  bool arrives = false;
  kit::Changes changes[kInputs];
  const auto inputs = parts.InTabOrder();
  for (int i = 0; i < kInputs; ++i) {
    kit::InputModel& child = *inputs[static_cast<std::size_t>(i)];
    changes[i] = kit::VisitInput(child, [](auto& model) { return model.TakeChanges(); });
    if (fresh) changes[i] = kit::Changes::All();
    if (!IsShown(child) || BoxOf(i) != nullptr) continue;
    MakeBox(i);
    changes[i] = kit::Changes::All();
    arrives = true;
  }
  for (int i = 0; i < kLabels; ++i) ApplyLabel(parts.lbl_controle[i], i, fresh);
  if (arrives) OrderTabs();
  bool moved = fresh || arrives;
  for (int i = 0; i < kInputs; ++i) {
    if (BoxOf(i) == nullptr || !changes[i].Any()) continue;
    moved = moved || changes[i].Has(kit::Change::kVisible) || changes[i].Has(kit::Change::kGeometry);
    ApplyInput(i, changes[i]);
    if (form->Bridge() == nullptr) return false;
  }
  ApplyFocus();
  for (int i = 0; i < kInputs; ++i) {
    if (form->Bridge() == nullptr) return false;
    QWidget* const box = BoxOf(i);
    if (box == nullptr) continue;
    kit::InputModel& child = *inputs[static_cast<std::size_t>(i)];
    if (!IsShown(child)) {
      if (!box->isHidden()) box->hide();
    } else if (!child.CanTakeFocus() && box->isEnabledTo(&widget_)) {
      box->setEnabled(false);
    }
  }
  if (form->Bridge() == nullptr) return false;
  ApplyProxy();
  if (moved) {
    NameBoxes();
    widget_.updateGeometry();
  }
  return true;
}

// What gets the focus that is given to the field as a whole: the child that the field itself would give it
// to.
void FieldBridge::ApplyProxy() {
  // While the field as a whole has the focus, a proxy would take it over.
  if (widget_.window()->focusWidget() == &widget_) return;
  QWidget* proxy = nullptr;
  const auto can = [&](int i) { return BoxOf(i) != nullptr && Child(i).CanTakeFocus(); };
  if (can(kCombo)) proxy = BoxOf(kCombo);
  for (int i = 0; proxy == nullptr && i < kInputs; ++i) {
    if (can(i)) proxy = BoxOf(i);
  }
  if (widget_.focusProxy() != proxy) widget_.setFocusProxy(proxy);
}

void FieldBridge::ApplyInput(int index, kit::Changes changes) {
  const auto form = form_;
  kit::FieldParts& parts = model_->Parts();
  kit::InputModel& child = Child(index);
  QWidget& box = *BoxOf(index);
  if (changes.Has(kit::Change::kGeometry)) Place(box, BoundsOf(child));
  if (changes.Has(kit::Change::kColor)) {
    Paint(box, kit::VisitInput(child, [](auto& model) { return model.Color(); }));
  }
  if (child.CanTakeFocus() && !box.isEnabledTo(&widget_)) box.setEnabled(true);
  LineBox& line = *LineOf(index);
  if (index == kCombo) ApplyCombo(parts.Combo1, changes);
  if (form->Bridge() == nullptr) return;
  ApplyLine(line, child, changes);
  if (form->Bridge() == nullptr) return;
  if (IsShown(child) && box.isHidden()) box.show();
  if (index == kCombo && changes.Has(kit::Change::kDroppedDown)) {
    static_cast<ListBox&>(box).ShowList(parts.Combo1.DroppedDown());
  }
}

void FieldBridge::ApplyLine(LineBox& line, kit::InputModel& child, kit::Changes changes) {
  const InputChild& box = child.AsChild();
  if (changes.Has(kit::Change::kText) || changes.Has(kit::Change::kSelected)) {
    const QString text = line.text();
    if (ViewOf(text) != box.Text()) line.setText(ToQString(box.Text()));
  }
  if (!changes.Has(kit::Change::kSelection)) return;
  if (box.SelLength() > 0) {
    if (line.SelStart() != box.SelStart() || line.selectedText().size() != box.SelLength()) {
      line.setSelection(box.SelStart(), box.SelLength());
    }
  } else if (line.hasSelectedText() || line.cursorPosition() != box.SelStart()) {
    line.setCursorPosition(box.SelStart());
    line.deselect();
  }
}

void FieldBridge::ApplyCombo(const kit::ComboModel& combo, kit::Changes changes) {
  ListBox& list = *list_;
  if (changes.Has(kit::Change::kList)) list.ShowEntries(EntriesModel::For(combo.Entries()));
  if (changes.Has(kit::Change::kList) || changes.Has(kit::Change::kSelected))
    list.ShowSelected(combo.Selected());
  if (changes.Has(kit::Change::kToolTip)) list.setToolTip(ToQString(combo.ToolTip()));
}

void FieldBridge::ApplyLabel(kit::LabelModel& model, int index, bool fresh) {
  kit::Changes changes = model.TakeChanges();
  if (fresh) changes = kit::Changes::All();
  QPointer<QLabel>& label = labels_[index];
  if (label == nullptr) {
    if (!model.IsVisible()) return;
    label = new QLabel(&widget_);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignCenter);
    label->setObjectName(ToObjectName(model.ChildName()));
    changes = kit::Changes::All();
  }
  if (!changes.Any()) return;
  label->setText(ToQString(model.Shown()));
  // How much lower than the boxes it stands was worked out for one font; in its middle it is right in all.
  kit::Geometry place = model.Bounds();
  place.top = 0;
  Place(*label, place);
  // The ground of the window shows through unless the label has another colour.
  const bool own = !IsSystemColor(model.Color()) && model.Color() != Ambient();
  label->setAutoFillBackground(own);
  if (own) {
    QPalette palette;
    palette.setColor(QPalette::Window, ToQColor(model.Color()));
    label->setPalette(palette);
  }
  label->setVisible(model.IsVisible());
}

gabarito::Color FieldBridge::Ambient() const {
  const AmbientProperties* const ambient = form_->services.ambient;
  return ambient == nullptr ? kButtonFace : ambient->BackColor();
}

// A row that does not fill the field stands at the end where reading begins; inside it the order of its
// boxes, that of a date or a time, is the same in all languages.
void FieldBridge::Place(QWidget& box, const kit::Geometry& geometry) {
  QRect place = metric_->ToPixels(geometry);
  if (widget_.isRightToLeft()) place.translate(std::max(widget_.width() - RowWidth(), 0), 0);
  box.setGeometry(place);
}

int FieldBridge::RowWidth() const {
  if (!model_->Exists()) return 0;
  kit::FieldParts& parts = model_->Parts();
  float end = 0;
  for (kit::InputModel* const child : parts.InTabOrder()) {
    const kit::Geometry place = BoundsOf(*child);
    if (IsShown(*child)) end = std::max(end, place.left + place.width);
  }
  return metric_->PixelsAcross(end);
}

QWidget* FieldBridge::MakeBox(int index) {
  if (index == kCombo) {
    list_ = new ListBox(*this, *this, index, &widget_);
    return list_;
  }
  auto* const line = new LineBox(*this, index, &widget_);
  if (Child(index).Kind() == kit::InputKind::kTextBox) {
    line->SetFlat(static_cast<kit::TextBoxModel&>(Child(index)).ItsLook() == kit::Look::kFlat);
  }
  lines_[index] = line;
  return line;
}

// A new widget comes last in its window's focus chain: puts the boxes behind the field, in their own order.
void FieldBridge::OrderTabs() {
  widget_.setFocusProxy(nullptr);
  QWidget* before = &widget_;
  for (int i = 0; i < kInputs; ++i) {
    QWidget* const box = BoxOf(i);
    if (box == nullptr) continue;
    QWidget::setTabOrder(before, box);
    before = box;
  }
}

void FieldBridge::NameBoxes() {
  for (int i = 0; i < kInputs; ++i) {
    QWidget* const box = BoxOf(i);
    if (box == nullptr || box->isHidden()) continue;
    const QString name = ToQString(kit::BoxName((*model_)->Mask(), Child(i)));
    if (box->accessibleName() != name) box->setAccessibleName(name);
  }
}

QSize FieldBridge::SizeHint(bool least) const {
  const int height = model_->Exists() ? metric_->PixelsDown(model_->Parts().Combo1.LineHeight())
                                      : widget_.fontMetrics().height();
  const int row = RowWidth();
  // A row of its own width, or boxes that fill whatever there is.
  const int letters = widget_.fontMetrics().horizontalAdvance(u'x') * (least ? 4 : 17);
  const bool fills =
      row == metric_->PixelsAcross(model_->Exists() ? model_->Parts().surface.Bounds().width : 0);
  return {fills ? letters : std::max(row, 1), height};
}

}  // namespace gabarito::qt
