#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// Sizes of the regions of the system global area at both ends of the pair (stats$sga).
class clsSGAMemorySummary : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(SGA_REGIONS, START_SIZE_MB, END_SIZE_MB, DIFF_SIZE_MB)
  clsSGAMemorySummary();
};

}  // namespace kestrelix
