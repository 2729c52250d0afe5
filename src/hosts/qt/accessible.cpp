#include "hosts/qt/accessible.h"

#include <QtWidgets/QAccessibleWidget>
#include <QtWidgets/QApplication>

#include "hosts/qt/gabarito_field.h"
#include "hosts/qt/line_box.h"

namespace gabarito::qt {
namespace {

// The boxes are widgets of Qt's own and speak for themselves.
class AccessibleField final : public QAccessibleWidget {
 public:
  explicit AccessibleField(GabaritoField& field) : QAccessibleWidget(&field, QAccessible::Grouping) {}

  QString text(QAccessible::Text kind) const override {
    if (kind == QAccessible::Value) return static_cast<GabaritoField*>(widget())->text();
    return QAccessibleWidget::text(kind);
  }
};

QAccessibleInterface* MakeAccessible(const QString&, QObject* object) {
  auto* const box = qobject_cast<LineBox*>(object);
  if (box != nullptr && QAccessible::isActive()) box->ListenToTexts();
  auto* const field = qobject_cast<GabaritoField*>(object);
  return field == nullptr ? nullptr : new AccessibleField(*field);
}

// Qt asks for each widget that is shown, also when nobody is there who could set its text. Listening costs,
// so boxes listen from the moment that there is.
class Arrival final : public QAccessible::ActivationObserver {
 public:
  void accessibilityActiveChanged(bool active) override {
    if (!active) return;
    for (QWidget* const widget : QApplication::allWidgets()) {
      if (auto* const box = qobject_cast<LineBox*>(widget)) box->ListenToTexts();
    }
  }
};

}  // namespace

void InstallAccessibility() {
  static Arrival arrival;
  static const bool once = [] {
    QAccessible::installFactory(MakeAccessible);
    QAccessible::installActivationObserver(&arrival);
    return true;
  }();
  (void)once;
}

}  // namespace gabarito::qt
