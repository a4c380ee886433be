#include "interrupt.h"

#include <csignal>

namespace kestrelix {

namespace {

volatile std::sig_atomic_t came = 0;

void note(int signal) {
  if (came != 0) {
    std::signal(signal, SIG_DFL);
    std::raise(signal);
  }
  came = 1;
}

}  // namespace

void watchInterrupts() {
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
    // What is ignored stays so: nohup asks for that.
    if (std::signal(signal, note) == SIG_IGN) std::signal(signal, SIG_IGN);
  }
}

void checkInterrupts() {
  if (came != 0) throw Interrupted();
}

}  // namespace kestrelix
