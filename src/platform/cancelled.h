#pragma once

#include "platform/database.h"

namespace kestrelix {

/// An action that the user has ended: the one failure of a statement that Database::cancel() ended (SQLSTATE
/// HY008, with the statement) and of the work between statements that Progress told to end.
class Cancelled : public DatabaseError {
 public:
  explicit Cancelled(const std::string& statement = {})
      : DatabaseError("HY008", 0, "the action was cancelled", statement) {}
};

}  // namespace kestrelix
