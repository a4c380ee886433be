#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// What the database time and the physical reads would be with other sizes of the system global area, as
/// estimated at the end of the pair (stats$sga_target_advice).
class clsSGATargetAdvisory : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(SGA_TARGET_SIZE_MB, SGA_SIZE_FACTOR, EST_DB_TIME_SEC, EST_DB_TIME_FACTOR,
                   EST_PHYSICAL_READS)
  clsSGATargetAdvisory();
};

}  // namespace kestrelix
