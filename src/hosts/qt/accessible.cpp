#include "hosts/qt/accessible.h"

#include <QtWidgets/QAccessibleWidget>

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
  // Who asks for a box may set its text.
  if (auto* const box = qobject_cast<LineBox*>(object)) box->ListenToTexts();
  auto* const field = qobject_cast<GabaritoField*>(object);
  return field == nullptr ? nullptr : new AccessibleField(*field);
}

}  // namespace

void InstallAccessibility() {
  static const bool once = [] {
    QAccessible::installFactory(MakeAccessible);
    return true;
  }();
  (void)once;
}

}  // namespace gabarito::qt
