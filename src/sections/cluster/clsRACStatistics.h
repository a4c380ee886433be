#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// How many instances of the cluster were open at each end of the pair (stats$thread).
class clsRACStatistics : public MetricSectionObject {
 public:
  KESTRELIX_FIELDS(START_NUMBER_OF_INSTANCES, END_NUMBER_OF_INSTANCES)
  clsRACStatistics();
};

}  // namespace kestrelix
