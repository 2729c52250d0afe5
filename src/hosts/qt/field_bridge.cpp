#include "hosts/qt/field_bridge.h"

#include <QtCore/QDebug>
#include <QtCore/QMetaMethod>
#include <QtGui/QFocusEvent>
#include <QtGui/QWindow>
#include <QtWidgets/QApplication>

#include "hosts/kit/comfort.h"
#include "hosts/kit/keep_content.h"
#include "hosts/kit/look.h"
#include "hosts/qt/focus_watch.h"
#include "hosts/qt/keys.h"

namespace gabarito::qt {

QColor ToQColor(gabarito::Color color) {
  return QColor(static_cast<int>(color & 0xFF), static_cast<int>(color >> 8 & 0xFF),
                static_cast<int>(color >> 16 & 0xFF));
}

gabarito::Color FromQColor(const QColor& color) {
  return static_cast<gabarito::Color>(color.red() | color.green() << 8 | color.blue() << 16);
}

// --- FieldForm
// ----------------------------------------------------------------------------------------------------

kit::Services WidgetServices::AsServices() {
  static kit::SystemClock clock;
  static kit::RegionalKernel kernel;
  kit::Services services;
  services.dialogs = &dialogs;
  services.clock = &clock;
  services.kernel = &kernel;
  services.regional = &kernel.regional;
  services.metric = &metric;
  services.ambient = &ambient;
  return services;
}

gabarito::Color WidgetAmbient::BackColor() const {
  return widget_ == nullptr ? gabarito::kButtonFace : FromQColor(widget_->palette().color(QPalette::Window));
}

FontRef WidgetAmbient::Font() const {
  const StdFont font = widget_ == nullptr ? StdFont() : FromQt(widget_->font());
  // Mostly all fields of a program have the same one, and nobody changes it but by giving them another.
  static thread_local FontRef latest;
  if (latest == nullptr || *latest != font) latest = std::make_shared<StdFont>(font);
  return latest;
}

void FieldForm::Part() {
  bridge_ = nullptr;
  if (own_ == nullptr) return;
  own_->metric.Forget();
  own_->ambient.Forget();
}

void FieldForm::KeysWaiting() {
  if (bridge_ == nullptr) return;
  const QPointer<GabaritoField> field(&bridge_->Widget());
  QMetaObject::invokeMethod(
      field, [field] { FieldBridge::Of(*field).RunQueue(); }, Qt::QueuedConnection);
}

void FieldForm::Report(const Erro& erro) const {
  if (onError) return onError(erro);
  qWarning("GabaritoField: error %d: %s", erro.Number(), qUtf8Printable(ToQString(erro.Description())));
}

// Keys of the queue are events of the window that has the focus, as those of a keyboard are.
void FieldForm::Deliver(const kit::KeyEvent& event) {
  if (bridge_ == nullptr) return;
  const bool tab = event.vk == kVkTab && (event.shift & (kCtrlMask | kAltMask)) == 0;
  if (tab && kit::StepBackInside(*this, event)) {
    if (!event.up && bridge_ != nullptr) bridge_->ApplyFocus();
    return;
  }
  QWindow* window = QGuiApplication::focusWindow();
  if (window == nullptr) window = bridge_->Widget().window()->windowHandle();
  if (window == nullptr) return;
  const auto key = EventOf(event, keyboard.Layout(), keyboard.CapsLock());
  QCoreApplication::sendEvent(window, key.get());
  FocusWatch::Instance().Tell();
}

// --- FieldBridge
// --------------------------------------------------------------------------------------------------

FieldBridge::FieldBridge(GabaritoField& widget, const kit::Services* given) : widget_(widget) {
  if (given == nullptr) {
    auto own = std::make_unique<WidgetServices>(widget);
    metric_ = &own->metric;
    const kit::Services services = own->AsServices();
    form_ = std::make_shared<FieldForm>(*this, std::move(own), services);
    form_->comfort = true;
  } else {
    own_metric_ = std::make_unique<WidgetMetric>(widget);
    own_metric_->Fix(*given->metric);
    metric_ = own_metric_.get();
    form_ = std::make_shared<FieldForm>(*this, nullptr, *given);
  }
  model_ = std::make_unique<kit::FieldModel>(form_, std::string("field"));
  FocusWatch::Instance();
}

FieldBridge::~FieldBridge() {
  form_->Part();
  form_->HideNote();
  // What runs in a box of this field goes on in it when this returns.
  const bool busy = form_->running > 0;
  for (int i = 0; i < kInputs; ++i) {
    QWidget* const box = BoxOf(i);
    if (box == nullptr) continue;
    i == kCombo ? list_->Orphan() : lines_[i]->Orphan();
    if (!busy) continue;
    box->hide();
    box->setParent(nullptr);
    box->deleteLater();
  }
  model_->End();
}

LineBox* FieldBridge::LineOf(int index) const {
  if (index != kCombo) return lines_[index];
  return list_ == nullptr ? nullptr : &list_->Line();
}

QWidget* FieldBridge::BoxOf(int index) const {
  if (index == kCombo) return list_;
  return lines_[index];
}

// The box with the focus, and any other whose text is not what its model thinks. The others have only lost
// their selection to the style, which is none of the field's business. During the pass the widgets are behind
// the models.
void FieldBridge::HandOver() {
  kit::FieldParts* const parts = Parts();
  if (parts == nullptr || parts != applied_ || passing_) return;
  QWidget* const focus = widget_.window()->focusWidget();
  for (int i = 0; i < kInputs; ++i) {
    LineBox* const line = LineOf(i);
    if (line == nullptr) continue;
    const QString text = line->text();
    if (BoxOf(i) == focus || ViewOf(text) != Child(i).AsChild().Text()) TakeOver(*line);
  }
}

void FieldBridge::TurnEnds() {
  if (Apply()) Tell();
}

int FieldBridge::Pause() {
  const auto form = form_;
  Apply();
  return std::exchange(form->depth, 0);
}

void FieldBridge::Resume(int depth) {
  HandOver();
  form_->depth = depth;
}

void FieldBridge::RunQueue() {
  const auto form = form_;
  try {
    form->Run();
  } catch (const Erro& erro) {
    form->Report(erro);
  }
}

// Tells the program what has come of the event. Any of it may delete the field.
void FieldBridge::Tell() {
  const auto form = form_;
  if (widget_.isSignalConnected(QMetaMethod::fromSignal(&GabaritoField::textChanged))) {
    const QString text = Looked();
    if (text != told_) {
      told_ = text;
      emit widget_.textChanged(text);
    }
  }
  if (form->Bridge() == nullptr || !std::exchange(left_, false)) return;
  const kit::Focusable* const focused = form->focus.Focused();
  if (refused_ || focused == nullptr || focused != &form->outside) return;
  emit widget_.editingFinished();
  if (form->Bridge() == nullptr) return;
  // Who edits with this widget, an item view above all, waits for the event of the whole.
  QFocusEvent left(QEvent::FocusOut, Qt::OtherFocusReason);
  QCoreApplication::sendEvent(&widget_, &left);
}

void FieldBridge::Refused(const GabaritoField::Message& message) {
  refused_ = true;
  emit widget_.refused(message.title, message.text);
}

QString FieldBridge::Looked() const {
  return model_->Exists() ? ToQString(kit::ValueNow(*model_)) : QString();
}

void FieldBridge::ListenToKeys() {
  const std::weak_ptr<FieldForm> weak(form_);
  (*model_)->KeyUp([weak](std::int16_t& KeyCode, std::int16_t& Shift) {
    const auto form = weak.lock();
    if (form == nullptr || form->Bridge() == nullptr) return;
    const auto handler = form->Bridge()->keyHandler;
    if (handler) KeyCode = static_cast<std::int16_t>(handler(KeyCode, Shift));
    if (form->Bridge() != nullptr) emit form->Bridge()->widget_.keyUp(KeyCode, Shift);
  });
}

// --- Focus
// --------------------------------------------------------------------------------------------------------

void FieldBridge::FocusCame(QWidget& part) {
  kit::FieldParts* const parts = Parts();
  if (parts == nullptr) return;
  kit::Focusable* receiver = &parts->surface;
  for (int i = 0; i < kInputs; ++i) {
    QWidget* const box = BoxOf(i);
    if (box != nullptr && (box == &part || box->isAncestorOf(&part))) receiver = &Child(i);
  }
  InTurn([&] {
    if (receiver->CanTakeFocus()) form_->focus.Move(*receiver);
  });
}

bool FieldBridge::FocusLeft(QWidget* to) {
  kit::FieldParts* const parts = Parts();
  if (parts == nullptr) return true;
  kit::Focusable* receiver = nullptr;
  for (Outside* const neighbour : neighbours) {
    if (neighbour->widget == to) receiver = neighbour;
  }
  if (receiver == nullptr) {
    form_->outside.name = to == nullptr ? std::string() : to->objectName().toStdString();
    receiver = &form_->outside;
  }
  refused_ = false;
  left_ = true;
  form_->HideNote();
  const auto form = form_;
  InTurn([&] { form->focus.Move(*receiver); });
  const kit::Focusable* const focused = form->focus.Focused();
  return focused == nullptr || focused == receiver;
}

void FieldBridge::ApplyFocus() {
  kit::FieldParts* const parts = Parts();
  kit::Focusable* const wanted = form_->focus.Focused();
  if (parts == nullptr || wanted == nullptr || !made_) return;
  QWidget* target = nullptr;
  if (wanted == &parts->surface) {
    target = &widget_;
    widget_.setFocusProxy(nullptr);
  }
  for (int i = 0; target == nullptr && i < kInputs; ++i) {
    if (wanted == &Child(i)) target = BoxOf(i);
  }
  const bool inside = target != nullptr;
  for (Outside* const neighbour : neighbours) {
    if (wanted == neighbour) target = neighbour->widget;
  }
  if (target == nullptr || widget_.window()->focusWidget() == target) return;
  if (inside) FocusWatch::Instance().Holds(widget_);
  target->setFocus(Qt::OtherFocusReason);
}

// --- Operations
// ---------------------------------------------------------------------------------------------------

std::unique_ptr<GabaritoField> FieldBridge::OnServices(const kit::Services& services, QWidget* parent) {
  return std::unique_ptr<GabaritoField>(new GabaritoField(&services, parent));
}

void FieldBridge::Begin() {
  font_ = FromQt(widget_.font());
  InTurn([&] { model_->Create(); });
  ListenToKeys();
}

bool FieldBridge::Check() {
  const auto form = form_;
  FocusWatch::Instance().Tell();
  if (form->Bridge() == nullptr) return false;
  bool taken = false;
  form->HideNote();
  InTurn([&] {
    refused_ = false;
    (*model_)->Text();
    taken = form->Bridge() != nullptr && !refused_;
  });
  return taken;
}

QStringList FieldBridge::Words() const {
  QStringList words;
  const Variant itens = (*model_)->ComboItens();
  if (const auto* const array = std::get_if<std::shared_ptr<const VariantArray>>(&itens)) {
    for (const Variant& item : (*array)->items) words.append(ToQString(ToText(item)));
  }
  return words;
}

void FieldBridge::SetWords(const QStringList& words) {
  InTurn([&] {
    std::vector<Variant> items;
    for (const QString& word : words) items.emplace_back(word.toStdU16String());
    (*model_)->ComboItens(MakeArray(std::move(items)));
    // They show at the next layout.
    if ((*model_)->Mask() == gbListaNoCombo) model_->Parts().surface.RaiseResize();
  });
}

// --- Of the widget
// ------------------------------------------------------------------------------------------------

void FieldBridge::Resized() {
  kit::FieldParts* const parts = Parts();
  if (parts == nullptr || passing_) return;
  const kit::Geometry& bounds = parts->surface.Bounds();
  const QSize shown(metric_->PixelsAcross(bounds.width), metric_->PixelsDown(bounds.height));
  if (shown == widget_.size()) return;
  // A window is resized in the middle of an entry: what the layout empties is put back.
  InTurn([&] {
    const kit::KeepContent keep(*model_);
    parts->surface.Size(metric_->TwipsAcross(widget_.width()), metric_->TwipsDown(widget_.height()));
  });
}

void FieldBridge::Shown() {
  if (made_) return;
  made_ = true;
  applied_ = nullptr;
  Apply();
}

void FieldBridge::FontChanged() {
  if (passing_ || !model_->Exists()) return;
  const StdFont font = FromQt(widget_.font());
  if (font == font_) return StyleChanged();
  const bool here = InTurn([&] {
    font_ = font;
    (*model_)->Font(std::make_shared<StdFont>(font));
  });
  if (here) StyleChanged();
}

// Another font or style makes other measures, and those another layout.
void FieldBridge::StyleChanged() {
  metric_->Renew();
  kit::FieldParts* const parts = Parts();
  if (passing_ || parts == nullptr) return;
  const bool here = InTurn([&] {
    const kit::KeepContent keep(*model_);
    const float width = metric_->TwipsAcross(widget_.width());
    parts->surface.Size(width, parts->surface.Bounds().height);
    parts->surface.RaiseResize();
  });
  if (here) widget_.updateGeometry();
}

// The ambient colour of a script is its own.
void FieldBridge::PaletteChanged() {
  if (passing_ || form_->Own() == nullptr || !model_->Exists()) return;
  InTurn([&] { model_->Events().UserControl_AmbientChanged(u"BackColor"); });
}

void FieldBridge::EnabledChanged() {
  if (passing_ || !model_->Exists()) return;
  const bool enabled = widget_.isEnabled();
  InTurn([&] { (*model_)->Enabled(enabled); });
}

}  // namespace gabarito::qt
