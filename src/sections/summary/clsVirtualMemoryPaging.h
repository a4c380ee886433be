#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// KB that the host paged out and in, per second of the pair, one digit; empty where the host doesn't report
/// it or the snapshots are of the same second.
class clsVirtualMemoryPaging : public MetricSectionObject {
 public:
  KESTRELIX_FIELDS(KE_PAGED_OUT_PER_SEC, KE_PAGED_IN_PER_SEC)
  clsVirtualMemoryPaging();
};

}  // namespace kestrelix
