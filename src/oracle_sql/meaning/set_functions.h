// The functions over several rows: aggregates and window functions.
#pragma once

#include <cstdint>
#include <string_view>

#include "oracle_sql/types.h"

namespace oracle_sql {

/// How the type of the result follows from that of the first argument.
/// LikeOrder and NumberOrDateOfOrder: from that of what WITHIN GROUP sorts by.
enum class SetResult : std::uint8_t {
  Number,
  Whole,
  LikeArgument,
  NumberOrDate,
  Text,
  LikeOrder,
  NumberOrDateOfOrder
};

struct SetFunction {
  std::string_view name;
  int minArguments;
  int maxArguments;
  bool aggregate;   ///< may stand without OVER
  bool window;      ///< may stand with OVER
  bool needsOrder;  ///< OVER must have ORDER BY
  bool keeps;       ///< may have KEEP (DENSE_RANK ...), and DISTINCT
  SetResult result;

  bool sortsWithinGroup() const {
    return result == SetResult::Text || result == SetResult::LikeOrder ||
           result == SetResult::NumberOrDateOfOrder;
  }
};

/// The function of that upper-case name, or null.
const SetFunction* findSetFunction(std::string_view name);

/// True for a function of Oracle's that this program does not have.
bool isOracleFunction(std::string_view name);

}  // namespace oracle_sql
