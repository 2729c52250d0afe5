// The focus: in and out of the field, among foreign widgets, and with messages on the way.
#include <QtCore/QTimer>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QDialog>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QTabWidget>

#include "on_window.h"

namespace gabarito::qt {
namespace {

class FocusOf : public OnWindow {};

TEST_F(FocusOf, TabGoesThroughTheBoxesOfAFieldInItsPlaceAmongTheOthers) {
  Show(GabaritoField::gbData);
  QList<QWidget*> visited;
  for (int i = 0; i < 5; ++i) {
    Tab();
    visited.append(Focus());
  }
  EXPECT_EQ(visited, (QList<QWidget*>{Box(0), Box(1), Box(2), after, before}));
  BackTab();
  BackTab();
  EXPECT_EQ(Focus(), Box(2));
}

TEST_F(FocusOf, TheOrderOfOthersIsKeptWhenTheFieldIsPutElsewhere) {
  Show(GabaritoField::gbHora);
  QWidget::setTabOrder(before, after);
  QWidget::setTabOrder(after, field);
  QList<QWidget*> visited;
  for (int i = 0; i < 4; ++i) {
    Tab();
    visited.append(Focus());
  }
  EXPECT_EQ(visited, (QList<QWidget*>{after, Box(0), Box(1), before}));
}

TEST_F(FocusOf, AFilledBoxLeadsOnAndBackspaceLeadsBackInsideTheFieldOnly) {
  Show(GabaritoField::gbData);
  Enter(field);
  Type("05");
  EXPECT_EQ(Focus(), Box(1));
  Press(Qt::Key_Backspace, {}, "\b");
  EXPECT_EQ(Focus(), Box(0));
  Press(Qt::Key_Backspace, {}, "\b");
  Press(Qt::Key_Backspace, {}, "\b");
  EXPECT_EQ(Focus(), Box(0)) << "a person who empties the first box is not thrown out of the field";
}

// All in the queue of the window system before the first is looked at, as from a fast typist or a scanner.
TEST_F(FocusOf, KeysTypedAheadComeBehindTheTabThatTheFieldSends) {
  Show(GabaritoField::gbData);
  Enter(field);
  for (const QChar digit : QStringLiteral("05032024")) {
    QWindow* const to = window->windowHandle();
    qt_handleKeyEvent(to, QEvent::KeyPress, digit.unicode(), {}, QString(digit));
    qt_handleKeyEvent(to, QEvent::KeyRelease, digit.unicode(), {}, QString(digit));
  }
  Settle();
  EXPECT_EQ(Box(0)->text() + "|" + Box(1)->text() + "|" + Box(2)->text(), "05|03|2024");
}

TEST_F(FocusOf, ARefusalInAFocusChangeKeepsTheFocusAndIsShownOnce) {
  Show(GabaritoField::gbCPF);
  QSignalSpy finished(field, &GabaritoField::editingFinished);
  Enter(field);
  Type("123");
  Tab();
  EXPECT_EQ(shown, QStringList("O CPF informado é inválido."));
  EXPECT_EQ(refusals.size(), 1);
  EXPECT_EQ(Focus(), Box());
  EXPECT_EQ(finished.count(), 0);
  Box()->selectAll();
  Type("11144477735");
  Tab();
  EXPECT_EQ(Focus(), after);
  EXPECT_EQ(finished.count(), 1);
  EXPECT_EQ(field->text(), "111.444.777-35");
}

TEST_F(FocusOf, AModalBoxInAFocusChangeNeitherLosesTheFocusNorLoops) {
  Show(GabaritoField::gbCPF);
  field->setMessageHandler({});
  Enter(field);
  Type("123");
  int boxes = 0;
  QTimer closer;
  QObject::connect(&closer, &QTimer::timeout, [&] {
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr) return;
    ++boxes;
    EXPECT_EQ(box->text(), "O CPF informado é inválido.");
    EXPECT_EQ(box->parentWidget(), window.get());
    box->accept();
  });
  closer.start(10);
  Tab();
  QTest::qWait(100);
  EXPECT_EQ(boxes, 1);
  EXPECT_EQ(Focus(), Box());
}

TEST_F(FocusOf, TwoFieldsThatBothRefuseDoNotChaseEachOther) {
  auto* const other = new GabaritoField;
  other->setMask(GabaritoField::gbCNPJ);
  int told = 0;
  other->setMessageHandler([&](const GabaritoField::Message&) { return ++told > 100; });
  window->layout()->addWidget(other);
  Show(GabaritoField::gbCPF);
  QWidget::setTabOrder(field, other);
  other->setText("1");
  Enter(field);
  Type("123");
  Tab();
  EXPECT_EQ(shown.size(), 1);
  EXPECT_EQ(told, 0) << "it has never had the focus";
  EXPECT_EQ(Focus(), Box());
}

TEST_F(FocusOf, AnotherWindowThatBecomesActiveIsNoLeaving) {
  Show(GabaritoField::gbCPF);
  Enter(field);
  Type("123");
  QWidget other;
  other.show();
  other.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  Settle();
  EXPECT_TRUE(shown.isEmpty());
  window->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  Type("4");
  EXPECT_EQ(Box()->text(), "1234");
}

TEST_F(FocusOf, KeysReachAFieldInAWindowThatIsNotActive) {
  Show(GabaritoField::gbHora);
  QWidget other;
  other.show();
  other.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  field->setFocus();
  QTest::keyClicks(Box(0), "10");
  window->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  Settle();
  EXPECT_EQ(Box(0)->text(), "10");
  EXPECT_EQ(Focus(), Box(0)) << "what the field sends goes to the active window, as keys of a keyboard do";
}

TEST_F(FocusOf, ButtonsScrollAreasAndTabsAroundItTakeTheirTurn) {
  QWidget form;
  auto* const layout = new QVBoxLayout(&form);
  auto* const button = new QPushButton("OK");
  auto* const area = new QScrollArea;
  auto* const inner = new GabaritoField;
  inner->setMask(GabaritoField::gbMesAno);
  area->setWidget(inner);
  auto* const tabs = new QTabWidget;
  auto* const page = new GabaritoField;
  page->setMask(GabaritoField::gbCPF);
  tabs->addTab(page, "Um");
  layout->addWidget(button);
  layout->addWidget(area);
  layout->addWidget(tabs);
  form.show();
  form.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
  button->setFocus();
  QStringList visited;
  for (int i = 0; i < 6; ++i) {
    QTest::keyClick(form.windowHandle(), Qt::Key_Tab);
    Settle();
    QWidget* const focus = form.focusWidget();
    visited.append(page->isAncestorOf(focus)    ? "CPF"
                   : inner->isAncestorOf(focus) ? focus->accessibleName()
                                                : focus->metaObject()->className());
  }
  EXPECT_EQ(visited.join(' ').toStdString(), "QScrollArea mês ano QTabBar CPF QPushButton");
}

TEST_F(FocusOf, EnterPressesTheButtonOfADialogUnlessItMovesOn) {
  QDialog dialog;
  auto* const layout = new QVBoxLayout(&dialog);
  auto* const cpf = new GabaritoField;
  cpf->setMask(GabaritoField::gbCPF);
  auto* const ok = new QPushButton("OK");
  ok->setDefault(true);
  int pressed = 0;
  QString value;
  QObject::connect(ok, &QPushButton::clicked, [&] {
    ++pressed;
    value = cpf->text();
  });
  layout->addWidget(cpf);
  layout->addWidget(ok);
  dialog.show();
  dialog.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
  cpf->setFocus();
  Settle();
  QTest::keyClicks(dialog.windowHandle()->focusObject() ? dialog.focusWidget() : cpf, "11144477735");
  QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
  EXPECT_EQ(pressed, 1);
  EXPECT_EQ(value, "111.444.777-35") << "the value is right while the focus is still in the field";
  cpf->setTrataEnterComoTab(true);
  QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
  Settle();
  EXPECT_EQ(pressed, 1);
  EXPECT_EQ(dialog.focusWidget(), ok);
  cpf->setFocus();
  QTest::keyClick(dialog.focusWidget(), Qt::Key_Escape);
  EXPECT_FALSE(dialog.isVisible());
}

}  // namespace
}  // namespace gabarito::qt
