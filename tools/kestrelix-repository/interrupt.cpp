#include "interrupt.h"

#include <csignal>

namespace kestrelix {

namespace {

volatile std::sig_atomic_t came = 0;

void note(int) { came = 1; }

}  // namespace

void watchInterrupts() {
  std::signal(SIGINT, note);
  std::signal(SIGTERM, note);
}

void checkInterrupts() {
  if (came != 0) throw Interrupted();
}

}  // namespace kestrelix
