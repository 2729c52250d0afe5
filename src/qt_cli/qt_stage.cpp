#include "qt_cli/qt_stage.h"

#include <QtGui/QClipboard>
#include <QtGui/QWindow>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <utility>
#include <vector>

#include "hosts/kit/faults.h"
#include "hosts/qt/focus_watch.h"
#include "hosts/qt/keys.h"

namespace gabarito::qt_cli {
namespace {

constexpr int kWaitForWindow = 5000;  // milliseconds

kit::Services Breakable(kit::ScriptedServices& scripted) {
  kit::Services services = scripted.AsServices();
  services.decorate = [&scripted](const Host& host) { return kit::WithFaults(host, scripted.faults); };
  return services;
}

void Stand(qt::Outside& place, QLineEdit& line, const char* name, int top) {
  line.setObjectName(QString::fromLatin1(name));
  line.move(0, top);
  place.name = name;
  place.widget = &line;
}

}  // namespace

QtStage::QtStage() : field_(qt::FieldBridge::OnServices(Breakable(services_), &window_)) {
  field_->move(0, 40);
  field_->resize(319, 113);  // the design size at 15 twips a pixel
  Stand(before_place_, before_, "before", 0);
  Stand(after_place_, after_, "after", 160);
  QWidget::setTabOrder(&before_, field_.get());
  QWidget::setTabOrder(field_.get(), &after_);
  Bridge().neighbours = {&before_place_, &after_place_};
  Bridge().Form().onError = [this](const Erro& erro) {
    if (error_ == nullptr) error_ = std::make_exception_ptr(erro);
  };
  window_.resize(700, 200);
  window_.show();
  window_.activateWindow();
  before_.setFocus();
  if (!QTest::qWaitForWindowActive(&window_, kWaitForWindow)) qWarning("the window does not become active");
}

QtStage::~QtStage() { Bridge().Form().onError = nullptr; }

void QtStage::Apply() {
  Bridge().Apply();
  Bridge().ApplyFocus();
  Settle();
}

// Until nothing is under way any more: one event may make others.
void QtStage::Settle() {
  do {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents();
  } while (Bridge().Form().keyboard.Pending());
  qt::FocusWatch::Instance().Tell();
}

void QtStage::SendKeys() {
  kit::Keyboard& keyboard = Bridge().Form().keyboard;
  QWindow* const window = window_.windowHandle();
  // What the field sends on the way comes behind them, out of its own queue.
  std::vector<kit::KeyEvent> strokes;
  while (keyboard.Pending()) strokes.push_back(keyboard.Next());
  for (const kit::KeyEvent& event : strokes) {
    const auto key = qt::EventOf(event, keyboard.Layout(), keyboard.CapsLock());
    qt_handleKeyEvent(window, key->type(), key->key(), key->modifiers(), key->text());
  }
  Settle();
  if (error_ != nullptr) std::rethrow_exception(std::exchange(error_, nullptr));
}

void QtStage::Type(std::u16string_view text) {
  for (const char16_t character : text) {
    Bridge().Form().keyboard.PressCharacter(character);
    SendKeys();
  }
}

void QtStage::Press(std::int16_t vk, std::int16_t shift) {
  Bridge().Form().keyboard.Press(vk, shift);
  SendKeys();
}

void QtStage::Paste(std::u16string_view text) {
  QGuiApplication::clipboard()->setText(qt::ToQString(text));
  Press('V', kCtrlMask);
}

bool QtStage::Select(std::int32_t start, std::int32_t length) {
  QWidget* const focus = window_.focusWidget();
  auto* line = qobject_cast<QLineEdit*>(focus);
  if (auto* const list = qobject_cast<QComboBox*>(focus)) line = list->lineEdit();
  if (line == nullptr) return false;
  const int size = static_cast<int>(line->text().size());
  line->setCursorPosition(std::min(start, size));
  if (length > 0) line->setSelection(std::min(start, size), std::min(length, size - std::min(start, size)));
  return true;
}

void QtStage::Run() {
  Bridge().RunQueue();
  Settle();
  if (error_ != nullptr) std::rethrow_exception(std::exchange(error_, nullptr));
}

}  // namespace gabarito::qt_cli
