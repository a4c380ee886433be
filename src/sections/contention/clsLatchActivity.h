#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// What every latch that was asked for in the pair was asked: gets and misses (%), sleeps a miss, seconds
/// waited (stats$latch).
class clsLatchActivity : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(LATCH, GET_REQUESTS, PCT_GET_MISS, AVG_SLPS_MISS, WAIT_TIME_SEC, NOWAIT_REQUESTS,
                   PCT_NOWAIT_MISS)
  clsLatchActivity();
};

}  // namespace kestrelix
