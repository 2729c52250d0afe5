// A program outside of the project: one field on a form, and its value.
#include <gabarito/gabarito.h>
#include <hosts/memory/field.h>
#include <hosts/memory/form.h>
#include <hosts/memory/utf8.h>

#include <iostream>

int main() {
  gabarito::memory::Form form;
  gabarito::memory::Field& cpf = form.AddField("cpf");
  cpf.Create();
  cpf->Mask(gabarito::gbCPF);
  form.SetFocus(*cpf.Surface());
  form.Type(u"11144477735");
  std::cout << gabarito::memory::ToUtf8(cpf->Text()) << '\n';
}
