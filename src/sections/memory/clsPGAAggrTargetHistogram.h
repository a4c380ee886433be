#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// Work areas of the pair by the memory that they needed to run in memory alone
/// (stats$sql_workarea_histogram), and how many passes over disk they took.
class clsPGAAggrTargetHistogram : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(LOW_OPTIMAL, HIGH_OPTIMAL, TOTAL_EXECS, OPTIMAL_EXECS, ONE_PASS_EXECS, MULTI_PASS_EXECS)
  clsPGAAggrTargetHistogram();
};

}  // namespace kestrelix
