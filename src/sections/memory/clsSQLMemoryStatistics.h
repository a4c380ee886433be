#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// Cursors and parent statements in the library cache at both ends of the pair, and their growth as a share
/// of the end (stats$sql_statistics).
class clsSQLMemoryStatistics : public MetricSectionObject {
 public:
  KESTRELIX_FIELDS(AVG_CURSOR_SIZE_KB_BIGIN, AVG_CURSOR_SIZE_KB_END, AVG_CURSOR_SIZE_KB_DIFF,
                   CURSOR_TO_PARENT_RATIO_BIGIN, CURSOR_TO_PARENT_RATIO_END, CURSOR_TO_PARENT_RATIO_DIFF,
                   TOTAL_CURSORS_BIGIN, TOTAL_CURSORS_END, TOTAL_CURSORS_DIFF, TOTAL_PARENTS_BIGIN,
                   TOTAL_PARENTS_END, TOTAL_PARENTS_DIFF)
  clsSQLMemoryStatistics();
};

}  // namespace kestrelix
