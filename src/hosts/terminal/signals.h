// Signals as something to wait for beside a key.
#ifndef HOSTS_TERMINAL_SIGNALS_H
#define HOSTS_TERMINAL_SIGNALS_H

#include <chrono>
#include <csignal>
#include <optional>
#include <vector>

namespace gabarito::terminal {

// While one of these lives, the signals that end, stop or resize the program are held back and come out of
// Wait alone: nothing is interrupted half-way. A signal that the program was started to ignore stays ignored.
class Signals {
 public:
  Signals();
  ~Signals();
  Signals(const Signals&) = delete;
  Signals& operator=(const Signals&) = delete;

  // What Wait came back for.
  struct Event {
    int signal = 0;       // 0: `descriptor` can be read, or one of the next two
    bool closed = false;  // the other end of `descriptor` has gone
    bool late = false;    // `most` has passed
  };
  Event Wait(int descriptor, std::optional<std::chrono::milliseconds> most);

  // Stops the program as SIGTSTP does, and returns when it is continued.
  void Stop();

  // The handlers of a library that has been set up meanwhile give way to these.
  void Install();

 private:
  struct Former {
    int signal;
    struct sigaction action;
  };

  std::vector<Former> former_;
  sigset_t former_mask_;
};

}  // namespace gabarito::terminal

#endif  // HOSTS_TERMINAL_SIGNALS_H
