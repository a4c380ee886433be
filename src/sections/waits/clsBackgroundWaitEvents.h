#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// Waits of the background processes in the pair, by event (stats$bg_event_summary).
class clsBackgroundWaitEvents : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(EVENT_NAME, WAITS_VALUE, TIME_OUTS_VALUE, TOTAL_WAIT_TIME_VALUSE, AVG_WAIT_VALUE,
                   WAITS_TXN_VALUE)
  clsBackgroundWaitEvents();
};

}  // namespace kestrelix
