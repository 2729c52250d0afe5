#include "hosts/qt/designer/gabarito_plugin.h"

#include <QtGui/QIcon>
#include <QtGui/QPixmap>

#include "hosts/qt/gabarito_field.h"
#include "shell/resources.h"

namespace gabarito::qt {

QString GabaritoPlugin::whatsThis() const {
  return QStringLiteral(
      "One field that becomes 23 different ones by its property mask: CPF, CNPJ, dates, times, money, postal "
      "codes, "
      "telephone numbers, states, municipalities and more.");
}

QIcon GabaritoPlugin::icon() const {
  const auto picture = LoadResPicture(kToolboxPicture);
  QPixmap pixmap;
  pixmap.loadFromData(picture.data(), static_cast<uint>(picture.size()), "BMP");
  return QIcon(pixmap);
}

QWidget* GabaritoPlugin::createWidget(QWidget* parent) { return new GabaritoField(parent); }

QString GabaritoPlugin::domXml() const {
  return QStringLiteral(
      "<ui language=\"c++\"><widget class=\"GabaritoField\" name=\"gabaritoField\">"
      "<property name=\"mask\"><enum>GabaritoField::gbNenhuma</enum></property></widget></ui>");
}

}  // namespace gabarito::qt
