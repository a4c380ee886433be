#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// What the physical reads would be with other sizes of each buffer pool, as estimated at the end of the pair
/// (stats$db_cache_advice). Release 9 estimates no times: the last two fields stay empty.
class clsBufferPoolAdvisory : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(POOL, SIZE_FOR_EST_MB, SIZE_FACTR, BUFFER_THOUSANDS, EST_PHYS_READ_FACTR,
                   ESTIMATED_PHYS_READS_THOUSANDS, EST_PHYS_READ_TIME, EST_PAR_DB_TIME_FOR_READS)
  clsBufferPoolAdvisory();
};

}  // namespace kestrelix
