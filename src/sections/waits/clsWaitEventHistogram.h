#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// How long the waits of an event took: their number, shortened to four digits and a letter, and the
/// percentage of them in each span of time.
class clsWaitEventHistogram : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(EVENT_NAME, TOTAL_WAITS, COL01MS, COL02MS, COL04MS, COL08MS, COL16MS, COL32MS, COL01S,
                   COL01SOVER)
  clsWaitEventHistogram();
};

}  // namespace kestrelix
