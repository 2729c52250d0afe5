// Qt's focus, told to the fields: which of them has it in each window, in an order in which a message may
// come up.
#ifndef HOSTS_QT_FOCUS_WATCH_H
#define HOSTS_QT_FOCUS_WATCH_H

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtWidgets/QWidget>
#include <vector>

namespace gabarito::qt {

// A field that is left checks what it holds, and may open a message box and take the focus back. In the
// middle of Qt's own focus change that would lose the focus or loop. So a change is only marked when Qt tells
// of it, and told to the fields from the event queue or, if that is earlier, in front of the next key, click
// or question.
//
// The focus is that of the window: one that becomes inactive keeps it, and nobody is left.
class FocusWatch final : public QObject {
  Q_OBJECT

 public:
  static FocusWatch& Instance();

  // Tells what has changed since the last call. Called inside itself for the same window it does nothing: the
  // call in progress goes on until nothing is left.
  void Tell();

  // The field has taken the focus for itself, without a change of Qt's before it.
  void Holds(QWidget& field);

 protected:
  bool event(QEvent* event) override;

 private:
  struct Window {
    QPointer<QWidget> window;
    QPointer<QWidget> holder;  // the field that knows that it has the focus
    bool marked = false;
    bool telling = false;
  };

  FocusWatch();
  void Changed(QWidget* former, QWidget* now);
  std::size_t Find(QWidget& window);
  void Mark(QWidget& window);
  bool TellOne(QPointer<QWidget> window);

  std::vector<Window> windows_;
  bool posted_ = false;
};

}  // namespace gabarito::qt

#endif  // HOSTS_QT_FOCUS_WATCH_H
