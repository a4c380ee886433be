#include "console/run.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <iostream>
#include <vector>

#include "console/usage_error.h"

namespace kestrelix::console {
namespace {

/// A standard stream that the caller has closed is held by a descriptor that fails as a closed one does:
/// otherwise the next file or connection would take its number, and what is printed would go there. A file
/// that may grow no further is an error like a full disk, and no end without a word.
void guardStreams() {
  for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    if (::fcntl(stream, F_GETFD) == -1)
      static_cast<void>(::open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY));
  }
  std::signal(SIGXFSZ, SIG_IGN);
}

/// A word of the command line that the text quotes may have line ends.
std::string inOneLine(std::string text) {
  std::replace(text.begin(), text.end(), '\n', ' ');
  return text;
}

}  // namespace

void checkOutput() {
  if (!std::cout) throw std::runtime_error("the standard output cannot be written");
}

int run(const std::string& program, int count, char** values, const Command& command) {
  guardStreams();
  try {
    const std::vector<std::string> words(values + std::min(count, 1), values + count);
    const int status = command(words);
    // What was printed may lie in a buffer still: a command is done when it stands where it was sent.
    std::cout.flush();
    checkOutput();
    return status;
  } catch (const UsageError& error) {
    std::cerr << program << ": " << inOneLine(error.what()) << "; --help tells the usage\n";
    return kExitWrongUsage;
  } catch (const std::exception& error) {
    std::cerr << program << ": " << error.what() << '\n';
    return kExitFailed;
  }
}

}  // namespace kestrelix::console
