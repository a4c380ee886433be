#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// Memory of all processes together at each of the two snapshots, as a whole (stats$process_rollup) and by
/// category (stats$process_memory_rollup). Its rows hold across a restart, each being of one snapshot.
class clsProcessMemorySummaryStats : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(SNAP, CATEGORY, ALLOC_MB, USED_MB, FREE_MB, AVG_ALLOC_MB, STDDEV_ALLOC_MB, MAX_ALLOC_MB,
                   HIST_MAX_ALLOC_MB, NUM_PROCS_OR_ALLOCS)
  clsProcessMemorySummaryStats();
};

}  // namespace kestrelix
