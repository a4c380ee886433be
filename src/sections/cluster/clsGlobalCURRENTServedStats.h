#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// What the current block server did for other instances in the pair: pins, flushes and writes, and the
/// percentage of each that took below 1 ms, 10 ms, 100 ms, 1 s and 10 s.
class clsGlobalCURRENTServedStats : public MetricSectionObject {
 public:
  KESTRELIX_FIELDS(PINS, PIN1, PIN10, PIN100, PIN1000, PIN10000, FLUSHES, FLUSH1, FLUSH10, FLUSH100,
                   FLUSH1000, FLUSH10000, WRITES, WRITE1, WRITE10, WRITE100, WRITE1000, WRITE10000)
  clsGlobalCURRENTServedStats();
};

}  // namespace kestrelix
