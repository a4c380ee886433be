#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// Memory of the host, and what the instance takes of it, at both ends of the pair: MB at one digit, and the
/// share in percent.
class clsMemoryStatistics : public MetricSectionObject {
 public:
  KESTRELIX_FIELDS(HOST_MEM_MB_START, HOST_MEM_MB_END, SGA_USE_MB_START, SGA_USE_MB_END, PGA_USE_MB_START,
                   PGA_USE_MB_END, HOST_MEM_USE_FOR_SGA_PGA_START, HOST_MEM_USE_FOR_SGA_PGA_END)
  clsMemoryStatistics();
};

}  // namespace kestrelix
