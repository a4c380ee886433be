#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// Sleeps on mutexes in the pair, by type and place, and the seconds waited (stats$mutex_sleep).
class clsMutexSleep : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(MUTEX_TYPE, LOCATION, SLEEPS, WAIT_TIME_SEC)
  clsMutexSleep();
};

}  // namespace kestrelix
