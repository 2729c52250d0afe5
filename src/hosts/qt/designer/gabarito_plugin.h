// The field in the widget box of Qt Designer.
#ifndef HOSTS_QT_DESIGNER_GABARITO_PLUGIN_H
#define HOSTS_QT_DESIGNER_GABARITO_PLUGIN_H

#include <QtCore/QObject>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

namespace gabarito::qt {

// Loaded by Designer and by QUiLoader out of a folder "designer" on the plugin path. The property sheet shows
// the field's own properties, the kinds by their names; the code that runs in Designer is that of a finished
// program.
class GabaritoPlugin final : public QObject, public QDesignerCustomWidgetInterface {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QDesignerCustomWidgetInterface")
  Q_INTERFACES(QDesignerCustomWidgetInterface)

 public:
  QString name() const override { return QStringLiteral("GabaritoField"); }
  QString group() const override { return QStringLiteral("Input Widgets"); }
  QString toolTip() const override { return QStringLiteral("Brazilian entry field"); }
  QString whatsThis() const override;
  QString includeFile() const override { return QStringLiteral("gabarito/qt/gabarito_field.h"); }
  QIcon icon() const override;
  bool isContainer() const override { return false; }
  QWidget* createWidget(QWidget* parent) override;
  QString domXml() const override;
};

}  // namespace gabarito::qt

#endif  // HOSTS_QT_DESIGNER_GABARITO_PLUGIN_H
