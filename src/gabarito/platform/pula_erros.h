// Skip-on-error mode: a statement that fails is skipped and the next one runs.
#ifndef GABARITO_PLATFORM_PULA_ERROS_H
#define GABARITO_PLATFORM_PULA_ERROS_H

#include <cstdint>
#include <utility>

#include "gabarito/platform/erro.h"

namespace gabarito {

// One object at the top of a routine puts the routine in this mode; each statement is then one step:
//
//   PulaErros pula;
//   pula([&] { c.mEntrada1->MaxLength(2); });
//
// Only an Erro is skipped. A fault that is no run-time error of the platform (out of memory) passes.
// The number of the last failure stays readable until the routine ends; a step that succeeds keeps it.
class PulaErros {
 public:
  // Runs `step`; true when it did not fail.
  template <class Step>
  bool operator()(Step&& step) {
#ifdef __OPTIMIZE_SIZE__
    // One place that tells what was caught, instead of one a step: a third of a module built for size.
    try {
      std::forward<Step>(step)();
      return true;
    } catch (...) {
      Note();
      return false;
    }
#else
    return Caught([&] { std::forward<Step>(step)(); });
#endif
  }

  // Runs `condition` as the condition of an `if`: one that fails counts as false, so the whole `if` is
  // skipped.
  template <class Condition>
  bool Se(Condition&& condition) {
    bool holds = false;
    (*this)([&] { holds = std::forward<Condition>(condition)(); });
    return holds;
  }

  // 0 while no step has failed.
  std::int32_t Number() const { return number_; }

 private:
  template <class Step>
  bool Caught(Step&& step) {
    try {
      std::forward<Step>(step)();
      return true;
    } catch (const Erro& erro) {
      number_ = erro.Number();
      return false;
    }
  }
#ifdef __OPTIMIZE_SIZE__
  [[gnu::noinline]] void Note() {
    Caught([] { throw; });
  }
#endif

  std::int32_t number_ = 0;
};

}  // namespace gabarito

#endif  // GABARITO_PLATFORM_PULA_ERROS_H
