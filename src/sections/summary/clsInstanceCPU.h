#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// How much of the host's processor time the instance used in the pair, in percent, and how much of its time
/// it waited for the resource manager.
class clsInstanceCPU : public MetricSectionObject {
 public:
  KESTRELIX_FIELDS(PER_OF_TOTAL_CPU_FOR_INSTANCE, PER_OF_BUSY_CPU_FOR_INSTANCE, PER_RESOURCE_MGR)
  clsInstanceCPU();
};

}  // namespace kestrelix
