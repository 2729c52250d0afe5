// The sweep: every operation of every skip-on-error routine fails once, and every other step must still run.
#include <gtest/gtest.h>

#include <iterator>

#include "gabarito/control/especie.h"
#include "gabarito/platform/text.h"
#include "varredura.h"

namespace gabarito {
namespace {

const Passo kNada = [](Cena&) {};

// A field of this kind, with words in the list and a value.
Passo Como(std::int32_t mascara, std::u16string_view texto = {}) {
  return [=](Cena& c) {
    c.campo->ComboItens(MakeArray({Variant(u"abc"), Variant(u"bcd")}));
    c.campo->Mask(mascara);
    if (!texto.empty()) c.campo->Text(texto);
  };
}

// The same with a text in each box as typed, the caret behind the first.
Passo Digitado(std::int32_t mascara, std::u16string_view texto) {
  return [=](Cena& c) {
    c.campo->Mask(mascara);
    for (std::size_t i = 0; i < 3; ++i) c.Caixa(i).Text(texto);
    c.Caixa(0).SelStart(Len(texto));
  };
}

TEST(Sweep, ALayoutPlacesWhatItCan) {
  for (const EspecieDescrita& especie : Especies()) {
    for (const std::string caixa : {"t0", "E0"}) {
      Caso caso{.nome = std::string(especie.nome) + " in " + caixa,
                .prepara =
                    [&](Cena& c) {
                      Como(gbData)(c);
                      c.campo->Appearance(caixa == "E0" ? 1 : 0);
                    },
                .roda = [&](Cena& c) { c.campo->Mask(especie.valor); },
                .antes = 1};
      if (especie.valor == gbIntervaloNumerico) caso.acrescimos = {{caixa + ".Width=", caixa + ".Width="}};
      if (especie.valor == gbCidadeEstado) {
        caso.acrescimos = {{caixa + ".Width=", "UserControl.Width " + caixa + ".Width="},
                           {caixa + ".MaxLength=", caixa + ".MaxLength="}};
      }
      if (especie.valor == gbListaNoCombo) caso.sem_modo = {"Combo1.Clear= Combo1.AddItem= Combo1.AddItem="};
      if (especie.valor == gbCidadeEstadoPopulado) caso.pontas = 20;
      Varre(caso);
    }
  }
}

TEST(Sweep, ASurfaceThatGrowsLaysOutAgainInside) {
  const Passo resize = [](Cena& c) { c.campo.Events().UserControl_Resize(); };
  for (const std::int32_t mascara : {gbHora, gbData}) {
    Varre({.nome = "low surface",
           .prepara = Como(mascara),
           .roda = [](Cena& c) { c.campo.Parts().surface.Size(3000, 50); },
           .dentro = {{"UserControl.Height=", resize}}});
  }
  Varre({.nome = "Appearance",
         .prepara = [](Cena& c) { c.campo.Parts().surface.Size(3000, 400); },
         .roda = [](Cena& c) { c.campo->Appearance(0); },
         .dentro = {{"UserControl.Height=", resize}},
         .antes = 1});
}

struct Saida {
  std::int32_t mascara;
  const char16_t* texto;
  std::vector<Desvio> desvios = {};
};

// Behind the eight operations that give the boxes their colour back.
void VarreSaidas(std::initializer_list<Saida> saidas, Passo (*prepara)(std::int32_t, std::u16string_view)) {
  for (const Saida& saida : saidas) {
    Caso caso{
        .nome = "exit of " + std::to_string(saida.mascara) + " with " + testing::PrintToString(saida.texto),
        .prepara = prepara(saida.mascara, saida.texto),
        .roda = [](Cena& c) { c.campo.Events().UserControl_ExitFocus(); }};
    for (Desvio desvio : saida.desvios) caso.desvios.push_back({desvio.onde + 8, desvio.segue});
    Varre(caso);
  }
}

TEST(Sweep, AnExitOfALoadedValueGoesOn) {
  const std::string recusa = "Host.MsgBox= E0.Text= E1.Text= ";
  VarreSaidas(
      {
          {gbNenhuma, u"abc"},
          {gbLetra, u"ab", {{1, "E0.Text"}}},
          {gbAlfanumerico, u"a1"},
          {gbData,
           u"01/02/2003",
           {{2, recusa + "E2.Text="}, {3, recusa + "E2.Text="}, {4, recusa + "E2.Text="}}},
          {gbDataAtual, u"01/02/2003"},
          {gbMesAno, u"02/2003", {{2, recusa + "foco0"}, {3, recusa + "foco0"}}},
          {gbHora, u"10:20", {{2, recusa + "foco0"}, {3, recusa + "foco0"}}},
          {gbInteiro, u"12"},
          {gbReal, u"1,5"},
          {gbMoeda, u"1,5"},
          {gbVersao, u"1.2"},
          {gbTelefone, u"(31)32221234"},
          {gbCPF, u"11144477735"},
          {gbCNPJ, u"11222333000181"},
          {gbCartaoCredito, u"4111111111111111"},
          {gbListaNoCombo, u"abc"},
          {gbEstado, u"MG"},
          {gbEnderecoEmail, u"a@b.com"},
          {gbCEP,
           u"30140-010",
           {{11, "E0.Text E1.Text E0.Text E1.Text"}, {13, "E0.Text"}, {14, "E0.Text"}, {15, ""}, {16, ""}}},
          {gbCidadeEstado, u"Ita/MG", {{1, "E0.Text Combo1.Text"}, {5, ""}}},
          {gbIntervaloNumerico, u"1#2", {{7, ""}}},
      },
      Como);
}

TEST(Sweep, AnExitOfAnEmptyFieldGoesOn) {
  const std::string documento = "E0.Text E0.Text= E0.Text Host.MsgBox= foco0";
  const std::string hora = "E0.Text E1.Text Host.MsgBox= E0.Text= E1.Text= foco0";
  const std::string data = "E0.Text E1.Text E2.Text Host.MsgBox= E0.Text= E1.Text= E2.Text=";
  const std::string cep = "E0.Text E0.Text= E1.Text E1.Text= E0.Text Host.MsgBox= foco0";
  VarreSaidas({{gbData, u"", {{1, data}, {2, data}, {3, data}}},
               {gbMesAno, u"", {{1, hora}, {2, hora}}},
               {gbHora, u"", {{1, hora}, {2, hora}}},
               {gbCEP, u"", {{5, cep}, {6, cep}}},
               {gbInteiro, u""},
               {gbCPF, u"", {{1, documento}}},
               {gbCartaoCredito, u"", {{1, documento}}},
               {gbDefUsr, u""},
               {gbEnderecoEmail, u"", {{1, "E0.Text Host.MsgBox= foco0"}}}},
              Como);
}

TEST(Sweep, ARefusalGoesOn) {
  const std::string hora = "Host.MsgBox= E0.Text= E1.Text= foco0";
  const std::string data = "Host.MsgBox= E0.Text= E1.Text= E2.Text=";
  const std::string cartao = "E0.Text E0.Text= E0.Text Host.MsgBox= foco0";
  VarreSaidas({{gbLetra, u"a1", {{1, "E0.Text"}, {3, "E0.Text"}}},
               {gbData, u"77", {{2, data}, {3, data}, {4, data}}},
               {gbMesAno, u"77", {{2, hora}, {3, hora}}},
               {gbHora, u"77", {{2, hora}, {3, hora}}},
               {gbCEP, u"77", {{10, "E1.Text E1.Text Host.MsgBox= foco1"}}},
               {gbCPF, u"77", {{4, "E0.Text"}}},
               {gbCartaoCredito, u"77", {{4, cartao}}},
               {gbCartaoCredito, u"4111111111111112", {{7, "E0.Text"}}},
               {gbEnderecoEmail, u"abcdef", {{2, "E0.Text"}}}},
              Digitado);
}

TEST(Sweep, TheLifeOfAFieldGoesOn) {
  Varre({.nome = "Initialize", .prepara = kNada, .roda = [](Cena& c) {
           c.campo.Events().UserControl_Initialize();
         }});
  Varre({.nome = "WriteProperties", .prepara = kNada, .roda = [](Cena& c) {
           c.campo.Events().UserControl_WriteProperties(c);
         }});
  Caso caso{.nome = "ReadProperties",
            .prepara = kNada,
            .roda = [](Cena& c) { c.campo.Events().UserControl_ReadProperties(c); },
            .dentro = {{"", [](Cena& c) { c.campo->Appearance(1); }},
                       {"", [](Cena& c) { c.campo->Mask(gbDefUsr); }},
                       {"Host.Bag", [](Cena& c) { c.campo->MaskText(u"##"); }}},
            .passos = {"Host.Bag cores", "Combo1.BackColor Host.Bag cores", "Host.Bag ligado",
                       "E0.Enabled Host.Bag ligado"}};
  Varre(caso);
}

TEST(Sweep, ASetterGoesOn) {
  Varre({.nome = "BackColor", .prepara = kNada, .roda = [](Cena& c) { c.campo->BackColor(1); }});
  Varre({.nome = "Enabled", .prepara = kNada, .roda = [](Cena& c) { c.campo->Enabled(false); }});
  Varre(
      {.nome = "MaskText",
       .prepara = kNada,
       .roda = [](Cena& c) { c.campo->MaskText(u"##"); },
       .dentro = {{"UserControl.PropertyChanged=", [](Cena& c) { c.campo.Events().UserControl_Resize(); }}}});
  Varre({.nome = "ComboListIndex", .prepara = Como(gbEstado), .roda = [](Cena& c) {
           c.campo->ComboListIndex(2);
         }});
  Varre({.nome = "Text of gbDefUsr, refused",
         .prepara = [](Cena& c) { c.campo->MaskText(u"##"); },
         .roda = [](Cena& c) { c.campo->Text(u"abc"); },
         .antes = 4,
         .depois = 1});
  Varre({.nome = "Text of gbEstado",
         .prepara =
             [](Cena& c) {
               Como(gbEstado)(c);
               c.campo.Parts().Combo1.Clear();
               for (const auto sigla : {u"MG", u"RJ"}) c.campo.Parts().Combo1.AddItem(sigla);
             },
         .roda = [](Cena& c) { c.campo->Text(u"RJ"); },
         // A list without a count, or an entry that cannot be read, has no such entry.
         .desvios = {{4, "UserControl.PropertyChanged="}, {6, "UserControl.PropertyChanged="}},
         .antes = 3,
         .depois = 1});
  Varre({.nome = "AmbientChanged", .prepara = kNada, .roda = [](Cena& c) {
           c.campo.Events().UserControl_AmbientChanged(u"BackColor");
         }});
  Varre({.nome = "Sobre", .prepara = kNada, .roda = [](Cena& c) { c.campo->Sobre(); }});
  Varre({.nome = "ApagaCampos", .prepara = kNada, .roda = [](Cena& c) { c.campo->ApagaCampos(); }});
}

TEST(Sweep, TheFocusGoesOn) {
  const Passo foco = [](Cena& c) { c.campo.Events().UserControl_GotFocus(); };
  Varre({.nome = "boxes",
         .prepara = kNada,
         .roda = foco,
         .desvios = {{1, "foco0 MaskEdBox1.SetFocus="}, {2, "MaskEdBox1.SetFocus="}}});
  Varre({.nome = "combo",
         .prepara = Como(gbEstado),
         .roda = foco,
         .desvios = {{1, "E0.SetFocus= MaskEdBox1.SetFocus="}}});
  Varre({.nome = "box", .prepara = kNada, .roda = [](Cena& c) { c.campo.Events().txt_entrada_GotFocus(1); }});
  Varre({.nome = "masked box", .prepara = kNada, .roda = [](Cena& c) {
           c.campo.Events().MaskEdBox1_GotFocus();
         }});
}

TEST(Sweep, AKeyGoesOn) {
  struct Tecla {
    const char* nome;
    std::int16_t codigo;
    Passo prepara;
    std::string sem_texto = {};  // what follows when the box does not give its text to the judgement
    std::int16_t caixa = 0;
  };
  const Tecla teclas[] = {
      {"letter", 'a', Como(gbNenhuma), "E0.Text t0.Text="},
      {"letter to a full box", '3', Digitado(gbData, u"12"), "E0.Text E0.MaxLength E0.Text t0.Text="},
      {"last digit", '2', Digitado(gbData, u"1"), "E0.Text E0.MaxLength Host.SendInput= E0.Text t0.Text="},
      {"refused letter", 'x', Como(gbData), "Host.Beep= E0.Text t0.Text="},
      {"jump", '-', Como(gbCEP), "foco1 Host.KeyUp= E0.Text t0.Text="},
      {"jump without a box", '-', Como(gbCPF), "E1.SetFocus= Host.KeyUp= E0.Text t0.Text="},
      {"jump out of the second box", '-', Como(gbCEP), "E2.SetFocus= Host.KeyUp= E1.Text t1.Text=", 1},
      {"Backspace at the start", 8, Como(gbData)},
      {"Enter", 13, [](Cena& c) { c.campo->TrataEnterComoTab(true); }},
  };
  for (const Tecla& tecla : teclas) {
    Caso caso{.nome = tecla.nome,
              .prepara = tecla.prepara,
              .roda =
                  [&](Cena& c) {
                    std::int16_t codigo = tecla.codigo;
                    c.campo.Events().txt_entrada3D_KeyPress(tecla.caixa, codigo);
                  },
              .depois = 2};
    if (!tecla.sem_texto.empty()) caso.desvios = {{3, tecla.sem_texto}};
    Varre(caso);
  }
  Varre({.nome = "Enter in the masked box", .prepara = kNada, .roda = [](Cena& c) {
           std::int16_t codigo = 13;
           c.campo.Events().MaskEdBox1_KeyPress(codigo);
         }});
  Varre({.nome = "key down", .prepara = kNada, .roda = [](Cena& c) {
           std::int16_t codigo = 'A', shift = 0;
           c.campo.Events().txt_entrada3D_KeyDown(0, codigo, shift);
         }});
}

TEST(Sweep, TheComboGoesOn) {
  const auto com = [](std::u16string_view texto) {
    return [=](Cena& c) {
      Como(gbListaNoCombo)(c);
      c.campo.Parts().Combo1.Text(texto);
    };
  };
  const Passo sai = [](Cena& c) { c.campo.Events().Combo1_LostFocus(); };
  Varre({.nome = "Delete", .prepara = com(u"abc"), .roda = [](Cena& c) {
           std::int16_t codigo = 46, shift = 0;
           c.campo.Events().Combo1_KeyUp(codigo, shift);
         }});
  // An entry that is not found among the others is looked for by its beginning.
  const std::string procura = "Combo1.Text Combo1.ListCount Combo1.List Combo1.List Combo1.Text=";
  Varre({.nome = "leaves an entry",
         .prepara = com(u"bcd"),
         .roda = sai,
         .desvios = {{2, procura}, {3, procura}, {5, procura}}});
  Varre({.nome = "leaves the start of an entry",
         .prepara = com(u"b"),
         .roda = sai,
         .desvios = {{2, procura}, {3, procura}, {7, "Combo1.Text="}}});
}

}  // namespace
}  // namespace gabarito
