#include "gabarito/control/sobre.h"

#include <string>

#include "gabarito/control/versao.h"
#include "gabarito/platform/number.h"
#include "gabarito/platform/pula_erros.h"

namespace gabarito {

void MostraSobre(Campo& c) {
  PulaErros pula;
  pula([&] {
    const std::u16string texto = u"Controle Bitola \r\n\r\nVersão " + NumberToText(App::Major) + u"." +
                                 NumberToText(App::Minor) + u"." + NumberToText(App::Revision) + u"\r\n\r\n" +
                                 App::LegalCopyright + u"\r\nemail: gabarito@example.org";
    c.Dialogs->MsgBox(texto, kMsgInformation, u"Sobre");
  });
}

}  // namespace gabarito
