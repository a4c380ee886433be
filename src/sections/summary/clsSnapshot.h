#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// When the two snapshots of a pair were taken, at which level, with how many sessions and cursors, and the
/// minutes between them. The snapshots' own data hold across a restart, the elapsed time doesn't.
class clsSnapshot : public MetricSectionObject {
 public:
  KESTRELIX_FIELDS(START_SNAP_ID, START_SNAP_TIME, START_SESSIONS, START_CURSOR_PER_SESSION, START_LEVEL,
                   START_COMMENT, END_SNAP_ID, END_SNAP_TIME, END_SESSIONS, END_CURSOR_PER_SESSION, END_LEVEL,
                   END_COMMENT, ELAPSED)
  clsSnapshot();
};

}  // namespace kestrelix
