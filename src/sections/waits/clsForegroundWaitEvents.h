#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// Waits of the sessions of users in the pair, by event (stats$system_event, which counts them apart from
/// version 11 on). IDLE only sorts and isn't shown.
class clsForegroundWaitEvents : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(EVENT_NAME, WAITS, PCTTO, TIME_SEC, AVWT_FMT, TXWAITS, PCTTCT, IDLE)
  clsForegroundWaitEvents();
};

}  // namespace kestrelix
