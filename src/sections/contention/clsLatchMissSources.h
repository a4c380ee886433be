#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// Where in the code latches missed and slept in the pair; a place that is new at its end counts from zero
/// (stats$latch_misses_summary).
class clsLatchMissSources : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(LATCH_NAME, WHERE_FROM, NOWAIT_MISSES, SLEEPS, WAITER_SLEEPS)
  clsLatchMissSources();
};

}  // namespace kestrelix
