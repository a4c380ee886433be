#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// The resource limits of the instance at the end of the pair; limits are texts (stats$resource_limit).
class clsResourceLimitStats : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(RESOURCE_NAME, CURRENT_UTILIZATION, MAXIMUM_UTILIZATION, INITIAL_ALLOCATION, LIMIT)
  clsResourceLimitStats();
};

}  // namespace kestrelix
