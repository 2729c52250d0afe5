// What users of Qt know, in the boxes of a field: undo, input methods, clipboard, drag and drop.
#include <QtCore/QMimeData>
#include <QtGui/QClipboard>
#include <QtGui/QDropEvent>
#include <QtGui/QInputMethodEvent>
#include <QtWidgets/QMenu>

#include "on_window.h"

namespace gabarito::qt {
namespace {

class Editing : public OnWindow {
 protected:
  void Compose(QLineEdit* box, const QString& preedit, const QString& commit) {
    QInputMethodEvent event(preedit, {});
    if (!commit.isEmpty()) event.setCommitString(commit);
    QCoreApplication::sendEvent(box, &event);
    Settle();
  }
  void Drop(QLineEdit* box, const QString& text) {
    QMimeData data;
    data.setText(text);
    const QPoint at = box->mapTo(window.get(), QPoint(2, 2));
    QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(window->windowHandle(), &enter);
    QDropEvent drop(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(window->windowHandle(), &drop);
    Settle();
  }
};

TEST_F(Editing, UndoTakesTypedCharactersBackAndLeavesRefusedOnesOutOfIt) {
  Show(GabaritoField::gbCPF);
  Enter(field);
  Type("11x1");
  EXPECT_EQ(Box()->text(), "111");
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Box()->text(), "");
  Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Box()->text(), "111");
}

TEST_F(Editing, WhatAnInputMethodComposesPassesTheFilterWhenItIsCommitted) {
  Show(GabaritoField::gbNenhuma);
  Enter(field);
  Compose(Box(), "´", {});
  EXPECT_EQ(Box()->text(), "");
  Compose(Box(), {}, "á");
  EXPECT_EQ(Box()->text(), "á");

  field->setMask(GabaritoField::gbCPF);
  Box()->clear();
  Compose(Box(), {}, "a1b2");
  EXPECT_EQ(Box()->text(), "12");
  Box()->undo();
  EXPECT_EQ(Box()->text(), "") << "what one composition has put in goes with one undo";
}

TEST_F(Editing, DroppedTextPassesTheFilter) {
  Show(GabaritoField::gbCPF);
  Enter(field);
  Drop(Box(), "1a2-3");
  EXPECT_EQ(Box()->text(), "123");
  EXPECT_EQ(Focus(), Box());
}

TEST_F(Editing, PasteByKeyIsTheBoxesOwnAndPasteByMenuPassesTheFilter) {
  Show(GabaritoField::gbCPF);
  Enter(field);
  QGuiApplication::clipboard()->setText("1a2\n3");
  Press(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Box()->text(), "1a2") << "only the key itself is judged, and a box has one line";
  Box()->clear();
  const std::unique_ptr<QMenu> menu(Box()->createStandardContextMenu());
  for (QAction* const action : menu->actions()) {
    if (action->text().contains("Paste")) action->trigger();
  }
  EXPECT_EQ(Box()->text(), "12");
}

TEST_F(Editing, TheMenuCutsTheSelectionAway) {
  for (const auto mask : {GabaritoField::gbCPF, GabaritoField::gbDefUsr}) {
    if (mask == GabaritoField::gbDefUsr) field->setMaskText("###");
    Show(mask);
    Enter(field);
    Type("123");
    Box()->setSelection(0, 2);
    const std::unique_ptr<QMenu> menu(Box()->createStandardContextMenu());
    for (QAction* const action : menu->actions()) {
      if (action->text().contains("Cu&t")) action->trigger();
    }
    EXPECT_EQ(Box()->text(), mask == GabaritoField::gbCPF ? "3" : "__3");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "12");
    field->apagaCampos();
    Enter(before);
  }
}

TEST_F(Editing, ALongPasteGoesThroughAllBoxes) {
  Show(GabaritoField::gbData);
  Enter(field);
  for (const char* const text : {"05/03/2024", "05032024", "05\n03\t2024"}) {
    SCOPED_TRACE(text);
    for (QLineEdit* const box : Boxes()) box->clear();
    Enter(Box(0));
    QGuiApplication::clipboard()->setText(text);
    Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Box(0)->text() + "|" + Box(1)->text() + "|" + Box(2)->text(), "05|03|2024");
  }
}

TEST_F(Editing, ASeparatorLeadsOnWithoutABeep) {
  Show(GabaritoField::gbData);
  Enter(field);
  Type("5/3/24");
  EXPECT_EQ(Box(0)->text() + "|" + Box(1)->text() + "|" + Box(2)->text(), "5|3|24");
  Tab();
  EXPECT_EQ(field->text(), "05/03/2024");
}

TEST_F(Editing, TheMouseSetsTheCaretAndADoubleClickSelects) {
  Show(GabaritoField::gbNenhuma);
  field->setText("ABC DEF");
  QTest::mouseClick(Box(), Qt::LeftButton, {}, QPoint(4, 8));
  Settle();
  EXPECT_FALSE(Box()->hasSelectedText()) << "the click comes after what the focus selects";
  QTest::mouseDClick(Box(), Qt::LeftButton, {}, QPoint(8, 8));
  EXPECT_EQ(Box()->selectedText(), "ABC");
}

TEST_F(Editing, TheMaskedBoxIsChangedByItsEngineAlone) {
  field->setMaskText("##/##");
  Show(GabaritoField::gbDefUsr);
  Enter(field);
  Type("1a2");
  EXPECT_EQ(Box()->text(), "12/__");
  Box()->cut();
  Box()->undo();
  Compose(Box(), {}, "34");
  EXPECT_EQ(Box()->text(), "12/34");
  Press(Qt::Key_Backspace, {}, "\b");
  EXPECT_EQ(Box()->text(), "12/3_");
}

}  // namespace
}  // namespace gabarito::qt
