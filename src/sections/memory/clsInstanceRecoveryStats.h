#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// What a recovery of the instance would take, as estimated at each of the two snapshots
/// (stats$instance_recovery). Its rows hold across a restart, each being of one snapshot.
class clsInstanceRecoveryStats : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(SNAP, TARGT_MTTR_SEC, ESTD_MTTR_SEC, RECOVERY_ESTD_IOS, ACTUAL_REDO_BLKS, TARGET_REDO_BLKS,
                   LOG_FILE_SIZE_REDO_BLKS, LOG_CKPT_TIMEOUT_REDO_BLKS, LOG_CKPT_INTERVAL_REDO_BLKS)
  clsInstanceRecoveryStats();
};

}  // namespace kestrelix
