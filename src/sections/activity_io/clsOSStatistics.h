#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// Operating system statistics of the pair (stats$osstat): levels at its end, the growth of what counts up.
class clsOSStatistics : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(STATISTIC, TOTAL)
  clsOSStatistics();
};

}  // namespace kestrelix
