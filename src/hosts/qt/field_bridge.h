// Between the models of a field and its widgets: the hand-over before each event and the pass after it.
#ifndef HOSTS_QT_FIELD_BRIDGE_H
#define HOSTS_QT_FIELD_BRIDGE_H

#include <QtCore/QPointer>
#include <QtWidgets/QLabel>
#include <memory>

#include "hosts/kit/field_model.h"
#include "hosts/kit/regional_kernel.h"
#include "hosts/kit/system_clock.h"
#include "hosts/qt/dialogs.h"
#include "hosts/qt/line_box.h"
#include "hosts/qt/list_box.h"
#include "hosts/qt/metric.h"
#include "hosts/qt/strings.h"

namespace gabarito::qt {

class FieldBridge;

constexpr bool IsSystemColor(gabarito::Color color) { return (color & 0x80000000) != 0; }
QColor ToQColor(gabarito::Color color);
gabarito::Color FromQColor(const QColor& color);

// What stands around a field and is not a field: one for everything that Qt can give the focus to.
class Outside final : public kit::Control, public kit::Focusable {
 public:
  QPointer<QWidget> widget;
  std::string name;

  std::string_view Name() const override { return name; }
  kit::Control& Owner() override { return *this; }
  bool CanTakeFocus() const override { return true; }
  void TabStops(std::vector<kit::Focusable*>& stops) override { stops.push_back(this); }
};

class WidgetAmbient final : public AmbientProperties {
 public:
  explicit WidgetAmbient(const QWidget& widget) : widget_(&widget) {}
  gabarito::Color BackColor() const override;
  FontRef Font() const override;
  void Forget() { widget_ = nullptr; }

 private:
  const QWidget* widget_;
};

// What a field of a program runs on.
struct WidgetServices {
  explicit WidgetServices(GabaritoField& field) : dialogs(field), metric(field), ambient(field) {}
  kit::Services AsServices();

  WidgetDialogs dialogs;
  WidgetMetric metric;
  WidgetAmbient ambient;
};

// The form of one field. Each field has one of its own, so that it can move from window to window; the
// window's one focus is told to them by FocusWatch. Outlives the widget for as long as something runs in the
// field.
class FieldForm final : public kit::FormModel {
 public:
  FieldForm(FieldBridge& bridge, std::unique_ptr<WidgetServices> own, const kit::Services& itsServices)
      : FormModel(itsServices), own_(std::move(own)), bridge_(&bridge) {}

  // Null when the widget has gone.
  FieldBridge* Bridge() const { return bridge_; }
  void Part();
  // Null on the services of a script.
  WidgetServices* Own() { return own_.get(); }
  void HideNote() {
    if (own_ != nullptr) own_->dialogs.HideNote();
  }

  void KeysWaiting() override;
  // What a handler has raised: taken by a script, otherwise told by qWarning.
  void Report(const Erro& erro) const;

  Outside outside;  // what has the focus when the field has not
  int depth = 0;    // events that run in the field, one inside another
  int running = 0;  // the same, their passes included
  std::function<void(const Erro&)> onError;

 protected:
  void Deliver(const kit::KeyEvent& event) override;

 private:
  std::unique_ptr<WidgetServices> own_;
  FieldBridge* bridge_;
};

class FieldBridge final : public BoxOwner, public ListBoxOwner {
 public:
  // On services of its own or, for a script, on those given.
  FieldBridge(GabaritoField& widget, const kit::Services* given);
  ~FieldBridge() override;
  static FieldBridge& Of(const GabaritoField& widget) { return *widget.bridge_; }
  // A field on the services of a script: with no field behind it yet, and the fixed font metric.
  static std::unique_ptr<GabaritoField> OnServices(const kit::Services& services, QWidget* parent);

  GabaritoField& Widget() { return widget_; }
  kit::FieldModel& Model() { return *model_; }
  FieldForm& Form() { return *form_; }
  const std::shared_ptr<FieldForm>& SharedForm() { return form_; }
  const WidgetMetric& Metric() const { return *metric_; }

  // Runs what happens in the field, after the hand-over and before the pass; the parts of the field stay till
  // it ends. False when the widget has gone by then.
  template <class Action>
  bool InTurn(Action action);
  // Around a message box: the pass, and the hand-over when it is gone.
  int Pause();
  void Resume(int depth);

  // The models take over what the widgets hold; the widgets take over what the models have noted.
  void HandOver();
  // False when the widget has gone by then: Qt's own signals on the way may run anything.
  bool Apply();
  void ApplyFocus();
  // Delivers the keys that the field has sent.
  void RunQueue();

