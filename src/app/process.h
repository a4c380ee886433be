// What a program without a window does before all else.
#pragma once

#include <fcntl.h>
#include <unistd.h>

#include <csignal>

namespace kestrelix {

/// A standard stream that the caller has closed is held by a descriptor that fails as a closed one does:
/// otherwise the next file or connection would take its number, and what is printed would go there. A file
/// that may grow no further is an error like a full disk, and no end without a word.
inline void guardStreams() {
  for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    if (::fcntl(stream, F_GETFD) == -1)
      static_cast<void>(::open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY));
  }
  std::signal(SIGXFSZ, SIG_IGN);
}

}  // namespace kestrelix
