// Runs a routine once to learn its operations, then once more for each of them, which fails.
#ifndef GABARITO_TESTS_CONTROL_VARREDURA_H
#define GABARITO_TESTS_CONTROL_VARREDURA_H

#include <functional>
#include <string>
#include <vector>

#include "hosts/memory/form.h"

namespace gabarito {

// Operations in order, written as FaultSwitch::Watch does.
using Lista = std::vector<std::string>;

// Operations parted by blanks. Shorter names: E0 to E2 and t0 to t2 are the boxes of the 3D and the flat
// look, L0 to L2 the labels; "foco0" is all that happens when E0 takes the focus, "esconde" what
// EscondeControles does, "fontes", "cores" and "ligado" what a set of Font, BackColor and Enabled does.
Lista Operacoes(std::string texto);

// A form with one field in the 3D look, whose services can fail as its children do, under the name "Host".
class Cena final : public kit::Recorder, public PropertyBag {
 public:
  Cena();
  Variant ReadProperty(std::u16string_view key, const Variant& absent) const override;
  void WriteProperty(std::u16string_view, const Variant&, const Variant&) override { Usa("Bag"); }
  void SendInput(std::span<const INPUT>) override { Usa("SendInput"); }
  void Usa(std::string_view servico) { falhas.Use("Host", servico, kit::Access::kWrite); }

  // What `passo` does while the n-th operation fails; 0 fails none.
  Lista Ouve(const std::function<void(Cena&)>& passo, std::size_t n = 0);

  kit::TextBoxModel& Caixa(std::size_t i) { return campo.Parts().txt_entrada3D[i]; }

  memory::Form form;
  kit::FaultSwitch& falhas = form.System().faults;
  memory::Field& campo;
};

using Passo = std::function<void(Cena&)>;

// `operacoes` run behind `marco` when the failure stands at or before it: the routine asks whether anything
// has failed.
struct Acrescimo {
  std::string marco;
  std::string operacoes;
};

// When the operation `onde` fails, counted from 1 behind Caso::antes, the rest is `segue`: the failure has
// decided a condition or emptied a text.
struct Desvio {
  std::size_t onde;
  std::string segue;
};

// `operacao` raises an event or is the first of another routine: its failure loses the operations of `passo`
// too. Without a name it is the first of `passo`.
struct Dentro {
  std::string operacao;
  Passo passo;
};

struct Caso {
  std::string nome;
  Passo prepara;
  Passo roda;
  std::vector<Desvio> desvios = {};
  std::vector<Acrescimo> acrescimos = {};
  std::vector<Dentro> dentro = {};
  std::vector<std::string> passos = {};    // steps of another shape: a failure of the first loses the others
  std::vector<std::string> sem_modo = {};  // routines without a mode: a failure loses all behind it
  std::size_t antes = 0;                   // operations in front of the routine, which are not failed
  std::size_t depois = 0;                  // the same behind it
  std::size_t pontas = 0;  // unless 0: fails only so many operations at each end of a very long routine
};

// Adds a test failure for each operation whose failure loses more than it may. A step reads some values and
// ends with one write; so a write that fails takes nothing with it, and a read takes the rest of its own
// step: the reads behind it and one write. Whatever else goes missing is a step without its guard.
void Varre(const Caso& caso);

}  // namespace gabarito

#endif  // GABARITO_TESTS_CONTROL_VARREDURA_H
