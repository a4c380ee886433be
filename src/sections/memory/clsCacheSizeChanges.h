#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// Sizes of the caches that the instance sizes by itself, at the start and at the end of the pair
/// (stats$parameter).
class clsCacheSizeChanges : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(CACHE, START_SIZE_MB, END_SIZE_MB, DIFF_SIZE_MB)
  clsCacheSizeChanges();
};

}  // namespace kestrelix
