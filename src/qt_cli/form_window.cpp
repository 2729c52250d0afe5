#include "qt_cli/form_window.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QMetaEnum>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>

#include "hosts/qt/gabarito_field.h"

namespace gabarito::qt_cli {
namespace {

struct Row {
  const char* label;
  GabaritoField::Mask mask;
};

constexpr Row kRows[] = {
    {"&Nome", GabaritoField::gbNenhuma},
    {"&Letras", GabaritoField::gbLetra},
    {"Al&fanumérico", GabaritoField::gbAlfanumerico},
    {"&Data", GabaritoField::gbData},
    {"Data atual", GabaritoField::gbDataAtual},
    {"&Mês e ano", GabaritoField::gbMesAno},
    {"&Hora", GabaritoField::gbHora},
    {"&Inteiro", GabaritoField::gbInteiro},
    {"&Real", GabaritoField::gbReal},
    {"Val&or", GabaritoField::gbMoeda},
    {"CE&P", GabaritoField::gbCEP},
    {"&Telefone", GabaritoField::gbTelefone},
    {"Placa (###-####)", GabaritoField::gbDefUsr},
    {"&Versão", GabaritoField::gbVersao},
    {"Cor (lista)", GabaritoField::gbListaNoCombo},
    {"&CPF", GabaritoField::gbCPF},
    {"CNP&J", GabaritoField::gbCNPJ},
    {"Cidade e UF", GabaritoField::gbCidadeEstado},
    {"&UF", GabaritoField::gbEstado},
    {"Munic&ípio", GabaritoField::gbCidadeEstadoPopulado},
    {"C&artão de crédito", GabaritoField::gbCartaoCredito},
    {"Intervalo", GabaritoField::gbIntervaloNumerico},
    {"&E-mail", GabaritoField::gbEnderecoEmail},
};

constexpr int kRowsAColumn = 12;

QString NameOf(const GabaritoField& field) {
  return QString::fromLatin1(QMetaEnum::fromType<GabaritoField::Mask>().valueToKey(field.mask()));
}

}  // namespace

FormWindow::FormWindow() {
  setWindowTitle(QStringLiteral("Gabarito"));
  auto* const grid = new QGridLayout(this);
  int at = 0;
  for (const Row& row : kRows) {
    Add(at % kRowsAColumn, at / kRowsAColumn * 3, QString::fromUtf8(row.label), row.mask);
    ++at;
  }
  auto* const in_place = new QCheckBox(QStringLiteral("mensagens ao lado do campo"));
  connect(in_place, &QCheckBox::toggled, this, [this](bool on) {
    for (GabaritoField* const field : findChildren<GabaritoField*>()) {
      field->setMessageMode(on ? GabaritoField::InPlace : GabaritoField::MessageBox);
    }
  });
  grid->addWidget(in_place, kRowsAColumn, 0, 1, 3);
  for (const int column : {1, 4}) grid->setColumnMinimumWidth(column, 230);
  for (const int column : {2, 5}) grid->setColumnMinimumWidth(column, 150);
}

GabaritoField* FormWindow::Add(int row, int column, const QString& label, int mask) {
  auto* const field = new GabaritoField;
  if (mask == GabaritoField::gbListaNoCombo) {
    field->setComboItens({QStringLiteral("Azul"), QStringLiteral("Branco"), QStringLiteral("Verde")});
  }
  if (mask == GabaritoField::gbDefUsr) field->setMaskText(QStringLiteral("###-####"));
  field->setMask(static_cast<GabaritoField::Mask>(mask));
  field->setTrataEnterComoTab(true);
  field->setObjectName(NameOf(*field));

  auto* const name = new QLabel(label);
  name->setBuddy(field);
  auto* const value = new QLabel;
  value->setTextFormat(Qt::PlainText);
  value->setForegroundRole(QPalette::PlaceholderText);
  connect(field, &GabaritoField::textChanged, value, &QLabel::setText);

  auto* const grid = static_cast<QGridLayout*>(layout());
  grid->addWidget(name, row, column);
  grid->addWidget(field, row, column + 1);
  grid->addWidget(value, row, column + 2);
  return field;
}

QByteArray FormWindow::Values() const {
  QJsonObject values;
  for (const GabaritoField* const field : findChildren<GabaritoField*>()) {
    values.insert(field->objectName(), field->text());
  }
  return QJsonDocument(values).toJson(QJsonDocument::Compact);
}

}  // namespace gabarito::qt_cli
