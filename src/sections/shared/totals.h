// Figures of a pair that several Sections' statements divide by: each is a query of its own, run when the
// pair is bound, whose result goes into the bind of its name.
#pragma once

#include "report/statement.h"

namespace kestrelix {

/// TWT: microseconds waited in the pair on events that aren't idle (stats$system_event).
Bind totalWaitTime();
/// TCPU: hundredths of a second of CPU used in the pair (stats$sysstat).
Bind totalCpu();
/// TIMSTAT: 'TRUE' if timed_statistics is the same at both ends, whichever it is, else 'FALSE'; 'FALSE' too
/// where the parameter is missing at one end (stats$parameter).
Bind timedStatistics();
/// TRAN: commits and rollbacks of the pair (stats$sysstat).
Bind transactions();

}  // namespace kestrelix
