// The stage of the Qt host: a window with real widgets, driven by real input events.
#ifndef QT_CLI_QT_STAGE_H
#define QT_CLI_QT_STAGE_H

#include <QtWidgets/QLineEdit>
#include <exception>
#include <memory>

#include "hosts/qt/field_bridge.h"
#include "hosts/qt/gabarito_field.h"
#include "script/stage.h"

namespace gabarito::qt_cli {

// Needs a QApplication. Keys go the way of a keyboard's: into the queue of the window system, from there
// through the window to the widget that has the focus.
class QtStage final : public script::Stage {
 public:
  QtStage();
  ~QtStage() override;

  std::string_view Name() const override { return "qt"; }
  kit::ScriptedServices& Services() override { return services_; }
  kit::FieldModel& Field() override { return Bridge().Model(); }
  kit::Focusable& Before() override { return before_place_; }
  kit::Focusable& After() override { return after_place_; }
  void HandOver() override { Bridge().HandOver(); }
  void Apply() override;
  void Type(std::u16string_view text) override;
  void Press(std::int16_t vk, std::int16_t shift) override;
  void Paste(std::u16string_view text) override;
  bool Select(std::int32_t start, std::int32_t length) override;
  void Run() override;

  // What the script drives, for a look behind the transcript.
  GabaritoField& Widget() { return *field_; }
  QWidget& Window() { return window_; }

 private:
  qt::FieldBridge& Bridge() { return qt::FieldBridge::Of(*field_); }
  void SendKeys();
  void Settle();

  kit::ScriptedServices services_;
  qt::Outside before_place_, after_place_;
  QWidget window_;
  QLineEdit before_{&window_};
  std::unique_ptr<GabaritoField> field_;
  QLineEdit after_{&window_};
  std::exception_ptr error_;  // the first that a handler has raised since the last line
};

}  // namespace gabarito::qt_cli

#endif  // QT_CLI_QT_STAGE_H
