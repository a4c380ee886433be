#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// Memory of each process at each of the two snapshots, as a whole (stats$process_rollup) and by category
/// (stats$process_memory_rollup). Its rows hold across a restart, each being of one snapshot.
class clsTopProcessMemory : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(SNAP, PID, CATEGORY, ALLOC_MB, USED_MB, FREE_MB, MAX_ALLOC_MB, HIST_MAX_ALLOC_MB)
  clsTopProcessMemory();
};

}  // namespace kestrelix
