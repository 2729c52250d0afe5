#include "hosts/qt/focus_watch.h"

#include <QtCore/QCoreApplication>
#include <QtWidgets/QApplication>

#include "hosts/qt/field_bridge.h"

namespace gabarito::qt {
namespace {

// The field that `widget` is a part of; null for none.
GabaritoField* FieldOf(QWidget* widget) {
  for (; widget != nullptr; widget = widget->isWindow() ? nullptr : widget->parentWidget()) {
    if (auto* const field = qobject_cast<GabaritoField*>(widget)) return field;
  }
  return nullptr;
}

}  // namespace

FocusWatch& FocusWatch::Instance() {
  static QPointer<FocusWatch> watch;  // dies with the application, and is made anew for the next one
  if (watch == nullptr) watch = new FocusWatch;
  return *watch;
}

FocusWatch::FocusWatch() : QObject(qApp) {
  connect(qApp, &QApplication::focusChanged, this, &FocusWatch::Changed);
}

void FocusWatch::Changed(QWidget* former, QWidget* now) {
  if (now != nullptr) Mark(*now->window());
  // The focus of a window can be taken away for good without another one that gets it.
  if (former != nullptr && (now == nullptr || now->window() != former->window()) &&
      former->window()->focusWidget() != former) {
    Mark(*former->window());
  }
}

std::size_t FocusWatch::Find(QWidget& window) {
  std::erase_if(windows_, [](const Window& known) { return known.window == nullptr && !known.telling; });
  std::size_t at = 0;
  while (at < windows_.size() && windows_[at].window != &window) ++at;
  if (at == windows_.size()) windows_.emplace_back().window = &window;
  return at;
}

void FocusWatch::Mark(QWidget& window) {
  windows_[Find(window)].marked = true;
  if (posted_) return;
  posted_ = true;
  QCoreApplication::postEvent(this, new QEvent(QEvent::User), Qt::HighEventPriority);
}

void FocusWatch::Holds(QWidget& field) { windows_[Find(*field.window())].holder = &field; }

bool FocusWatch::event(QEvent* event) {
  if (event->type() != QEvent::User) return QObject::event(event);
  posted_ = false;
  Tell();
  return true;
}

void FocusWatch::Tell() {
  // Each step may run anything, so the list is looked through from the start after each.
  for (bool told = true; told;) {
    told = false;
    for (const Window& known : windows_) {
      if (!known.marked || known.telling || known.window == nullptr) continue;
      told = TellOne(known.window);
      break;
    }
  }
}

bool FocusWatch::TellOne(QPointer<QWidget> window) {
  Window& before = windows_[Find(*window)];
  before.marked = false;
  before.telling = true;
  const QPointer<FocusWatch> self(this);
  QWidget* const now = window->focusWidget();
  const QPointer<GabaritoField> target(FieldOf(now));
  const QPointer<GabaritoField> holder(qobject_cast<GabaritoField*>(before.holder));
  bool free = true;  // nobody has taken the focus back
  if (holder != nullptr && holder != target) free = FieldBridge::Of(*holder).FocusLeft(now);
  if (self == nullptr) return false;
  if (window != nullptr && free) windows_[Find(*window)].holder = target;
  if (free && target != nullptr && window != nullptr && window->focusWidget() == now) {
    FieldBridge::Of(*target).FocusCame(*now);
  }
  if (self == nullptr) return false;
  for (Window& known : windows_) {
    if (known.telling && known.window == window) known.telling = false;
  }
  return true;
}

}  // namespace gabarito::qt
