// How a field answers on the desktop: message boxes, notes in place, or the program's own function; sound.
#ifndef HOSTS_QT_DIALOGS_H
#define HOSTS_QT_DIALOGS_H

#include <QtCore/QPointer>

#include "gabarito/platform/dialogs.h"
#include "hosts/qt/gabarito_field.h"

namespace gabarito::qt {

class FieldBridge;

class WidgetDialogs final : public Dialogs {
 public:
  explicit WidgetDialogs(GabaritoField& field) : field_(&field) {}

  std::int32_t MsgBox(std::u16string_view text, std::int32_t flags,
                      std::optional<std::u16string_view> title) override;
  void Beep() override;
  void Trace(std::u16string_view text) override;

  GabaritoField::MessageMode mode = GabaritoField::MessageBox;
  GabaritoField::MessageHandler handler;

  // Takes the note in place away.
  void HideNote();

 private:
  std::int32_t Ask(const GabaritoField::Message& message, std::int32_t flags);
  void ShowNote(const QString& text);

  QPointer<GabaritoField> field_;
  QPointer<QWidget> note_;
};

}  // namespace gabarito::qt

#endif  // HOSTS_QT_DIALOGS_H
