// Ctrl-C, or a terminal that closes, while a file is made.
#pragma once

#include <filesystem>

#include "platform/database.h"

namespace kestrelix {

inline constexpr const char* kInterrupted = "interrupted; nothing was made";

/// From here on SIGINT, SIGTERM and SIGHUP no longer end the program themselves: the first asks the making of
/// `file` to end, which cleans up behind itself. If that takes longer than most of a second, since a server
/// doesn't answer, say, the program drops the unfinished file and ends all the same; a second signal does so
/// at once. To be called once, before anything that starts threads.
void watchInterrupts(const std::filesystem::path& file);
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

}  // namespace kestrelix
