#include "console/interrupt.h"

#include <unistd.h>

#include <atomic>
#include <chrono>
#include <csignal>
#include <mutex>
#include <string>
#include <thread>

#include "console/run.h"

namespace kestrelix::console {
namespace {

constexpr timespec kPatience{0, 800'000'000};
constexpr std::chrono::milliseconds kUntilTold{100};
constexpr std::chrono::milliseconds kBetweenCancels{20};

struct Watch {
  sigset_t signals;
  std::string program;
  std::string unfinished;
  std::atomic<bool> came = false;
  std::atomic<bool> made = false;
  std::mutex mutex;
  Database* database = nullptr;  // under the mutex
};

/// Its threads are there until the program is gone.
Watch& watch() {
  static Watch& only = *new Watch;
  return only;
}

[[noreturn]] void cancelAgainAndAgain() {
  for (;;) {
    {
      const std::lock_guard lock(watch().mutex);
      if (watch().database != nullptr) watch().database->cancel();
    }
    std::this_thread::sleep_for(kBetweenCancels);
  }
}

/// As if it had never been caught.
[[noreturn]] void endBy(int signal) {
  std::signal(signal, SIG_DFL);
  pthread_sigmask(SIG_UNBLOCK, &watch().signals, nullptr);
  ::kill(::getpid(), signal);
  for (;;) ::pause();
}

/// Nothing is asked of the thread that makes the file, which may wait for ever.
[[noreturn]] void giveUp() {
  ::unlink(watch().unfinished.c_str());  // it may have been begun meanwhile
  const std::string text =
      (::isatty(STDERR_FILENO) == 1 ? "\r\033[K" : "") + watch().program + ": " + kInterrupted + "\n";
  static_cast<void>(::write(STDERR_FILENO, text.data(), text.size()));
  ::_exit(kExitFailed);
}

[[noreturn]] void waitForSignals() {
  Watch& own = watch();
  for (;;) {
    int signal = 0;
    if (sigwait(&own.signals, &signal) != 0) continue;
    if (own.made) endBy(signal);
    own.came = true;
    std::thread(cancelAgainAndAgain).detach();
    const int second = sigtimedwait(&own.signals, nullptr, &kPatience);
    const bool dropped = !own.made && ::unlink(own.unfinished.c_str()) == 0;
    if (second > 0) endBy(second);
    // A file that isn't there has not been begun, or has taken its name just now and is about to be told of.
    if (!dropped) std::this_thread::sleep_for(kUntilTold);
    if (!own.made) giveUp();
  }
}

}  // namespace

void watchInterrupts(const std::string& program, const std::string& unfinished) {
  Watch& own = watch();
  own.program = program;
  own.unfinished = unfinished;
  sigemptyset(&own.signals);
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
    // What is ignored stays so: nohup asks for that.
    struct sigaction present {};
    if (::sigaction(signal, nullptr, &present) == 0 && present.sa_handler != SIG_IGN)
      sigaddset(&own.signals, signal);
  }
  pthread_sigmask(SIG_BLOCK, &own.signals, nullptr);
  std::thread(waitForSignals).detach();
}

bool interrupted() { return watch().came; }

void interruptsEndNothingMore() { watch().made = true; }

CancelledByInterrupts::CancelledByInterrupts(Database& database) {
  const std::lock_guard lock(watch().mutex);
  watch().database = &database;
}

CancelledByInterrupts::~CancelledByInterrupts() {
  const std::lock_guard lock(watch().mutex);
  watch().database = nullptr;
}

}  // namespace kestrelix::console
