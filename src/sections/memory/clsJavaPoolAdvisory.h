#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// What the library cache would save with other sizes of the Java pool (stats$java_pool_advice).
class clsJavaPoolAdvisory : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(JAVA_POOL_SIZE_MB, JP_SIZE_FACTR, EST_LC_SIZE_MB, EST_LC_MEM_OBJ, EST_LC_TIME_SAVED_SEC,
                   EST_LC_TIME_SAVED_FACTR, EST_LC_LOAD_TIME_SEC, EST_LC_LOAD_TIME_FACTR, EST_LC_MEM_OBJ_HITS)
  clsJavaPoolAdvisory();
};

}  // namespace kestrelix
