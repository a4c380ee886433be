// Ctrl-C, or a terminal that closes, while a file is made: the work stops where it can clean up behind
// itself.
#pragma once

#include <stdexcept>

namespace kestrelix {

class Interrupted : public std::runtime_error {
 public:
  Interrupted() : std::runtime_error("interrupted; nothing was made") {}
};

/// From here on SIGINT, SIGTERM and SIGHUP are noted and no longer end the program at once; a second one
/// does, for a server that does not answer.
void watchInterrupts();
/// Throws Interrupted if one came.
void checkInterrupts();

}  // namespace kestrelix
