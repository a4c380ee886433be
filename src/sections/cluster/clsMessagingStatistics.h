#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// How long the messages between the instances waited and were worked on, in milliseconds, and how they were
/// sent, in percent. Blank where there were none.
class clsMessagingStatistics : public MetricSectionObject {
 public:
  KESTRELIX_FIELDS(AMSQT, AMSQTOK, AMRQT, AGCMPT, AGEMPT, PODSM, POISM, POFCM)
  clsMessagingStatistics();
};

}  // namespace kestrelix
