// The public event KeyUp: the program's handler, and the raising of it.
#ifndef GABARITO_STATE_EVENTO_KEY_UP_H
#define GABARITO_STATE_EVENTO_KEY_UP_H

#include <cstdint>
#include <functional>
#include <memory>
#include <utility>

namespace gabarito {

// The program's handler of KeyUp; see control/gabarito.h.
using FuncaoKeyUp = std::function<void(std::int16_t& KeyCode, std::int16_t& Shift)>;

// A handler may put another one in its own place, or take itself away: it comes to its end first. What is
// replaced while a handler runs is kept until none does; a shared owner would cost two counts at each key.
class EventoKeyUp {
 public:
  void Poe(FuncaoKeyUp funcao) {
    auto anterior = std::exchange(
        atual_, funcao ? std::make_unique<Tratador>(Tratador{std::move(funcao), nullptr}) : nullptr);
    if (rodando_ == 0 || anterior == nullptr) return;
    anterior->seguinte = std::move(substituidos_);
    substituidos_ = std::move(anterior);
  }

  // Both arguments hold afterwards what the program left in them.
  void Levanta(std::int16_t& KeyCode, std::int16_t& Shift) {
    if (atual_ == nullptr) return;
    const Rodada rodada(*this);
    atual_->funcao(KeyCode, Shift);
  }

 private:
  struct Tratador {
    FuncaoKeyUp funcao;
    std::unique_ptr<Tratador> seguinte;
  };

  struct Rodada {
    explicit Rodada(EventoKeyUp& oEvento) : evento(oEvento) { ++evento.rodando_; }
    // One by one, each taken out first: what a handler holds may raise the event or set a handler when it
    // goes, and there may be many of them.
    ~Rodada() {
      if (--evento.rodando_ > 0) return;
      for (auto resto = std::move(evento.substituidos_); resto != nullptr;)
        resto = std::move(resto->seguinte);
    }
    Rodada(const Rodada&) = delete;
    Rodada& operator=(const Rodada&) = delete;
    EventoKeyUp& evento;
  };

  std::unique_ptr<Tratador> atual_;
  std::unique_ptr<Tratador> substituidos_;
  int rodando_ = 0;
};

}  // namespace gabarito

#endif  // GABARITO_STATE_EVENTO_KEY_UP_H
