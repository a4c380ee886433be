#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// The events that took most of the pair's call time, with a row "CPU time" among them: waits, seconds,
/// average milliseconds, and percent of the time waited and used. Idle events don't count.
class clsTopNWaitEvents : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(EVENT_NAME, WAITS_VALUE, TIME_SECOND, AVWAIT_VALUE, PCTWTT_VALUE)
  clsTopNWaitEvents();
};

}  // namespace kestrelix
