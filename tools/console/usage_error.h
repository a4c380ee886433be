#pragma once

#include <stdexcept>

namespace kestrelix::console {

/// A command line that can't be taken; its text is one line for the user.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace kestrelix::console
