#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// What the traffic of work areas would be with other sizes of the program global area, as estimated at the
/// end of the pair (stats$pga_target_advice).
class clsPGAMemoryAdvisory : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(PGA_TARGET_EST_MB, SIZE_FACTR, W_A_MB_PROCESSED, W_A_MB_READ_WRITTEN_TO_DISK,
                   CACHE_HIT_PAR, OVERALLOC_COUNT)
  clsPGAMemoryAdvisory();
};

}  // namespace kestrelix
