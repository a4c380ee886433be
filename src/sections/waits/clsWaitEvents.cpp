#include "sections/waits/clsWaitEvents.h"

#include "sections/shared/totals.h"
#include "sections/waits/waitEventsStatement.h"

namespace kestrelix {

clsWaitEvents::clsWaitEvents()
    : ListSectionObject("clsWaitEvents", fieldNames(),
                        {argument("ENAME", ServerType::String), timedStatistics(), transactions()}) {
  all("getWAIT_EVENTS", waitEventsStatement("stats$system_event", Timers::LeftOut, kWaitEventsSort));
  col("getT_WAIT_EVENTS", waitEventsStatement("stats$system_event", Timers::LeftOut, kWaitEventsKey));
}

}  // namespace kestrelix
