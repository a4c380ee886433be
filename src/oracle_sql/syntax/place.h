// Where something stands in a statement.
#pragma once

#include <cstdint>

namespace oracle_sql {

/// A place in the text of a statement: byte offset from 0, line and column from 1 (columns count characters).
struct Place {
  std::uint32_t offset = 0;
  std::uint32_t line = 1;
  std::uint32_t column = 1;
};

}  // namespace oracle_sql
