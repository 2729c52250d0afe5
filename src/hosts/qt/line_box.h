// A box of a field: a QLineEdit that asks before it lets anything in.
#ifndef HOSTS_QT_LINE_BOX_H
#define HOSTS_QT_LINE_BOX_H

#include <QtWidgets/QLineEdit>

class QMimeData;

namespace gabarito::qt {

class LineBox;

// Who decides: the field that the box belongs to. A member may delete the box.
class BoxOwner {
 public:
  virtual ~BoxOwner() = default;
  // A key goes down. Everything that it does is done when this returns.
  virtual void KeyPressed(LineBox& box, QKeyEvent& event) = 0;
  virtual void KeyReleased(LineBox& box, QKeyEvent& event) = 0;
  // Text without a key of its own is about to take the place of the selection; puts in what passes. No text
  // at all takes the selection away.
  virtual void TextComes(LineBox& box, const QString& text) = 0;
  // The text is another one, by whatever means; only told to who listens.
  virtual void TextSet(LineBox& box) = 0;
  // The box has changed in the middle of what the owner does with it.
  virtual void TakeOver(LineBox& box) = 0;
  // A person has changed the text by other means: undo, a menu, the drag of a part of it.
  virtual void Edited(LineBox& box) = 0;
  // A mouse button goes down: what the focus brings has to be over before the click is taken.
  virtual void MousePressed(LineBox& box) = 0;
};

class LineBox final : public QLineEdit {
  Q_OBJECT

 public:
  LineBox(BoxOwner& owner, int index, QWidget* parent);

  // Position of the child in the order of TabIndex.
  int Index() const { return index_; }
  // The owner is about to go.
  void Orphan() { owner_ = nullptr; }
  // To an owner that a listener to the change may have deleted.
  void TellOwner() {
    if (owner_ != nullptr) owner_->TakeOver(*this);
  }
  // A thin plain frame instead of the style's own.
  void SetFlat(bool flat);

  // Tells of every other text from now on.
  void ListenToTexts();
  void Select(int start, int length);

  // What QLineEdit itself does with a key.
  void ActNatively(QKeyEvent& event) { QLineEdit::keyPressEvent(&event); }
  // A key that has come to the list around this box.
  void TakeKey(QKeyEvent& event);
  // Puts `text` in place of what stands there, as one edit that one undo takes back.
  void ReplaceRange(int start, int removed, const QString& text, int caret);
  int SelStart() const { return hasSelectedText() ? selectionStart() : cursorPosition(); }

 public slots:
  // The context menu looks these up by name.
  void paste();
  void cut();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  BoxOwner* owner_;
  short index_;  // as small as it is, like the rest: there may be thousands of boxes
  bool flat_ = false;
  bool listening_ = false;           // to edits by a menu
  bool listening_to_texts_ = false;  // of assistive technology
  bool edited_ = false;              // by a person, as the widget tells first
  bool dropping_ = false;            // a part of its own text
};

}  // namespace gabarito::qt

#endif  // HOSTS_QT_LINE_BOX_H
