#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// The latches that slept in the pair: gets, misses, sleeps and gets by spinning (stats$latch).
class clsLatchSleepBreakdown : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(LATCH_NAME, GET_REQUESTS, MISSES, SLEEPS, SPIN_GETS)
  clsLatchSleepBreakdown();
};

}  // namespace kestrelix
