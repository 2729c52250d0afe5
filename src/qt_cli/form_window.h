// A window with a field of every kind, and beside each the value that it gives as it changes.
#ifndef QT_CLI_FORM_WINDOW_H
#define QT_CLI_FORM_WINDOW_H

#include <QtWidgets/QWidget>

class GabaritoField;

namespace gabarito::qt_cli {

class FormWindow final : public QWidget {
 public:
  FormWindow();

  // All values by the names of their kinds, as JSON on one line; what is left unfinished is told as it is.
  QByteArray Values() const;

 private:
  GabaritoField* Add(int row, int column, const QString& label, int mask);
};

}  // namespace gabarito::qt_cli

#endif  // QT_CLI_FORM_WINDOW_H
