#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// The work of remastering in the pair: operations, objects, locks and the seconds of each step. Blank where
/// there was no operation.
class clsDynamicRemasteringStats : public MetricSectionObject {
 public:
  KESTRELIX_FIELDS(REMASTER_OPERATIONS, REMASTER_TIME_SEC, REMASTERD_OBJECTS, QUIESCE_TIME_SEC,
                   AFFINITY_OBJECTS_BEG, FREEZE_TIME_SEC, AFFINITY_OBJECTS_END, CLEANUP_TIME_SEC,
                   REPLAYED_LOCKS_SENT, REPLAY_TIME_SEC, REPLAYED_LOCKS_RECVD, FIXWRITE_TIME_SEC,
                   RESOURCES_CLEANED, SYNC_TIME_SEC)
  clsDynamicRemasteringStats();
};

}  // namespace kestrelix
