// GROUP BY where it asks for several groupings at once.
#pragma once

#include "oracle_sql/syntax/node.h"

namespace oracle_sql {

/// A term of GROUP BY: (a, b), or ROLLUP(a, (b, c)), in whose brackets are terms again.
struct GroupingTerm {
  explicit GroupingTerm(std::pmr::memory_resource* m) : keys(m), terms(m) {}
  bool rollup = false;
  Place place;
  ExprList keys;  ///< without rollup: none is the empty set, all rows together
  List<GroupingTerm*> terms;
};

}  // namespace oracle_sql
