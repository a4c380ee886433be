// GROUP BY where it asks for several groupings at once.
#pragma once

#include "oracle_sql/node.h"

namespace oracle_sql {

enum class GroupingKind : std::uint8_t { Keys, Rollup, Cube, Sets };

/// A term of GROUP BY: (a, b), ROLLUP(a, (b, c)), CUBE(a, b), GROUPING SETS((a, b), a, ()). What stands in
/// the brackets of the last three are terms again.
struct GroupingTerm {
  explicit GroupingTerm(std::pmr::memory_resource* m) : keys(m), terms(m) {}
  GroupingKind kind = GroupingKind::Keys;
  Place place;
  ExprList keys;  ///< of Keys: none is the empty set, all rows together
  List<GroupingTerm*> terms;
};

}  // namespace oracle_sql
