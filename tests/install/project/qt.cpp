// A program outside of the project: one field in a window of Qt's, and its value.
#include <gabarito/qt/gabarito_field.h>
#include <QtWidgets/QApplication>

#include <iostream>

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  GabaritoField cpf;
  cpf.setMask(GabaritoField::gbCPF);
  cpf.show();
  cpf.setText("11144477735");
  std::cout << cpf.text().toStdString() << '\n';
}
