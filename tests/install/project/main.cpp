// A program outside of the project: one field on a form, and its value.
#include <gabarito/gabarito.h>
#include <hosts/kit/utf8.h>
#include <hosts/memory/form.h>

#include <iostream>

int main() {
  gabarito::memory::Form form;
  gabarito::memory::Field& cpf = form.AddField("cpf");
  cpf.Create();
  cpf->Mask(gabarito::gbCPF);
  form.SetFocus(*cpf.Surface());
  form.Type(u"11144477735");
  std::cout << gabarito::kit::ToUtf8(cpf->Text()) << '\n';
}
