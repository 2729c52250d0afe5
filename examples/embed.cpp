#include <iostream>

#include "hosts/kit/utf8.h"
#include "hosts/memory/form.h"

int main() {
  gabarito::memory::Form form;
  form.System().dialogs.onMsgBox = [](auto text, auto, auto) {
    std::cout << gabarito::kit::ToUtf8(text) << '\n';
    return gabarito::kAnswerOk;
  };
  gabarito::memory::Field& cpf = form.AddField("cpf");
  cpf.Create();
  cpf->Mask(gabarito::gbCPF);
  form.SetFocus(*cpf.Surface());
  form.Type(u"111x44477735");                               // a person types; the x is refused with a beep
  std::cout << gabarito::kit::ToUtf8(cpf->Text()) << '\n';  // 111.444.777-35
  cpf->Text(u"11144477736");                                // the program sets a value
  std::cout << gabarito::kit::ToUtf8(cpf->Text()) << '\n';  // the message, and no value
}
