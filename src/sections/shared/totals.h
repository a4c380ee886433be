// Figures of a pair that several Sections' statements divide by: each is a query of its own, run when the
// pair is bound, whose result goes into the bind of its name.
#pragma once

#include <string>

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
/// The query behind it under another alias, for statements that take it as an inline view. Not folded.
std::string transactionsSelect(const std::string& alias);
/// ela: whole seconds between the snapshots, 0 for two of the same second (stats$snapshot).
Bind elapsed();

/// The query of ELA, whole seconds between the snapshots, with one row if `inOrder` holds of the snapshots'
/// times, such as "b.snap_time < e.snap_time", and none otherwise.
std::string elapsedSeconds(const std::string& inOrder);

}  // namespace kestrelix
