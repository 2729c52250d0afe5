#include "hosts/terminal/signals.h"

#include <poll.h>

#include <cerrno>
#include <iterator>

namespace gabarito::terminal {
namespace {

constexpr int kHandled[] = {SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGTSTP, SIGCONT, SIGWINCH};

// One set for the process, as signals are.
volatile std::sig_atomic_t g_pending[std::size(kHandled)];

void Remember(int signal) {
  for (std::size_t i = 0; i < std::size(kHandled); ++i) {
    if (kHandled[i] == signal) g_pending[i] = 1;
  }
}

// The first in the order of kHandled, so that what ends the program comes before the rest; 0 for none.
int TakePending() {
  for (std::size_t i = 0; i < std::size(kHandled); ++i) {
    if (g_pending[i] == 0) continue;
    g_pending[i] = 0;
    return kHandled[i];
  }
  return 0;
}

sigset_t SetOfHandled() {
  sigset_t set;
  sigemptyset(&set);
  for (const int signal : kHandled) sigaddset(&set, signal);
  return set;
}

}  // namespace

Signals::Signals() {
  for (volatile std::sig_atomic_t& pending : g_pending) pending = 0;
  const sigset_t set = SetOfHandled();
  sigprocmask(SIG_BLOCK, &set, &former_mask_);
  for (const int signal : kHandled) {
    struct sigaction action;
    sigaction(signal, nullptr, &action);
    // nohup and shells that start a program in the background have it ignore some.
    if (action.sa_handler != SIG_IGN) former_.push_back({signal, action});
  }
  Install();
}

Signals::~Signals() {
  for (const Former& former : former_) sigaction(former.signal, &former.action, nullptr);
  sigprocmask(SIG_SETMASK, &former_mask_, nullptr);
}

void Signals::Install() {
  struct sigaction action {};
  action.sa_handler = Remember;
  sigfillset(&action.sa_mask);
  for (const Former& former : former_) sigaction(former.signal, &action, nullptr);
}

Signals::Event Signals::Wait(int descriptor, std::optional<std::chrono::milliseconds> most) {
  // A signal between a check of the flags and a plain poll would wait for the next key; ppoll lets signals in
  // and waits in one step.
  sigset_t open = former_mask_;
  for (const Former& former : former_) sigdelset(&open, former.signal);
  // A signal that changes nothing starts the time anew, which is a moment more.
  timespec time{};
  if (most) time = {.tv_sec = most->count() / 1000, .tv_nsec = most->count() % 1000 * 1000000};
  pollfd input{.fd = descriptor, .events = POLLIN, .revents = 0};
  while (true) {
    if (const int signal = TakePending()) return {.signal = signal};
    const int ready = ppoll(&input, 1, most ? &time : nullptr, &open);
    if (ready < 0 && errno == EINTR) continue;
    if (ready < 0 || (input.revents & (POLLHUP | POLLERR | POLLNVAL)) != 0) return {.closed = true};
    return {.late = ready == 0};
  }
}

void Signals::Stop() {
  struct sigaction stop {
  }, mine{};
  stop.sa_handler = SIG_DFL;
  sigaction(SIGTSTP, &stop, &mine);
  sigset_t set;
  sigemptyset(&set);
  sigaddset(&set, SIGTSTP);
  raise(SIGTSTP);
  sigprocmask(SIG_UNBLOCK, &set, nullptr);  // here the program stands still
  sigprocmask(SIG_BLOCK, &set, nullptr);
  sigaction(SIGTSTP, &mine, nullptr);
}

}  // namespace gabarito::terminal
