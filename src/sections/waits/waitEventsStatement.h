#pragma once

#include <string>

namespace kestrelix {

/// Whether five timers that only ever wait are left out of the list.
enum class Timers { Listed, LeftOut };

/// The events of `table` that waited more at the end of the pair than at its start, longest first, idle ones
/// last. With timed statistics in force only those with a millisecond of waits. Columns EVENT_NAME,
/// WAITS_VALUE, TIME_OUTS_VALUE (%), TOTAL_WAIT_TIME_VALUSE (s), AVG_WAIT_VALUE (ms), WAITS_TXN_VALUE. `tail`
/// is the sort, or the key test of a Col view.
std::string waitEventsStatement(const std::string& table, Timers timers, const std::string& tail);

inline const std::string kWaitEventsSort = "order by A.idle, A.time desc, A.waits desc";
inline const std::string kWaitEventsKey = "where A.EVENT = :ENAME";

}  // namespace kestrelix
