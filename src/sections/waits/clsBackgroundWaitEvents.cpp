#include "sections/waits/clsBackgroundWaitEvents.h"

#include "sections/shared/totals.h"
#include "sections/waits/waitEventsStatement.h"

namespace kestrelix {

clsBackgroundWaitEvents::clsBackgroundWaitEvents()
    : ListSectionObject("clsBackgroundWaitEvents", fieldNames(),
                        {argument("ENAME", ServerType::String), timedStatistics(), transactions()}) {
  all("getBACKGROUND_WAIT_EVENTS",
      waitEventsStatement("stats$bg_event_summary", Timers::Listed, kWaitEventsSort));
  col("getT_BACKGROUND_WAIT_EVENTS",
      waitEventsStatement("stats$bg_event_summary", Timers::Listed, kWaitEventsKey));
}

}  // namespace kestrelix
