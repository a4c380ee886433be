#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// The execution plans that one SQL statement used in the pair, one under the other, a record a step
/// (stats$sql_plan_usage, stats$sql_plan). B5 is its hash.
class clsSQLPlan : public SectionObject {
 public:
  KESTRELIX_FIELDS(OPERATION, PHV_OBJECTNAME, ROWS_VALUE, BYTES_VALUE, COST_VALUE)
  clsSQLPlan();

  /// A statement without a plan has one empty record. False after a box.
  bool getSQL_PLAN(int pairIndex);
};

}  // namespace kestrelix
