#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// Where the buffers came from that the instance asked for, as percentages of the gets: its own cache,
/// another instance's, disk. A pair without gets is a failure.
class clsGlobalCacheEfficiency : public MetricSectionObject {
 public:
  KESTRELIX_FIELDS(LOCAL_CACHE, REMOTE_CACHE, DISK)
  clsGlobalCacheEfficiency();
};

}  // namespace kestrelix
