// The field beside Qt's own entries: each measurement of a field stands next to the same work on the widget
// of Qt that a program would take instead. Offscreen; keys are events sent to the widget with the focus.
#include <malloc.h>

#include <benchmark/benchmark.h>

#include <QtCore/QStringList>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDateEdit>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QVBoxLayout>
#include <memory>
#include <string>
#include <vector>

#include "hosts/qt/field_bridge.h"
#include "hosts/qt/gabarito_field.h"

namespace {

void Settle() {
  QCoreApplication::sendPostedEvents();
  QCoreApplication::processEvents();
}

// A window that is on show, with one widget in it that has the focus.
template <class Widget>
struct Shown {
  QWidget window;
  Widget* widget = new Widget(&window);

  Shown() {
    window.show();
    window.activateWindow();
    widget->resize(300, 30);
    widget->show();
    widget->setFocus();
    for (int i = 0; i < 20; ++i) Settle();
  }
};

void Press(QWidget* window, int key, const QString& text) {
  QWidget* const focus = window->focusWidget();
  QKeyEvent press(QEvent::KeyPress, key, {}, text);
  QCoreApplication::sendEvent(focus, &press);
  QKeyEvent release(QEvent::KeyRelease, key, {}, text);
  QCoreApplication::sendEvent(focus, &release);
}

void Type(QWidget* window, const QString& keys) {
  for (const QChar key : keys) Press(window, key.unicode(), QString(key));
}

GabaritoField* FieldIn(Shown<GabaritoField>& shown, GabaritoField::Mask mask) {
  shown.widget->setMask(mask);
  for (int i = 0; i < 5; ++i) Settle();
  shown.widget->setFocus();
  Settle();
  return shown.widget;
}

const QString kCpf = QStringLiteral("11144477735");

void QtTypeCpf(benchmark::State& state) {
  Shown<GabaritoField> shown;
  FieldIn(shown, GabaritoField::gbCPF);
  auto* const box = shown.widget->findChild<QLineEdit*>();
  for (auto _ : state) {
    box->clear();
    Type(&shown.window, kCpf);
  }
  if (box->text() != kCpf) state.SkipWithError("not typed");
}
BENCHMARK(QtTypeCpf)->Name("QtType/CPF");

void TypeIntoLineEdit(benchmark::State& state, const QString& mask) {
  Shown<QLineEdit> shown;
  shown.widget->setInputMask(mask);
  for (auto _ : state) {
    shown.widget->clear();
    shown.widget->setCursorPosition(0);
    Type(&shown.window, kCpf);
  }
  if (shown.widget->text().size() < 11) state.SkipWithError("not typed");
}
BENCHMARK_CAPTURE(TypeIntoLineEdit, plain, QString())->Name("QtType/CPF_floor");
BENCHMARK_CAPTURE(TypeIntoLineEdit, masked, QStringLiteral("999.999.999-99;_"))
    ->Name("QtType/QLineEdit_inputMask");

// Eight digits through three boxes: the Tabs between them are the field's own.
void QtTypeDate(benchmark::State& state) {
  Shown<GabaritoField> shown;
  GabaritoField* const field = FieldIn(shown, GabaritoField::gbData);
  const QList<QLineEdit*> boxes = field->findChildren<QLineEdit*>();
  for (auto _ : state) {
    for (QLineEdit* const box : boxes) box->clear();
    boxes.first()->setFocus();
    Settle();
    for (const QChar key : QStringLiteral("05031987")) {
      Press(&shown.window, key.unicode(), QString(key));
      Settle();
    }
  }
  if (field->text() != QStringLiteral("05/03/1987")) state.SkipWithError("not typed");
}
BENCHMARK(QtTypeDate)->Name("QtType/Date");

void TypeIntoDateEdit(benchmark::State& state) {
  Shown<QDateEdit> shown;
  shown.widget->setDisplayFormat(QStringLiteral("dd/MM/yyyy"));
  for (auto _ : state) {
    shown.widget->setDate(QDate(2000, 1, 1));
    shown.widget->setCurrentSection(QDateTimeEdit::DaySection);
    shown.widget->setSelectedSection(QDateTimeEdit::DaySection);
    Settle();
    for (const QChar key : QStringLiteral("05031987")) {
      Press(&shown.window, key.unicode(), QString(key));
      Settle();
    }
  }
  if (shown.widget->date() != QDate(1987, 3, 5)) state.SkipWithError("not typed");
}
BENCHMARK(TypeIntoDateEdit)->Name("QtType/Date_floor");

// --- A thousand of them
// -------------------------------------------------------------------------------------------

constexpr int kMany = 1000;

template <class Widget, class Set>
void MakeMany(benchmark::State& state, int many, Set set) {
  double bytes = 0;
  for (auto _ : state) {
    const auto before = static_cast<double>(mallinfo2().uordblks);
    auto window = std::make_unique<QWidget>();
    for (int i = 0; i < many; ++i) {
      auto* const widget = new Widget(window.get());
      set(widget);
      widget->resize(200, 24);
    }
    window->show();
    Settle();
    bytes = static_cast<double>(mallinfo2().uordblks) - before;
    state.PauseTiming();
    window.reset();
    Settle();
    state.ResumeTiming();
  }
  // A label: the table of commas takes counters only if all rows have them.
  state.SetLabel(std::to_string(bytes / 1024 / many) + " KiB each");
}

void ManyCpf(benchmark::State& state) {
  MakeMany<GabaritoField>(state, kMany, [](GabaritoField* field) { field->setMask(GabaritoField::gbCPF); });
}
BENCHMARK(ManyCpf)->Name("QtMake/CPF_1000")->Unit(benchmark::kMillisecond);
void ManyLineEdits(benchmark::State& state) {
  MakeMany<QLineEdit>(state, kMany, [](QLineEdit*) {});
}
BENCHMARK(ManyLineEdits)->Name("QtMake/CPF_1000_floor")->Unit(benchmark::kMillisecond);

QStringList Municipalities() {
  Shown<GabaritoField> shown;
  FieldIn(shown, GabaritoField::gbCidadeEstadoPopulado);
  const auto* const list = shown.widget->findChild<QComboBox*>();
  QStringList names;
  for (int i = 0; i < list->count(); ++i) names.append(list->itemText(i));
  return names;
}

void ManyLists(benchmark::State& state) {
  MakeMany<GabaritoField>(
      state, kMany, [](GabaritoField* field) { field->setMask(GabaritoField::gbCidadeEstadoPopulado); });
}
BENCHMARK(ManyLists)->Name("QtMake/Municipalities_1000")->Unit(benchmark::kMillisecond)->Iterations(1);
// A tenth as many: they take a gigabyte otherwise. The figure is per widget.
void ManyCombos(benchmark::State& state) {
  const QStringList names = Municipalities();
  MakeMany<QComboBox>(state, kMany / 10, [&names](QComboBox* combo) {
    combo->setEditable(true);
    combo->addItems(names);
  });
}
BENCHMARK(ManyCombos)->Name("QtMake/QComboBox_100")->Unit(benchmark::kMillisecond)->Iterations(1);

// --- The list
// -----------------------------------------------------------------------------------------------------

// What a key does to the field: the search, the choice, the completion; the pass to the widgets is left out,
// as it is of the search that stands beside it.
void TypeAhead(benchmark::State& state) {
  Shown<GabaritoField> shown;
  FieldIn(shown, GabaritoField::gbCidadeEstadoPopulado);
  gabarito::kit::ComboModel& list = gabarito::qt::FieldBridge::Of(*shown.widget).Model().Parts().Combo1;
  for (auto _ : state) {
    list.Text(u"VITORIA DO XING");
    list.SelStart(15);
    benchmark::DoNotOptimize(list.KeyPress(u'U'));
  }
  if (!list.Text().starts_with(u"VITORIA DO XINGU")) state.SkipWithError("not found");
}
BENCHMARK(TypeAhead)->Name("QtTypeAhead/Municipalities");
void FindText(benchmark::State& state) {
  QComboBox combo;
  combo.addItems(Municipalities());
  for (auto _ : state) {
    benchmark::DoNotOptimize(combo.findText(QStringLiteral("VITORIA DO XINGU"), Qt::MatchStartsWith));
  }
}
BENCHMARK(FindText)->Name("QtTypeAhead/Municipalities_floor");

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
