// The field as a widget among others: properties, sizes, item delegates, data mappers, accessibility.
#include <QtCore/QMetaEnum>
#include <QtGui/QAccessible>
#include <QtGui/QStandardItemModel>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QDataWidgetMapper>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QItemEditorFactory>
#include <QtWidgets/QLabel>
#include <QtWidgets/QStyledItemDelegate>
#include <QtWidgets/QTableView>

#include "gabarito/control/especie.h"
#include "on_window.h"
#include "ui_form.h"

namespace gabarito::qt {
namespace {

class WidgetOf : public OnWindow {};

TEST_F(WidgetOf, EveryPropertyReadsBackWhatWasWritten) {
  const struct {
    const char* name;
    QVariant value;
  } rows[] = {
      {"appearance", GabaritoField::Flat},
      {"maskText", "##-##"},
      {"mask", GabaritoField::gbCEP},
      {"maxLength", 12},
      {"usarFundoPastel", false},
      {"trataEnterComoTab", true},
      {"cnpjAlfanumerico", true},
      {"preencherDatasInvalidasComDataDeHoje", false},
      {"backColor", QColor(10, 20, 30)},
      {"messageMode", GabaritoField::InPlace},
      {"comboItens", QStringList({"um", "dois"})},
      {"enabled", false},
  };
  for (const auto& row : rows) {
    ASSERT_TRUE(field->setProperty(row.name, row.value)) << row.name;
    const QVariant read = field->property(row.name);
    const bool number = row.value.typeId() == QMetaType::Int;  // of an enum too
    EXPECT_TRUE(number ? read.toInt() == row.value.toInt() : read == row.value) << row.name;
  }
  EXPECT_STREQ(GabaritoField::staticMetaObject.userProperty().name(), "text");
  EXPECT_EQ(field->property("maskText"), "##-##") << "another kind leaves it in place";
}

TEST_F(WidgetOf, ItsKindsAreThoseOfTheField) {
  const QMetaEnum own = QMetaEnum::fromType<GabaritoField::Mask>();
  EXPECT_EQ(own.keyCount(), static_cast<int>(Especies().size()));
  for (const EspecieDescrita& kind : Especies()) {
    EXPECT_EQ(own.keyToValue(std::string(kind.nome).c_str()), kind.valor) << kind.nome;
  }
}

TEST_F(WidgetOf, AnInvalidColourIsNone) {
  Show(GabaritoField::gbCPF);
  field->setBackColor(QColor(10, 20, 30));
  EXPECT_EQ(Box()->palette().color(QPalette::Base), QColor(10, 20, 30));
  field->setBackColor(QColor());
  EXPECT_EQ(Box()->palette().color(QPalette::Base), window->palette().color(QPalette::Base));
}

TEST_F(WidgetOf, ReadingTheTextOnlyLooks) {
  Show(GabaritoField::gbCPF);
  Enter(field);
  Type("123");
  EXPECT_EQ(field->property("text").toString(), "");
  EXPECT_TRUE(shown.isEmpty());
  EXPECT_EQ(Box()->text(), "123");
  Box()->selectAll();
  Type("11144477735");
  EXPECT_EQ(field->property("text").toString(), "111.444.777-35");
  EXPECT_EQ(Box()->text(), "11144477735") << "nothing is rewritten";
  EXPECT_TRUE(field->check());
  EXPECT_EQ(Box()->text(), "111.444.777-35");
  field->setText("1");
  EXPECT_FALSE(field->check());
  EXPECT_EQ(shown.size(), 1);
}

TEST_F(WidgetOf, TheValueIsToldEachTimeItBecomesAnotherOne) {
  Show(GabaritoField::gbInteiro);
  QSignalSpy told(field, &GabaritoField::textChanged);
  Enter(field);
  Type("1x2");
  field->setText("7");
  field->setText("7");
  QStringList values;
  for (const auto& call : told) values.append(call[0].toString());
  EXPECT_EQ(values, QStringList({"1", "12", "7"}));
}

TEST_F(WidgetOf, KeysAreToldAndTheirCodeMayBeChanged) {
  Show(GabaritoField::gbNenhuma);
  Enter(field);
  QSignalSpy keys(field, &GabaritoField::keyUp);
  Type("a");
  ASSERT_EQ(keys.count(), 1);
  EXPECT_EQ(keys[0], (QVariantList{65, 0}));
  field->setKeyHandler([](int keyCode, int) { return keyCode == Qt::Key_A ? 46 : keyCode; });
  Box()->setCursorPosition(0);
  Type("a");
  EXPECT_EQ(Box()->text(), "a") << "the key acts as Delete, its character still arrives";
}

TEST_F(WidgetOf, AResizeAnotherPageOrAnotherFontKeepsWhatWasEntered) {
  Show(GabaritoField::gbData);
  Enter(field);
  Type("050320");
  window->resize(500, 200);
  window->hide();
  window->show();
  QFont font = field->font();
  font.setPointSizeF(font.pointSizeF() * 2);
  const int height = field->sizeHint().height();
  field->setFont(font);
  Settle();
  EXPECT_EQ(Box(0)->text() + "|" + Box(1)->text() + "|" + Box(2)->text(), "05|03|20");
  EXPECT_GT(field->sizeHint().height(), height);
  EXPECT_GE(Box(0)->height(), Box(0)->fontMetrics().height());
}

TEST_F(WidgetOf, BoxesAreMadeWhenTheyAreFirstShown) {
  field->setMask(GabaritoField::gbCPF);
  EXPECT_TRUE(field->findChildren<QWidget*>().isEmpty());
  Show(GabaritoField::gbCPF);
  EXPECT_EQ(field->findChildren<QWidget*>().size(), 1);
}

TEST_F(WidgetOf, TwoDigitsFitInADayAndFourInAYear) {
  QFont font = field->font();
  for (const double points : {8.0, 11.0, 16.0}) {
    font.setPointSizeF(points);
    field->setFont(font);
    Show(GabaritoField::gbData);
    Settle();
    for (const auto& [box, digits] : {std::pair(0, 2), std::pair(2, 4)}) {
      const int text = Box(box)->fontMetrics().horizontalAdvance(QString(digits, '0'));
      EXPECT_GE(Box(box)->width(), text + 6) << points << " points, box " << box;
      EXPECT_LE(Box(box)->width(), 2 * text + 12) << points << " points, box " << box;
    }
  }
}

// What the eye sees of a text, in pixels of the widget: dark on light, inside the frame.
QSizeF Ink(QWidget& box) {
  const QImage image = box.grab().toImage();
  const double scale = image.devicePixelRatio();
  const int frame = static_cast<int>(3 * scale);
  QRect ink;
  for (int y = frame; y < image.height() - frame; ++y) {
    for (int x = frame; x < image.width() - frame; ++x) {
      if (image.pixelColor(x, y).lightness() < 128) ink |= QRect(x, y, 1, 1);
    }
  }
  return QSizeF(ink.size()) / scale;
}

TEST_F(WidgetOf, TextsAreDrawnWhole) {
  const struct {
    GabaritoField::Mask mask;
    const char* text;
  } rows[] = {{GabaritoField::gbData, "28/10/2088"},    {GabaritoField::gbHora, "20:58"},
              {GabaritoField::gbMesAno, "08/2088"},     {GabaritoField::gbCEP, "88888-888"},
              {GabaritoField::gbCPF, "111.444.777-35"}, {GabaritoField::gbEstado, "SP"}};
  QFont font = field->font();
  for (const double points : {8.0, 13.0, 20.0}) {
    font.setPointSizeF(points);
    field->setFont(font);
    for (const auto& row : rows) {
      Show(row.mask);
      field->setText(row.text);
      window->resize(window->sizeHint().expandedTo(QSize(400, 150)));
      Settle();
      for (QLineEdit* const box : Boxes()) {
        EXPECT_TRUE(field->rect().contains(QRect(box->mapTo(field, QPoint()), box->size())));
        QLineEdit roomy(box->text());
        roomy.setFont(box->font());
        roomy.resize(600, 100);
        const QSizeF whole = Ink(roomy), seen = Ink(*box);
        EXPECT_NEAR(seen.width(), whole.width(), 1) << box->text().toStdString() << " at " << points;
        EXPECT_NEAR(seen.height(), whole.height(), 1) << box->text().toStdString() << " at " << points;
      }
    }
  }
}

TEST_F(WidgetOf, ItsTextStandsAsHighAsThatOfALineEditBesideALabel) {
  QWidget form;
  QFormLayout rows(&form);
  rows.addRow("Nome", new QLineEdit);
  for (const auto mask : {GabaritoField::gbCPF, GabaritoField::gbData, GabaritoField::gbEstado}) {
    auto* const added = new GabaritoField;
    added->setMask(mask);
    rows.addRow("Nome", added);
  }
  for (const double points : {8.0, 11.0, 20.0}) {
    QFont font = form.font();
    font.setPointSizeF(points);
    form.setFont(font);
    form.show();
    Settle();
    const auto off = [&](int row) {
      QWidget* const label = rows.itemAt(row, QFormLayout::LabelRole)->widget();
      QWidget* const entry = rows.itemAt(row, QFormLayout::FieldRole)->widget();
      auto* const box = row == 0 ? entry : entry->findChild<QLineEdit*>();
      return box->mapTo(&form, QPointF(0, box->height() / 2.0)).y() - QRectF(label->geometry()).center().y();
    };
    for (int row = 1; row < rows.rowCount(); ++row) EXPECT_NEAR(off(row), off(0), 1) << row << ' ' << points;
  }
}

TEST_F(WidgetOf, PalettesStyleSheetsAndDirectionReachTheBoxes) {
  Show(GabaritoField::gbData);
  Enter(before);
  window->setStyleSheet("GabaritoField QLineEdit { color: rgb(1, 2, 3); }");
  EXPECT_EQ(Box(0)->palette().color(QPalette::Text), QColor(1, 2, 3));
  window->setStyleSheet({});
  QPalette palette = window->palette();
  palette.setColor(QPalette::Base, QColor(4, 5, 6));
  palette.setColor(QPalette::Window, QColor(7, 8, 9));
  window->setPalette(palette);
  Settle();
  for (const QLabel* const separator : field->findChildren<QLabel*>())
    EXPECT_FALSE(separator->autoFillBackground());
  EXPECT_EQ(Box(0)->palette().color(QPalette::Base), QColor(4, 5, 6));
  Enter(field);
  EXPECT_EQ(Box(0)->palette().color(QPalette::Base), QColor(255, 255, 210));
  window->setLayoutDirection(Qt::RightToLeft);
  Settle();
  EXPECT_EQ(Boxes().last()->geometry().right(), field->rect().right())
      << "the row stands where reading begins";
  EXPECT_EQ(Box(0)->accessibleName(), "dia");
}

TEST_F(WidgetOf, ADisabledFieldTakesNeitherFocusNorKeys) {
  Show(GabaritoField::gbHora);
  Enter(field);
  field->setEnabled(false);
  Settle();
  EXPECT_FALSE(field->isAncestorOf(Focus()));
  Enter(before);
  Tab();
  EXPECT_EQ(Focus(), after);
  field->setEnabled(true);
  Enter(field);
  Type("1");
  EXPECT_EQ(Box(0)->text(), "1");
}

TEST_F(WidgetOf, ADataMapperReadsAndWritesIt) {
  Show(GabaritoField::gbCPF);
  QStandardItemModel model(1, 1);
  model.setData(model.index(0, 0), "11144477735");
  QDataWidgetMapper mapper;
  mapper.setModel(&model);
  mapper.addMapping(field, 0);
  mapper.toFirst();
  EXPECT_EQ(field->text(), "111.444.777-35");
  Enter(field);
  Type("52998224725");
  Enter(after);
  EXPECT_EQ(model.data(model.index(0, 0)).toString(), "529.982.247-25") << "submitted when the field is left";
}

TEST_F(WidgetOf, AFormOfDesignerIsCompiledIntoTheSameFields) {
  QWidget form;
  Ui::Form ui;
  ui.setupUi(&form);
  EXPECT_EQ(ui.cpf->mask(), GabaritoField::gbCPF);
  EXPECT_TRUE(ui.birth->trataEnterComoTab());
  EXPECT_EQ(ui.colour->text(), "Verde");
  EXPECT_EQ(ui.cpfLabel->buddy(), ui.cpf);
}

class CpfDelegate final : public QStyledItemDelegate {
 public:
  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex&) const override {
    auto* const made = new GabaritoField(parent);
    made->setMask(GabaritoField::gbCPF);
    made->setMessageHandler([](const GabaritoField::Message&) { return false; });
    return made;
  }
};

TEST_F(WidgetOf, AnItemViewEditsWithIt) {
  QStandardItemModel model(2, 1);
  QTableView view;
  CpfDelegate delegate;
  view.setItemDelegate(&delegate);
  view.setModel(&model);
  window->layout()->addWidget(&view);
  window->resize(400, 400);
  Show(GabaritoField::gbNenhuma);
  view.setFocus();
  view.setCurrentIndex(model.index(0, 0));
  view.edit(model.index(0, 0));
  Settle();
  QTest::keyClicks(window->focusWidget(), "11144477735");
  Enter(after);
  EXPECT_EQ(model.data(model.index(0, 0)).toString(), "111.444.777-35");
  view.setParent(nullptr);
}

TEST_F(WidgetOf, ToAssistiveTechnologyItIsAGroupOfNamedBoxes) {
  auto* const label = new QLabel("&Nascimento");
  label->setBuddy(field);
  window->layout()->addWidget(label);
  Show(GabaritoField::gbData);
  QAccessibleInterface* const group = QAccessible::queryAccessibleInterface(field);
  ASSERT_NE(group, nullptr);
  EXPECT_EQ(group->role(), QAccessible::Grouping);
  EXPECT_EQ(group->text(QAccessible::Name), "Nascimento");
  QStringList names;
  for (int i = 0; i < group->childCount(); ++i) {
    QAccessibleInterface* const child = group->child(i);
    if (child->role() != QAccessible::EditableText) continue;
    names.append(child->text(QAccessible::Name));
    EXPECT_EQ(child->parent()->object(), field);
  }
  EXPECT_EQ(names, QStringList({"dia", "mês", "ano"}));

  field->setMask(GabaritoField::gbCidadeEstado);
  EXPECT_EQ(QAccessible::queryAccessibleInterface(Box(0))->text(QAccessible::Name), "cidade");
  EXPECT_EQ(QAccessible::queryAccessibleInterface(List())->text(QAccessible::Name), "UF");
}

TEST_F(WidgetOf, WhatAssistiveTechnologyWritesPassesTheFilter) {
  const struct {
    GabaritoField::Mask mask;
    std::function<void(QAccessibleInterface&)> write;
    QString shown;
  } rows[] = {
      {GabaritoField::gbCPF, [](auto& box) { box.editableTextInterface()->insertText(0, "1a2-3"); }, "123"},
      {GabaritoField::gbCPF, [](auto& box) { box.setText(QAccessible::Value, "111.444.777x35"); },
       "11144477735"},
      {GabaritoField::gbInteiro,
       [](auto& box) {
         box.setText(QAccessible::Value, "1234");
         box.editableTextInterface()->deleteText(1, 2);
         box.editableTextInterface()->replaceText(1, 2, "5x6");
       },
       "1564"},
      {GabaritoField::gbDefUsr, [](auto& box) { box.setText(QAccessible::Value, "1x2"); }, "12/__"},
      {GabaritoField::gbHora, [](auto& box) { box.setText(QAccessible::Value, "1020"); }, "10:20"},
      {GabaritoField::gbEstado, [](auto& box) { box.setText(QAccessible::Value, "r"); }, "RJ"},
  };
  field->setMaskText("##/##");
  for (const auto& row : rows) {
    Show(row.mask);
    Settle();
    QAccessible::setActive(true);  // before some of the boxes are made, and after others
    QLineEdit* const box = List() != nullptr && List()->isVisible() ? List()->lineEdit() : Box();
    QAccessibleInterface* const written = QAccessible::queryAccessibleInterface(box);
    row.write(*written);
    Settle();
    EXPECT_EQ(row.mask == GabaritoField::gbHora ? field->text() : box->text(), row.shown) << row.mask;
    EXPECT_TRUE(field->isAncestorOf(Focus())) << row.mask;
    field->apagaCampos();
    Enter(before);
  }
  QAccessible::setActive(false);
}

class NoteOf : public WidgetOf {
 protected:
  void Refuse() {
    field->setMessageHandler({});
    field->setMessageMode(GabaritoField::InPlace);
    Show(GabaritoField::gbCPF);
    Enter(field);
    Box()->clear();
    Type("123");
    Tab();
  }
  QLabel* Note() const {
    for (QLabel* const note : window->findChildren<QLabel*>("gabarito_note")) {
      if (note->isVisible()) return note;
    }
    return nullptr;
  }
};

TEST_F(NoteOf, WaitsForNobodyAndGoesWithWhatItSpeaksOf) {
  const struct {
    const char* what;
    std::function<void(NoteOf&)> act;
  } rows[] = {
      {"a key", [](NoteOf& t) { t.Type("1"); }},
      {"a value", [](NoteOf& t) { t.field->setText("11144477735"); }},
      {"another kind", [](NoteOf& t) { t.field->setMask(GabaritoField::gbData); }},
      {"emptied", [](NoteOf& t) { t.field->apagaCampos(); }},
      {"left with a value that came without a key",
       [](NoteOf& t) {
         t.Box()->setText("11144477735");
         t.Enter(t.after);
         EXPECT_EQ(t.Focus(), t.after);
       }},
      {"checked",
       [](NoteOf& t) {
         t.Box()->setText("11144477735");
         EXPECT_TRUE(t.field->check());
       }},
      {"hidden", [](NoteOf& t) { t.field->hide(); }},
      {"on another window", [](NoteOf& t) { t.field->setParent(nullptr); }},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    window->layout()->addWidget(field);
    field->show();
    Refuse();
    ASSERT_NE(Note(), nullptr);
    EXPECT_EQ(Note()->text(), "O CPF informado é inválido.");
    EXPECT_EQ(field->accessibleDescription(), Note()->text()) << "and is announced";
    EXPECT_EQ(Focus(), Box());
    row.act(*this);
    EXPECT_EQ(Note(), nullptr);
    EXPECT_TRUE(field->accessibleDescription().isEmpty());
  }
  delete field;
}

TEST_F(NoteOf, StandsInsideTheWindowBesideTheField) {
  for (const int down : {0, 2}) {
    auto* const rows = static_cast<QVBoxLayout*>(window->layout());
    rows->insertWidget(down, field);
    Refuse();
    window->resize(400, window->minimumSizeHint().height());
    Settle();
    Tab();
    ASSERT_NE(Note(), nullptr);
    EXPECT_TRUE(window->rect().contains(Note()->geometry())) << down;
    EXPECT_FALSE(field->geometry().intersects(Note()->geometry())) << down;
    EXPECT_EQ(Note()->y() < field->y(), down == 2);
  }
  window->resize(window->minimumSizeHint().width(), window->height());
  Tab();
  EXPECT_TRUE(window->rect().contains(Note()->geometry())) << "in a narrow window";
}

}  // namespace
}  // namespace gabarito::qt
