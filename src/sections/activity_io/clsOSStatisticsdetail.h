#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// Load and CPU use of the host between the snapshots of the pair, one row a snapshot (stats$osstat). The
/// first snapshot has no earlier one to compare with: its percentages are blank.
class clsOSStatisticsdetail : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(SNAP_ID, SNAP_TIME, LOAD, PCT_BUSY, PCT_USER, PCT_SYS, PCT_IOWT, PCT_CPUWT)
  clsOSStatisticsdetail();
};

}  // namespace kestrelix