  // Qt has given the focus to a part of the field, or to something else in its window; the latter is false
  // when the field has taken it back.
  void FocusCame(QWidget& part);
  bool FocusLeft(QWidget* to);
  // Widgets that a script knows by name.
  std::vector<Outside*> neighbours;

  // Of the widget.
  // The life of a field of a program: Initialize, Show.
  void Begin();
  // A public operation.
  template <class Operation>
  void Change(Operation operation) {
    InTurn([&] { operation(**model_); });
  }
  bool Check();
  QStringList Words() const;
  void SetWords(const QStringList& words);
  // Between two events, for somebody who only looks.
  void HandOverNow() {
    if (form_->depth == 0) HandOver();
  }
  WidgetDialogs& Dialogs() { return form_->Own()->dialogs; }
  void Resized();
  void Shown();
  void FontChanged();
  void StyleChanged();
  void EnabledChanged();
  void PaletteChanged();
  QSize SizeHint(bool least) const;
  QString Looked() const;
  void Refused(const GabaritoField::Message& message);
  void ListenToKeys();
  GabaritoField::KeyHandler keyHandler;

  void KeyPressed(LineBox& box, QKeyEvent& event) override;
  void KeyReleased(LineBox& box, QKeyEvent& event) override;
  void TextComes(LineBox& box, const QString& text) override;
  void TextSet(LineBox& box) override;
  void TakeOver(LineBox& box) override;
  void Edited(LineBox& box) override;
  void MousePressed(LineBox& box) override;
  void Picked(int index) override;
  void Stepped(bool down) override;
  void DroppedDown(bool open) override;
  void MousePressed() override;

 private:
  static constexpr int kInputs = 8, kCombo = 4, kLabels = 3;

  kit::FieldParts* Parts() const { return model_->Exists() ? &model_->Parts() : nullptr; }
  kit::InputModel& Child(int index) const {
    return *model_->Parts().InTabOrder()[static_cast<std::size_t>(index)];
  }
  LineBox* LineOf(int index) const;
  QWidget* BoxOf(int index) const;

  void TurnEnds();
  bool ApplyChildren();
  void ApplyInput(int index, kit::Changes changes);
  void ApplyLine(LineBox& line, kit::InputModel& child, kit::Changes changes);
  void ApplyCombo(const kit::ComboModel& combo, kit::Changes changes);
  void ApplyLabel(kit::LabelModel& model, int index, bool fresh);
  bool ApplySurface();
  void ApplyProxy();
  gabarito::Color Ambient() const;
  void Place(QWidget& box, const kit::Geometry& geometry);
  int RowWidth() const;
  QWidget* MakeBox(int index);
  void OrderTabs();
  void NameBoxes();
  void Tell();

  bool TypedAhead(LineBox& box, QKeyEvent& event);
  void TypeKey(LineBox& box, QKeyEvent& event);
  void TypeCharacter(LineBox& box, QKeyEvent& event, char16_t character);
  void ActOnControl(LineBox& box, QKeyEvent& event, char16_t character);
  void Paste(LineBox& box);
  void TakeSelectionAway(LineBox& box);

  GabaritoField& widget_;
  std::shared_ptr<FieldForm> form_;
  WidgetMetric* metric_;
  std::unique_ptr<WidgetMetric> own_metric_;  // where the form's services are a script's
  std::unique_ptr<kit::FieldModel> model_;
  const kit::FieldParts* applied_ = nullptr;  // the life of the field that the widgets show

  QPointer<LineBox> lines_[kInputs];
  QPointer<ListBox> list_;
  QPointer<QLabel> labels_[kLabels];
  bool made_ = false;     // the field has been shown once
  bool passing_ = false;  // the pass is at work: what the widgets tell is its echo
  bool again_ = false;    // the models have changed since it began
  bool run_posted_ = false;
  bool refused_ = false;
  StdFont font_;
  QString told_;       // the value that textChanged has told last
  bool left_ = false;  // editingFinished is due
};

template <class Action>
bool FieldBridge::InTurn(Action action) {
  const auto form = form_;
  const auto held = model_->SharedParts();
  ++form->running;
  if (form->depth++ == 0) HandOver();
  try {
    action();
    form->focus.Settle();
  } catch (const Erro& erro) {
    form->Report(erro);
  }
  --form->depth;
  if (form->depth == 0 && form->Bridge() != nullptr) TurnEnds();
  --form->running;
  return form->Bridge() != nullptr;
}

}  // namespace gabarito::qt

#endif  // HOSTS_QT_FIELD_BRIDGE_H
