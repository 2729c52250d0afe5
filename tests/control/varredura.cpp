#include "varredura.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <sstream>
#include <utility>

#include "gabarito/state/campo.h"

namespace gabarito {
namespace {

constexpr std::int32_t kErro = 51;

bool Escreve(const std::string& operacao) { return operacao.ends_with('='); }

Lista Trecho(const Lista& lista, std::size_t de, std::size_t ate) {
  return {lista.begin() + static_cast<std::ptrdiff_t>(de), lista.begin() + static_cast<std::ptrdiff_t>(ate)};
}

bool SegueEm(const Lista& lista, std::size_t onde, const Lista& trecho) {
  return onde <= lista.size() && trecho.size() <= lista.size() - onde &&
         std::equal(trecho.begin(), trecho.end(), lista.begin() + static_cast<std::ptrdiff_t>(onde));
}

// The reads between two writes in one fixed order: within an expression it is the compiler's.
Lista Canonica(Lista lista) {
  for (auto de = lista.begin(); de != lista.end();) {
    const auto ate = std::find_if(de, lista.end(), Escreve);
    std::sort(de, ate);
    de = ate == lista.end() ? ate : ate + 1;
  }
  return lista;
}

std::string Troca(std::string texto, const std::string& de, const std::string& por) {
  for (std::size_t em = 0; (em = texto.find(de, em)) != std::string::npos; em += por.size()) {
    texto.replace(em, de.size(), por);
  }
  return texto;
}

// All that happens in a step, learned by running it once in a new field.
std::string Aprende(const Passo& passo) {
  Cena cena;
  std::string texto;
  for (const std::string& operacao : cena.Ouve(passo))
    texto.append(texto.empty() ? "" : " ").append(operacao);
  return texto;
}

std::string Foco(std::int16_t i) {
  return "E" + std::to_string(i) +
         ".SetFocus= " + Aprende([i](Cena& c) { c.campo.Events().txt_entrada3D_GotFocus(i); });
}

// Every layout begins with it: the children that are hidden, before anything else is done with one.
std::string Esconde() {
  std::istringstream operacoes(Aprende([](Cena& c) { c.campo->Mask(gbEstado); }));
  std::string texto, operacao;
  while (operacoes >> operacao && !operacao.ends_with(".Visible=")) {
  }
  do texto.append(operacao) += ' ';
  while (operacoes >> operacao && operacao.ends_with(".Visible="));
  return texto;
}

std::vector<Lista> Listas(std::initializer_list<const char*> sempre,
                          const std::vector<std::string>& no_caso) {
  std::vector<Lista> listas;
  for (const char* lista : sempre) listas.push_back(Operacoes(lista));
  for (const std::string& lista : no_caso) listas.push_back(Operacoes(lista));
  return listas;
}

class Varredura {
 public:
  explicit Varredura(const Caso& caso)
      : caso_(caso),
        sem_modo_(Listas({"esconde", "Host.Bag fontes", "UserControl.Ambient fontes",
                          "Combo1.ListIndex= Combo1.Text Combo1.ToolTipText="},
                         caso.sem_modo)),
        // The exit gives no colours to a field that is not enabled.
        passos_(Listas({"UserControl.Height Combo1.Height",
                        "E0.Enabled t0.BackColor= E0.BackColor= t1.BackColor= E1.BackColor= t2.BackColor= "
                        "E2.BackColor= MaskEdBox1.BackColor="},
                       caso.passos)),
        dentro_(Listas({"foco0", "foco1"}, {})) {
    Cena cena;
    caso.prepara(cena);
    inteira_ = cena.Ouve(caso.roda);
    segmentos_ = cena.campo.Events().Estado().mSegmentos;
    for (const Dentro& dentro : caso.dentro) {
      Lista lista = cena.Ouve(dentro.passo);
      if (!dentro.operacao.empty()) lista.insert(lista.begin(), dentro.operacao);
      dentro_.push_back(std::move(lista));
    }
  }

  std::size_t Operacoes() const { return inteira_.size(); }
  const std::string& Operacao(std::size_t p) const { return inteira_[p]; }

  // What is wrong with the run in which the operation at `p` fails; empty for nothing.
  std::string Falta(std::size_t p) const {
    Cena cena;
    caso_.prepara(cena);
    Lista feita = cena.Ouve(caso_.roda, p + 1);
    if (feita.size() <= p || feita[p] != inteira_[p] + "!" || !SegueEm(feita, 0, Trecho(inteira_, 0, p))) {
      return "the run differs before the failure";
    }
    if (caso_.sem_modo.empty() && cena.campo.Events().Estado().mSegmentos != segmentos_) {
      return "mSegmentos was not written";
    }
    for (const Desvio& desvio : caso_.desvios) {
      if (caso_.antes + desvio.onde != p + 1) continue;
      const Lista segue = Trecho(feita, p + 1, feita.size());
      return Canonica(segue) == Canonica(gabarito::Operacoes(desvio.segue)) ? "" : Conta(segue);
    }
    for (auto a = caso_.acrescimos.rbegin(); a != caso_.acrescimos.rend(); ++a) {
      if (!TiraAcrescimo(*a, p, feita)) return "nothing was added behind " + a->marco + ": " + Conta(feita);
    }
    const std::size_t perda = inteira_.size() - feita.size();
    const bool resto = feita.size() <= inteira_.size() &&
                       SegueEm(feita, p + 1, Trecho(inteira_, p + 1 + perda, inteira_.size()));
    return resto && PerdaDevida(p, perda) ? "" : Conta(Trecho(feita, p + 1, feita.size()));
  }

