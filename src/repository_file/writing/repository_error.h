// What goes wrong while a repository file is made.
#pragma once

#include <stdexcept>

namespace kestrelix::repository_file {

/// A repository file that cannot be written; what() names the file.
class RepositoryError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// What becomes of a file that bears the name already when the new one is whole.
enum class Existing { Replace, Keep };

}  // namespace kestrelix::repository_file
