#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// What the library cache would save with other sizes of the shared pool (stats$shared_pool_advice). Release
/// 9 estimates no load times.
class clsSharedPoolAdvisory : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(SHARED_POOL_SIZE_MB, SP_SIZE_FACTR, EST_LC_SIZE_MB, EST_LC_MEM_OBJ, EST_LC_TIME_SAVED_SEC,
                   EST_LC_TIME_SAVED_FACTR, EST_LC_LOAD_TIME_SEC, EST_LC_LOAD_TIME_FACTR, EST_LC_MEM_OBJ_HITS)
  clsSharedPoolAdvisory();
};

}  // namespace kestrelix