 private:
  static std::string Conta(const Lista& lista) { return "then ran " + testing::PrintToString(lista); }

  bool TiraAcrescimo(const Acrescimo& acrescimo, std::size_t p, Lista& feita) const {
    const Lista mais = gabarito::Operacoes(acrescimo.operacoes);
    const std::string marco = gabarito::Operacoes(acrescimo.marco).front();
    const auto em = std::find(inteira_.begin(), inteira_.end(), marco);
    if (em == inteira_.end()) return false;
    if (static_cast<std::ptrdiff_t>(p) > em - inteira_.begin()) return true;
    const auto depois = static_cast<std::size_t>(inteira_.end() - em) - 1 + mais.size();
    if (feita.size() < depois || !SegueEm(feita, feita.size() - depois, mais)) return false;
    const auto de = feita.end() - static_cast<std::ptrdiff_t>(depois);
    feita.erase(de, de + static_cast<std::ptrdiff_t>(mais.size()));
    return true;
  }

  // Whether the failure at `p` may lose the `perda` operations behind it.
  bool PerdaDevida(std::size_t p, std::size_t perda) const {
    for (const Lista& rotina : sem_modo_) {
      for (std::size_t i = 0; i < rotina.size() && i <= p; ++i) {
        if (SegueEm(inteira_, p - i, rotina)) return perda == rotina.size() - 1 - i;
      }
    }
    for (const Lista& passo : passos_) {
      if (SegueEm(inteira_, p, passo) && perda == passo.size() - 1) return true;
    }
    if (const std::size_t dentro = DentroDe(p)) return perda == dentro;
    std::size_t escrita = p;
    while (escrita < inteira_.size() && !Escreve(inteira_[escrita])) ++escrita;
    if (escrita != p && perda == 0) return true;  // a step that only reads
    return perda == escrita - p + DentroDe(escrita);
  }

  // How many operations run inside the one at `p`.
  std::size_t DentroDe(std::size_t p) const {
    std::size_t mais = 0;
    for (const Lista& lista : dentro_) {
      if (SegueEm(inteira_, p, lista)) mais = std::max(mais, lista.size() - 1);
    }
    return mais;
  }

  const Caso& caso_;
  std::vector<Lista> sem_modo_;
  std::vector<Lista> passos_;
  std::vector<Lista> dentro_;
  Lista inteira_;
  std::int16_t segmentos_;
};

}  // namespace

Lista Operacoes(std::string texto) {
  static const std::pair<const char*, std::string> aprendidas[] = {
      {"foco0", Foco(0)},
      {"foco1", Foco(1)},
      {"fontes", Aprende([](Cena& c) { c.campo->Font(std::make_shared<StdFont>()); })},
      {"cores", Aprende([](Cena& c) { c.campo->BackColor(1); })},
      {"ligado", Aprende([](Cena& c) { c.campo->Enabled(true); })},
      {"esconde", Esconde()},
  };
  for (const auto& [nome, operacoes] : aprendidas) texto = Troca(texto, nome, operacoes);
  for (const char* i : {"0", "1", "2"}) {
    const std::string indice = "(" + std::string(i) + ").";
    texto = Troca(texto, std::string("E") + i + ".", "txt_entrada3D" + indice);
    texto = Troca(texto, std::string("t") + i + ".", "txt_entrada" + indice);
    texto = Troca(texto, std::string("L") + i + ".", "lbl_controle" + indice);
  }
  std::istringstream palavras(texto);
  return {std::istream_iterator<std::string>(palavras), {}};
}

Cena::Cena() : campo(form.AddField("field")) {
  form.MakeFieldsBreakable();
  form.Model().recorder = this;
  form.System().dialogs.onMsgBox = [this](auto, auto, auto) {
    Usa("MsgBox");
    return kAnswerOk;
  };
  form.System().dialogs.onBeep = [this] { Usa("Beep"); };
  campo.Create();
  campo->KeyUp([this](std::int16_t&, std::int16_t&) { Usa("KeyUp"); });
}

Lista Cena::Ouve(const Passo& passo, std::size_t n) {
  Lista operacoes;
  falhas.Watch(&operacoes);
  falhas.FailNth(static_cast<std::int64_t>(n), kErro);
  passo(*this);
  falhas.FailNth(0, 0);
  falhas.Watch(nullptr);
  return operacoes;
}

Variant Cena::ReadProperty(std::u16string_view key, const Variant& absent) const {
  falhas.Use("Host", "Bag", kit::Access::kRead);
  return key == u"MaskText" ? Variant(std::u16string(u"##")) : absent;
}

void Varre(const Caso& caso) {
  const Varredura varredura(caso);
  const std::size_t n = varredura.Operacoes();
  ASSERT_GT(n, caso.antes + caso.depois) << caso.nome;
  for (std::size_t p = caso.antes; p < n - caso.depois; ++p) {
    if (caso.pontas != 0 && p >= caso.pontas && n - p > caso.pontas) continue;
    EXPECT_EQ(varredura.Falta(p), "")
        << caso.nome << ": operation " << p + 1 << ", " << varredura.Operacao(p) << ", failed";
  }
}

}  // namespace gabarito
