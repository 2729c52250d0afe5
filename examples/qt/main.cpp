#include <gabarito/qt/gabarito_field.h>
#include <QtWidgets/QApplication>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLabel>

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QWidget form;
  QFormLayout rows(&form);
  GabaritoField cpf, birth;
  QLabel value;
  cpf.setMask(GabaritoField::gbCPF);
  birth.setMask(GabaritoField::gbData);
  rows.addRow("&CPF", &cpf);
  rows.addRow("&Nascimento", &birth);
  rows.addRow("Valor", &value);
  QObject::connect(&cpf, &GabaritoField::textChanged, &value, &QLabel::setText);
  form.show();
  return application.exec();
}
