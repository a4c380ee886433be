#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// What other instances asked the consistent read block server for in the pair, and how it served them
/// (counts; the longest flush in microseconds).
class clsGlobalCRServedStats : public MetricSectionObject {
 public:
  KESTRELIX_FIELDS(CR_REQUESTS, CURRENT_REQUESTS, DATA_REQUESTS, UNDO_REQUESTS, TX_REQUESTS, CURRENT_RESULTS,
                   PRIVATE_RESULTS, ZERO_RESULTS, DISK_READ_RESULTS, FAIL_RESULTS, FAIRNESS_DOWN_CONVERTS,
                   FAIRNESS_CLEARS, FREE_GC_ELEMENTS, FLUSHES, FLUSHES_QUEUED, FLUSH_QUEUE_FULL,
                   FLUSH_MAX_TIME, LIGHT_WORKS, ERRORS)
  clsGlobalCRServedStats();
};

}  // namespace kestrelix
