#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// Hit ratios of the pair, in percent at two digits, blank where the divisor is 0; three of them are levels
/// at each end, which have no such guard.
class clsInstanceEfficiency : public MetricSectionObject {
 public:
  KESTRELIX_FIELDS(BUFFER_NOWAIT, REDO_NOWAIT, BUFFER_HIT, IN_MEMORY_SORT, LIBRARY_HIT, SOFT_PARSE,
                   EXECUTE_TO_PARSE, LATCH_HIT, PARSE_CPU_TO_PARSE_ELAPSD, NON_PARSE_CPU, MEMORY_USAGE_START,
                   MEMORY_USAGE_END, SQL_WITH_EXECUTIONS_START, SQL_WITH_EXECUTIONS_END,
                   MEMORY_FOR_SQL_WEXEC_START, MEMORY_FOR_SQL_WEXEC_END, OPTIMAL_WA_EXEC)
  clsInstanceEfficiency();

 private:
  void buildCommon();
  void buildOfVersion9();
  void buildWorkAreas();
};

}  // namespace kestrelix
