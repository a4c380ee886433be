#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// Use of the program global area (stats$pgastat): the hit ratio of work areas in the pair, and the sizes at
/// each of its two snapshots. The latter hold across a restart, each row being of one snapshot.
class clsPGAAggrTargetStats : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(PGA_CACHE_HIT_PAR, W_A_MB_PROCESSED, EXTRA_W_A_MB_READ_WRITTEN, SNAP, PGA_AGGR_TARGET_MB,
                   AUTO_PGA_TARGET_MB, PGA_MEM_ALLOC_MB, W_A_PGA_USED_MB, PAR_PGA_W_A_MEM, PAR_AUTO_W_A_MEM,
                   PAR_MAN_W_A_MEM, GLOBAL_MEM_BOUND_KB)
  clsPGAAggrTargetStats();
};

}  // namespace kestrelix
