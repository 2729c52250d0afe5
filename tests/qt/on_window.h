// A window with a line edit, a field and another line edit, for tests: shown, active, typed into as by a
// person.
#ifndef TESTS_QT_ON_WINDOW_H
#define TESTS_QT_ON_WINDOW_H

#include <gtest/gtest.h>

#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QVBoxLayout>
#include <memory>

#include "hosts/qt/gabarito_field.h"

namespace gabarito::qt {

class OnWindow : public testing::Test {
 public:
  OnWindow() {
    Furnish();
    QObject::connect(
        field, &GabaritoField::refused, field,
        [this](const QString& title, const QString& text) { refusals.append(title + ": " + text); });
    field->setMessageHandler([this](const GabaritoField::Message& message) {
      shown.append(message.text);
      return false;
    });
  }

  void Furnish() {
    auto* const layout = new QVBoxLayout(window.get());
    layout->addWidget(before);
    layout->addWidget(field);
    layout->addWidget(after);
  }

  void Show(GabaritoField::Mask mask) {
    field->setMask(mask);
    window->resize(400, 150);
    window->show();
    window->activateWindow();
    before->setFocus();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  }

  static void Settle() {
    for (int i = 0; i < 3; ++i) {
      QCoreApplication::processEvents();
      QCoreApplication::sendPostedEvents();
    }
  }

  // By the window system, into whatever has the focus.
  void Type(const QString& text) {
    for (const QChar character : text) Press(Qt::Key(character.toUpper().unicode()), {}, QString(character));
  }
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}, const QString& text = {}) {
    QWindow* const to = window->windowHandle();
    qt_handleKeyEvent(to, QEvent::KeyPress, key, modifiers, text);
    qt_handleKeyEvent(to, QEvent::KeyRelease, key, modifiers, text);
    Settle();
  }
  void Tab() { Press(Qt::Key_Tab, {}, QStringLiteral("\t")); }
  void BackTab() { Press(Qt::Key_Backtab, Qt::ShiftModifier, QStringLiteral("\t")); }
  void Enter(QWidget* widget) {
    widget->setFocus();
    Settle();
  }

  // The boxes on show, in their order on the field.
  QList<QLineEdit*> Boxes() const {
    QList<QLineEdit*> boxes;
    for (QLineEdit* const box : field->findChildren<QLineEdit*>()) {
      if (box->isVisible()) boxes.append(box);
    }
    std::sort(boxes.begin(), boxes.end(), [this](QLineEdit* a, QLineEdit* b) {
      return a->mapTo(field, QPoint()).x() < b->mapTo(field, QPoint()).x();
    });
    return boxes;
  }
  QLineEdit* Box(int index = 0) const { return Boxes().value(index); }
  QComboBox* List() const { return field->findChild<QComboBox*>(); }
  QWidget* Focus() const { return window->focusWidget(); }

  std::unique_ptr<QWidget> window = std::make_unique<QWidget>();
  QLineEdit* before = new QLineEdit;
  QPointer<GabaritoField> field = new GabaritoField;
  QLineEdit* after = new QLineEdit;
  QStringList refusals, shown;
};

}  // namespace gabarito::qt

#endif  // TESTS_QT_ON_WINDOW_H
