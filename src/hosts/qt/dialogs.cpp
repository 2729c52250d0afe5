#include "hosts/qt/dialogs.h"

#include <QtCore/QDebug>
#include <QtGui/QAccessible>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMessageBox>
#include <algorithm>

#include "hosts/kit/message_buttons.h"
#include "hosts/qt/field_bridge.h"

namespace gabarito::qt {

std::int32_t WidgetDialogs::MsgBox(std::u16string_view text, std::int32_t flags,
                                   std::optional<std::u16string_view> title) {
  if (field_ == nullptr) return kit::DefaultAnswer(flags);
  GabaritoField::Message message{
      .title = title ? ToQString(*title) : QGuiApplication::applicationDisplayName(),
      .text = ToQString(text),
      .question = kit::AsksYesNo(flags),
      .refusal = (flags & kMsgCritical) != 0,
  };
  const std::shared_ptr<FieldForm> form = FieldBridge::Of(*field_).SharedForm();
  if (message.refusal) FieldBridge::Of(*field_).Refused(message);
  if (field_ == nullptr) return kit::DefaultAnswer(flags);
  // While the box is open the widgets are the truth, as between two events.
  const int depth = FieldBridge::Of(*field_).Pause();
  std::int32_t answer = kit::DefaultAnswer(flags);
  try {
    if (field_ != nullptr) answer = Ask(message, flags);
  } catch (...) {
    if (field_ != nullptr) FieldBridge::Of(*field_).Resume(depth);
    throw;
  }
  if (field_ != nullptr) FieldBridge::Of(*field_).Resume(depth);
  return answer;
}

std::int32_t WidgetDialogs::Ask(const GabaritoField::Message& message, std::int32_t flags) {
  if (handler) {
    const auto own = handler;  // it may set another one
    const bool yes = own(message);
    return message.question ? (yes ? kAnswerYes : kAnswerNo) : kAnswerOk;
  }
  if (mode == GabaritoField::InPlace) {
    ShowNote(message.text);
    return kit::DefaultAnswer(flags);
  }
  const QPointer<QMessageBox> box(new QMessageBox(field_->window()));
  box->setWindowTitle(message.title);
  box->setTextFormat(Qt::PlainText);
  box->setText(message.text);
  box->setIcon(message.refusal    ? QMessageBox::Critical
               : message.question ? QMessageBox::Question
                                  : QMessageBox::Information);
  box->setStandardButtons(message.question ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok);
  box->setDefaultButton(kit::DefaultAnswer(flags) == kAnswerNo    ? QMessageBox::No
                        : kit::DefaultAnswer(flags) == kAnswerYes ? QMessageBox::Yes
                                                                  : QMessageBox::Ok);
  const int button = box->exec();
  if (box != nullptr) delete box;  // the window may have gone, and the box with it
  if (!message.question) return kAnswerOk;
  return button == QMessageBox::Yes ? kAnswerYes : kAnswerNo;
}

// Right under the field, over whatever stands there, so that showing it moves nothing. A field that is not on
// show has none.
void WidgetDialogs::ShowNote(const QString& text) {
  HideNote();
  if (!field_->isVisible()) return;
  QWidget& window = *field_->window();
  auto* const note = new QLabel(text, &window);
  note->setTextFormat(Qt::PlainText);
  note->setObjectName(QStringLiteral("gabarito_note"));
  note->setAutoFillBackground(true);
  note->setBackgroundRole(QPalette::ToolTipBase);
  note->setForegroundRole(QPalette::ToolTipText);
  note->setMargin(3);
  note->setFrameShape(QFrame::Box);
  note->setAttribute(Qt::WA_TransparentForMouseEvents);
  note->adjustSize();
  if (note->width() > window.width()) {
    note->setWordWrap(true);
    note->resize(window.width(), note->heightForWidth(window.width()));
  }
  // Above it where there is no room below, and always inside the window.
  const QRect place(field_->mapTo(&window, QPoint()), field_->size());
  const int lowest = window.height() - note->height();
  int top = place.bottom() + 1;
  if (top > lowest) top = place.top() - note->height();
  if (top < 0) top = std::max(lowest, 0);
  note->move(std::clamp(place.left(), 0, window.width() - note->width()), top);
  note->raise();
  note->show();
  note_ = note;
  field_->setAccessibleDescription(text);
  QAccessibleEvent alert(field_, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

void WidgetDialogs::HideNote() {
  if (note_ == nullptr) return;
  note_->hide();
  note_->deleteLater();
  note_ = nullptr;
  if (field_ != nullptr) field_->setAccessibleDescription({});
}

void WidgetDialogs::Beep() { QApplication::beep(); }

void WidgetDialogs::Trace(std::u16string_view text) { qDebug("%s", qUtf8Printable(ToQString(text))); }

}  // namespace gabarito::qt
