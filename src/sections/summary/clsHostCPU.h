#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// What the host reports of its processors: how many and their load at both ends, and the shares of the
/// pair's processor time, in percent at two digits (stats$osstat).
class clsHostCPU : public MetricSectionObject {
 public:
  KESTRELIX_FIELDS(CPUS_START, CPUS_END, LOAD_START, LOAD_END, USER_VALUE, SYSTEM_VALUE, IDLE_VALUE,
                   WIO_VALUE, WCPU_VALUE)
  clsHostCPU();
};

}  // namespace kestrelix
