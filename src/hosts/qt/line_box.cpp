#include "hosts/qt/line_box.h"

#include <QtCore/QMimeData>
#include <QtCore/QPointer>
#include <QtGui/QClipboard>
#include <QtGui/QDropEvent>
#include <QtGui/QGuiApplication>
#include <QtGui/QPainter>
#include <utility>

namespace gabarito::qt {

LineBox::LineBox(BoxOwner& owner, int index, QWidget* parent)
    : QLineEdit(parent), owner_(&owner), index_(static_cast<short>(index)) {}

void LineBox::SetFlat(bool flat) {
  flat_ = flat;
  setFrame(!flat);
}

void LineBox::ListenToTexts() {
  if (listening_to_texts_) return;
  listening_to_texts_ = true;
  connect(this, &QLineEdit::textEdited, this, [this] { edited_ = true; });
  connect(this, &QLineEdit::textChanged, this, [this] {
    const bool by_person = std::exchange(edited_, false) || dropping_;
    if (owner_ != nullptr && !by_person) owner_->TextSet(*this);
  });
}

void LineBox::Select(int start, int length) {
  setSelection(start, length);
  if (length == 0) setCursorPosition(start);
}

void LineBox::ReplaceRange(int start, int removed, const QString& text, int caret) {
  Select(start, removed);
  insert(text);
  setCursorPosition(caret);
}

void LineBox::paste() {
  if (owner_ != nullptr) owner_->TextComes(*this, QGuiApplication::clipboard()->text());
}

void LineBox::cut() {
  copy();
  if (owner_ != nullptr) owner_->TextComes(*this, QString());
}

void LineBox::keyPressEvent(QKeyEvent* event) {
  if (owner_ != nullptr) owner_->KeyPressed(*this, *event);
}

void LineBox::keyReleaseEvent(QKeyEvent* event) {
  const QPointer<LineBox> self(this);
  if (owner_ != nullptr) owner_->KeyReleased(*this, *event);
  if (self != nullptr) QLineEdit::keyReleaseEvent(event);
}

void LineBox::TakeKey(QKeyEvent& event) {
  event.type() == QEvent::KeyPress ? keyPressEvent(&event) : keyReleaseEvent(&event);
}

// A composition in progress is the widget's own; what it comes to passes like any text.
void LineBox::inputMethodEvent(QInputMethodEvent* event) {
  if (event->commitString().isEmpty() && event->replacementLength() == 0) {
    QLineEdit::inputMethodEvent(event);
    return;
  }
  const QPointer<LineBox> self(this);
  QInputMethodEvent composition(event->preeditString(), event->attributes());
  QInputMethodEvent none;
  QLineEdit::inputMethodEvent(&none);  // takes what was composed off the line
  if (event->replacementLength() > 0) {
    const int start = qBound(0, cursorPosition() + event->replacementStart(), int(text().size()));
    setSelection(start, event->replacementLength());
  }
  if (owner_ != nullptr) owner_->TextComes(*this, event->commitString());
  if (self == nullptr) return;
  if (!event->preeditString().isEmpty()) QLineEdit::inputMethodEvent(&composition);
  event->accept();
}

void LineBox::mousePressEvent(QMouseEvent* event) {
  const QPointer<LineBox> self(this);
  if (owner_ != nullptr) owner_->MousePressed(*this);
  // A message may have come up in between, and the focus be elsewhere.
  if (self != nullptr && (hasFocus() || focusProxy() != nullptr)) QLineEdit::mousePressEvent(event);
}

void LineBox::mouseReleaseEvent(QMouseEvent* event) {
  QClipboard* const clipboard = QGuiApplication::clipboard();
  if (event->button() != Qt::MiddleButton || !clipboard->supportsSelection() || isReadOnly()) {
    QLineEdit::mouseReleaseEvent(event);
    return;
  }
  const QString text = clipboard->text(QClipboard::Selection);
  setCursorPosition(cursorPositionAt(event->position().toPoint()));
  if (owner_ != nullptr) owner_->TextComes(*this, text);
}

// A connection costs as much as a field's own part of a small box, so it is made with the first menu.
void LineBox::contextMenuEvent(QContextMenuEvent* event) {
  if (!listening_) {
    connect(this, &QLineEdit::textEdited, this, [this] {
      if (owner_ != nullptr) owner_->Edited(*this);
    });
  }
  listening_ = true;
  QLineEdit::contextMenuEvent(event);
}

void LineBox::dropEvent(QDropEvent* event) {
  const bool from_here = event->source() == this;
  if (from_here || owner_ == nullptr) {
    dropping_ = true;
    QLineEdit::dropEvent(event);  // the text has passed once
    dropping_ = false;
    if (owner_ != nullptr) owner_->Edited(*this);
    return;
  }
  const QString text = event->mimeData()->text();
  event->acceptProposedAction();
  const QPointer<LineBox> self(this);
  setFocus(Qt::MouseFocusReason);
  owner_->MousePressed(*this);
  if (self == nullptr || owner_ == nullptr) return;
  setCursorPosition(cursorPositionAt(event->position().toPoint()));
  owner_->TextComes(*this, text);
}

void LineBox::paintEvent(QPaintEvent* event) {
  QLineEdit::paintEvent(event);
  if (!flat_) return;
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

}  // namespace gabarito::qt
