// The list of a field: one model for all, opened at once, typed into and picked from.
#include <QtGui/QWheelEvent>
#include <QtTest/QAbstractItemModelTester>
#include <QtWidgets/QAbstractItemView>
#include <ctime>

#include "hosts/qt/list_box.h"
#include "on_window.h"

namespace gabarito::qt {
namespace {

class ListOf : public OnWindow {};

TEST_F(ListOf, TheEntriesAreASoundModelSharedByFieldsWithTheSameEntries) {
  auto* const other = new GabaritoField;
  other->setMask(GabaritoField::gbCidadeEstadoPopulado);
  window->layout()->addWidget(other);
  Show(GabaritoField::gbCidadeEstadoPopulado);
  ASSERT_NE(List(), nullptr);
  QAbstractItemModel* const model = List()->model();
  EXPECT_EQ(model->rowCount(), 5652);
  EXPECT_EQ(model, other->findChild<QComboBox*>()->model());
  const QAbstractItemModelTester tester(model, QAbstractItemModelTester::FailureReportingMode::Fatal);
  EXPECT_EQ(model->data(model->index(0, 0)).toString(), List()->itemText(0));
  EXPECT_FALSE(model->data(model->index(5652, 0)).isValid());
}

// Of the processor's time: other programs may run beside the test.
TEST_F(ListOf, TheListOpensInLessThanFiftyMilliseconds) {
  Show(GabaritoField::gbCidadeEstadoPopulado);
  Enter(field);
  const auto milliseconds = [] { return 1000.0 * static_cast<double>(std::clock()) / CLOCKS_PER_SEC; };
  double start = milliseconds();
  Press(Qt::Key_F4);
  EXPECT_TRUE(List()->view()->isVisible());
  EXPECT_LT(milliseconds() - start, 50);
  Press(Qt::Key_F4);
  EXPECT_FALSE(List()->view()->isVisible());
  start = milliseconds();
  Press(Qt::Key_Down, Qt::AltModifier);
  EXPECT_TRUE(List()->view()->isVisible());
  EXPECT_LT(milliseconds() - start, 50);
}

TEST_F(ListOf, TypingGoesOnInTheOpenListAndTheChoiceIsShownInIt) {
  Show(GabaritoField::gbEstado);
  Enter(field);
  Type("s");
  EXPECT_TRUE(List()->view()->isVisible());
  EXPECT_EQ(List()->currentText(), "SP");
  EXPECT_EQ(List()->lineEdit()->selectedText(), "P");
  Type("c");
  EXPECT_EQ(List()->currentText(), "SC");
  EXPECT_EQ(List()->view()->currentIndex().data().toString(), "SC");
  Type("x");
  EXPECT_EQ(List()->currentText(), "SC") << "no entry begins so: refused";
  Press(Qt::Key_Return, {}, "\r");
  EXPECT_FALSE(List()->view()->isVisible());
  EXPECT_EQ(field->text(), "SC");
}

TEST_F(ListOf, TabClosesTheOpenListAndGoesOn) {
  Show(GabaritoField::gbEstado);
  Enter(field);
  Type("r");
  ASSERT_TRUE(List()->view()->isVisible());
  Tab();
  EXPECT_FALSE(List()->view()->isVisible());
  EXPECT_EQ(Focus(), after);
}

TEST_F(ListOf, ArrowsWheelAndMouseChoose) {
  Show(GabaritoField::gbEstado);
  Enter(field);
  Press(Qt::Key_Down);
  EXPECT_EQ(field->comboListIndex(), 0);
  QWheelEvent wheel(QPointF(5, 5), List()->mapToGlobal(QPointF(5, 5)), {}, QPoint(0, -120), Qt::NoButton, {},
                    Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(List(), &wheel);
  EXPECT_EQ(field->comboListIndex(), 1);
  Press(Qt::Key_F4);
  QAbstractItemView* const view = List()->view();
  const QModelIndex third = view->model()->index(2, 0);
  // The list takes a press only a moment after it has opened.
  QTest::qWait(QApplication::doubleClickInterval() + 50);
  QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(third).center());
  Settle();
  EXPECT_EQ(field->comboListIndex(), 2);
  EXPECT_EQ(field->text(), third.data().toString());
  EXPECT_FALSE(view->isVisible());
}

TEST_F(ListOf, TheWordsMayBeSetBeforeOrAfterTheKind) {
  Show(GabaritoField::gbListaNoCombo);
  field->setComboItens({"Azul", "Verde"});
  EXPECT_EQ(field->comboListCount(), 2);
  field->setText("verde");
  EXPECT_EQ(field->text(), "Verde");
  EXPECT_EQ(field->comboItens(), QStringList({"Azul", "Verde"}));
  field->apagaCampos();
  EXPECT_EQ(field->comboListCount(), 0);
}

}  // namespace
}  // namespace gabarito::qt
