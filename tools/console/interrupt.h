// Ctrl-C, or a terminal that closes, while a file is made.
#pragma once

#include <string>

#include "platform/database.h"

namespace kestrelix::console {

inline constexpr const char* kInterrupted = "interrupted; nothing was made";

/// From here on SIGINT, SIGTERM and SIGHUP no longer end the program themselves: the first asks the making of
/// a file to end, which cleans up behind itself. If that takes longer than most of a second, since a server
/// doesn't answer, say, the file `unfinished` is dropped and the program ends all the same, with kInterrupted
/// behind its name `program`; a second signal does so at once, without a word. To be called once, before
/// anything that starts threads.
void watchInterrupts(const std::string& program, const std::string& unfinished);
/// Whether a signal has come.
bool interrupted();
/// The file has its name, and a signal ends nothing but the program again.
void interruptsEndNothingMore();

/// As long as one lives an interrupt cancels what the database runs, again and again. One at a time.
class CancelledByInterrupts {
 public:
  explicit CancelledByInterrupts(Database& database);
  ~CancelledByInterrupts();
  CancelledByInterrupts(const CancelledByInterrupts&) = delete;
  CancelledByInterrupts& operator=(const CancelledByInterrupts&) = delete;
};

}  // namespace kestrelix::console
