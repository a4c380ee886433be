#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// Waits of the whole instance in the pair, by event (stats$system_event).
class clsWaitEvents : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(EVENT_NAME, WAITS_VALUE, TIME_OUTS_VALUE, TOTAL_WAIT_TIME_VALUSE, AVG_WAIT_VALUE,
                   WAITS_TXN_VALUE)
  clsWaitEvents();
};

}  // namespace kestrelix
