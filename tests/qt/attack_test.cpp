// Programs that do anything at any moment, and texts of any kind: nothing is lost, nothing falls.
#include <QtCore/QTimer>
#include <QtGui/QClipboard>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QSpinBox>
#include <random>

#include "on_window.h"

namespace gabarito::qt {
namespace {

class AttackOn : public OnWindow {
 public:
  // Runs `action` while the first message box is open, then closes it if it still is.
  void DuringAMessage(std::function<void()> action) {
    field->setMessageHandler({});
    QTimer::singleShot(20, qApp, [action = std::move(action)] {
      ASSERT_NE(QApplication::activeModalWidget(), nullptr);
      action();
      QTimer::singleShot(20, qApp, [] {
        if (QWidget* const box = QApplication::activeModalWidget()) box->close();
      });
    });
  }
  std::unique_ptr<QWidget> elsewhere;
  // A new window for the next row.
  void Renew() {
    elsewhere.reset();
    window = std::make_unique<QWidget>();
    before = new QLineEdit;
    field = new GabaritoField;
    after = new QLineEdit;
    Furnish();
    field->setMessageHandler([](const GabaritoField::Message&) { return false; });
  }
  void LeaveWithABadCpf() {
    Show(GabaritoField::gbCPF);
    Enter(field);
    Type("123");
  }
};

TEST_F(AttackOn, TheFieldIsDeletedFromItsOwnSignals) {
  const struct {
    const char* what;
    std::function<void(OnWindow&, GabaritoField&)> listen;
  } rows[] = {
      {"keyUp",
       [](OnWindow&, GabaritoField& f) { QObject::connect(&f, &GabaritoField::keyUp, [&f] { delete &f; }); }},
      {"textChanged",
       [](OnWindow&, GabaritoField& f) {
         QObject::connect(&f, &GabaritoField::textChanged, [&f] { delete &f; });
       }},
      {"editingFinished",
       [](OnWindow&, GabaritoField& f) {
         QObject::connect(&f, &GabaritoField::editingFinished, [&f] { delete &f; });
       }},
      {"key handler",
       [](OnWindow&, GabaritoField& f) {
         f.setKeyHandler([&f](int keyCode, int) {
           delete &f;
           return keyCode;
         });
       }},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    QPointer<GabaritoField> victim(new GabaritoField);
    victim->setMask(GabaritoField::gbInteiro);
    window->layout()->addWidget(victim);
    window->show();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    row.listen(*this, *victim);
    Enter(victim);
    Type("1");
    Enter(after);
    EXPECT_EQ(victim, nullptr);
    Type("ok");
    EXPECT_EQ(after->text().right(2), "ok");
    after->clear();
  }
}

TEST_F(AttackOn, RefusedDeletesTheField) {
  LeaveWithABadCpf();
  QObject::connect(field, &GabaritoField::refused, [this] { delete field; });
  Tab();
  EXPECT_EQ(field, nullptr);
  EXPECT_EQ(Focus(), after);
}

// Code of the program that runs where nothing of the field's own is told.
TEST_F(AttackOn, TheFieldIsDeletedInTheMiddleOfItsOwnWork) {
  const struct {
    const char* what;
    const char* typed;
    std::function<void(AttackOn&, std::function<void()> remove)> act;
  } rows[] = {
      {"a check that tells of the leaving first", "11144477735",
       [](AttackOn& t, auto remove) {
         QObject::connect(t.field, &GabaritoField::editingFinished, remove);
         t.after->setFocus();
         EXPECT_FALSE(t.field->check());
       }},
      {"a check that is refused", "123",
       [](AttackOn& t, auto remove) {
         QObject::connect(t.field, &GabaritoField::refused, remove);
         EXPECT_FALSE(t.field->check());
       }},
      {"another widget that loses the focus to a refusal", "123",
       [](AttackOn& t, auto remove) {
         auto* const number = new QSpinBox;
         QObject::connect(number, &QSpinBox::editingFinished, remove);
         t.window->layout()->addWidget(number);
         number->show();
         t.Enter(number);
       }},
      {"the focus that moves on when a box is hidden", "",
       [](AttackOn& t, auto remove) {
         QObject::connect(qApp, &QApplication::focusChanged, t.window.get(), remove,
                          Qt::SingleShotConnection);
         t.field->setMask(GabaritoField::gbEstado);
       }},
      {"a box that a listener of its own is told of", "",
       [](AttackOn& t, auto remove) {
         QObject::connect(t.Box(), &QLineEdit::textChanged, remove);
         t.Type("1");
       }},
      {"another font", "11144477735",
       [](AttackOn& t, auto remove) {
         QObject::connect(t.field, &GabaritoField::textChanged, remove);
         t.field->setFont(QFont(t.field->font().family(), 14));
       }},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    Show(GabaritoField::gbCPF);
    Enter(field);
    Type(row.typed);
    row.act(*this, [this] { delete field; });
    Settle();
    EXPECT_EQ(field, nullptr);
    Renew();
  }
}

// What Qt tells while the field brings its boxes up to date, and a program that answers it with a value.
TEST_F(AttackOn, AValueThatIsWrittenInTheMiddleOfItsOwnWorkStays) {
  const struct {
    const char* what;
    std::function<void(AttackOn&, std::function<void()> write)> act;
  } rows[] = {
      {"the focus taken back after a refusal",
       [](AttackOn& t, auto write) {
         t.after->setFocus();
         QObject::connect(qApp, &QApplication::focusChanged, t.field, write, Qt::SingleShotConnection);
         t.Settle();
       }},
      {"a box that is brought up to date before the others",
       [](AttackOn& t, auto write) {
         QObject::connect(t.Box(), &QLineEdit::textChanged, t.field, write, Qt::SingleShotConnection);
         t.field->setText("07/08/2021");
       }},
      {"a look at the value there",
       [](AttackOn& t, auto write) {
         QObject::connect(
             t.Box(), &QLineEdit::textChanged, t.field, [&t] { t.field->text(); }, Qt::SingleShotConnection);
         t.field->setText("07/08/2021");
         EXPECT_EQ(t.field->text(), "07/08/2021");
         write();
       }},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    Show(GabaritoField::gbData);
    field->setPreencherDatasInvalidasComDataDeHoje(false);
    Enter(field);
    Type("31022024");
    row.act(*this, [this] { field->setText("05/06/2023"); });
    Settle();
    EXPECT_EQ(field->text(), "05/06/2023");
    ASSERT_EQ(Boxes().size(), 3);
    EXPECT_EQ(Box(0)->text() + Box(1)->text() + Box(2)->text(), "05062023");
    Renew();
  }
}

TEST_F(AttackOn, WhileAMessageIsOpen) {
  const struct {
    const char* what;
    const char* kept;  // in the box afterwards; null when there is none
    std::function<void(AttackOn&)> act;
  } rows[] = {
      {"delete", nullptr, [](AttackOn& t) { delete t.field; }},
      {"hide", "123", [](AttackOn& t) { t.field->hide(); }},
      {"disable", "123", [](AttackOn& t) { t.field->setEnabled(false); }},
      {"another kind", nullptr, [](AttackOn& t) { t.field->setMask(GabaritoField::gbCidadeEstadoPopulado); }},
      {"another value", "111.444.777-35", [](AttackOn& t) { t.field->setText("11144477735"); }},
      {"check inside", "123",
       [](AttackOn& t) {
         t.field->setMessageMode(GabaritoField::InPlace);
         t.field->check();
       }},
      {"reparent", "123",
       [](AttackOn& t) {
         t.elsewhere = std::make_unique<QWidget>();
         t.field->setParent(t.elsewhere.get());
         t.elsewhere->show();
       }},
      {"close the window", "123", [](AttackOn& t) { t.window->close(); }},
      {"delete the window", nullptr, [](AttackOn& t) { t.window.reset(); }},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    AttackOn* const self = this;
    LeaveWithABadCpf();
    const QPointer<QLineEdit> box(Box());
    DuringAMessage([self, &row] { row.act(*self); });
    Tab();
    QTest::qWait(60);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    const bool there = field != nullptr && field->mask() == GabaritoField::gbCPF;
    ASSERT_EQ(there, row.kept != nullptr);
    if (there) {
      EXPECT_EQ(box->text(), row.kept);
    }
    Renew();
  }
}

TEST_F(AttackOn, TheApplicationQuitsWhileAMessageIsOpen) {
  LeaveWithABadCpf();
  DuringAMessage([] { QCoreApplication::quit(); });
  QTimer::singleShot(0, qApp, [this] { Tab(); });
  QTimer::singleShot(5000, window.get(), [] { QCoreApplication::exit(1); });
  EXPECT_EQ(QApplication::exec(), 0);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  EXPECT_EQ(Box(), nullptr) << "the window is closed";
}

TEST_F(AttackOn, PropertiesAreSetInsideKeyUp) {
  Show(GabaritoField::gbData);
  QObject::connect(field, &GabaritoField::keyUp, [this](int keyCode, int) {
    if (keyCode == Qt::Key_0) field->setMask(GabaritoField::gbHora);
    if (keyCode == Qt::Key_1) field->setText("10:20");
    if (keyCode == Qt::Key_2) field->setAppearance(GabaritoField::Flat);
    if (keyCode == Qt::Key_3) field->setFont(QFont(field->font().family(), 14));
    if (keyCode == Qt::Key_4) field->setComboItens({"a", "b"});
  });
  Enter(field);
  Type("01234");
  EXPECT_EQ(field->mask(), GabaritoField::gbHora);
  EXPECT_TRUE(field->isAncestorOf(Focus()) || Focus() == field);
}

TEST_F(AttackOn, AnyTextMayBePastedDroppedOrComposed) {
  std::mt19937 random(7);
  const QString odd[] = {QString(100000, 'a'),
                         QString(QChar(0)),
                         QString::fromUcs4(U"\U0001F600\U0001F600"),
                         QString(QChar(0xD800)),
                         QStringLiteral("[a*?#"),
                         QStringLiteral("\r\n\t\b"),
                         QStringLiteral("１２３"),
                         QString()};
  for (const int mask : {100, 130, 150, 170, 190, 210, 230, 240, 260, 261, 262, 280, 12345}) {
    SCOPED_TRACE(mask);
    if (mask == 210) {
      field->setMaskText("##/##");
    }
    Show(static_cast<GabaritoField::Mask>(mask));
    for (const QString& text : odd) {
      field->setText(text.left(200));
      Enter(field);
      QWidget* const focus = Focus();
      ASSERT_TRUE(field->isAncestorOf(focus));
      QGuiApplication::clipboard()->setText(text);
      Press(Qt::Key_V, Qt::ControlModifier);
      QInputMethodEvent composed(QString(), {});
      composed.setCommitString(text.left(300), -static_cast<int>(random() % 5),
                               static_cast<int>(random() % 5));
      QCoreApplication::sendEvent(Focus(), &composed);
      Press(Qt::Key_Backspace, {}, "\b");
      Press(Qt::Key_Delete);
      (void)field->text();
      Enter(after);
    }
  }
}

TEST_F(AttackOn, RandomKeysAndOperationsInAnyOrder) {
  std::mt19937 random(11);
  Show(GabaritoField::gbData);
  const auto pick = [&](int below) { return static_cast<int>(random() % static_cast<unsigned>(below)); };
  for (int i = 0; i < 1500; ++i) {
    switch (pick(12)) {
      case 0:
        field->setMask(static_cast<GabaritoField::Mask>(100 + 10 * pick(20)));
        break;
      case 1:
        field->setText(QString::number(pick(100000)));
        break;
      case 2:
        field->setAppearance(pick(2) != 0 ? GabaritoField::ThreeD : GabaritoField::Flat);
        break;
      case 3:
        field->setEnabled(pick(3) != 0);
        break;
      case 4:
        Enter(pick(2) != 0 ? static_cast<QWidget*>(field) : before);
        break;
      case 5:
        field->check();
        break;
      case 6:
        Press(static_cast<Qt::Key>(Qt::Key_Escape + pick(0x40)),
              static_cast<Qt::KeyboardModifier>(pick(4) << 25));
        break;
      case 7:
        Tab();
        break;
      case 8:
        window->resize(200 + pick(300), 100 + pick(200));
        break;
      default:
        Type(QString(QChar(u' ' + pick(95))));
    }
    ASSERT_NE(field, nullptr);
  }
}

}  // namespace
}  // namespace gabarito::qt
