#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// What each rollback segment that was there at both ends did in the pair (stats$rollstat).
class clsRollbackSegmentStats : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(USN, GETS, WAITS, WRITES, WRAPS, SHRINKS, EXTENDS)
  clsRollbackSegmentStats();
};

}  // namespace kestrelix
