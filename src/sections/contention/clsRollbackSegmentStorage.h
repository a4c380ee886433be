#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// How large each rollback segment was at the end of the pair, in bytes (stats$rollstat).
class clsRollbackSegmentStorage : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(USN, RSSIZE, ACTIVE, OPTSIZE, HWMSIZE)
  clsRollbackSegmentStorage();
};

}  // namespace kestrelix
