// What the functions that SQLite calls know of the statement that is running.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "oracle_sql/functions/value.h"
#include "repository_file/names.h"

namespace kestrelix::repository_file {

/// A failure inside a function: Oracle's number and text, and the offset in the statement of what failed.
struct EvaluationFailure {
  int code = 0;
  std::string message;
  std::uint32_t offset = 0;
};

struct Evaluation {
  values::Context context;
  std::optional<EvaluationFailure> failure;
  /// A sum of whole numbers left 64 bits: the statement has to run with sums of NUMBER.
  bool sumTooLarge = false;
  /// The rows that each counted ROWNUM has let pass so far.
  std::vector<std::int64_t> rownums;
};

}  // namespace kestrelix::repository_file
