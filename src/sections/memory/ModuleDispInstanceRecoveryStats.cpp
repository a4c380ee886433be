#include "sections/memory/ModuleDispInstanceRecoveryStats.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using A = clsInstanceRecoveryStats;

const ListView kView{{{"SNAP", &A::SNAP},
                      {"TARGT MTTR(S)", &A::TARGT_MTTR_SEC},
                      {"ESTD MTTR(S)", &A::ESTD_MTTR_SEC},
                      {"RECOVERY ESTD IOS", &A::RECOVERY_ESTD_IOS},
                      {"ACTUAL REDO BLKS", &A::ACTUAL_REDO_BLKS},
                      {"TARGET REDO BLKS", &A::TARGET_REDO_BLKS},
                      {"LOG FILE SIZE_REDO BLKS", &A::LOG_FILE_SIZE_REDO_BLKS},
                      {"LOG CKPT TIMEOUT REDO BLKS", &A::LOG_CKPT_TIMEOUT_REDO_BLKS},
                      {"LOG CKPT INTERVAL REDO BLKS", &A::LOG_CKPT_INTERVAL_REDO_BLKS}}};

}  // namespace

void gDispInstanceRecoveryStats_All(Workspace& workspace, const std::string& version) {
  clsInstanceRecoveryStats object;
  renderListAll(workspace, object, "getINSTANCE_RECOVERY_STATS_ALL", kView, version);
}

void gDispInstanceRecoveryStats_ColBegin(Workspace& workspace, const std::string& version,
                                         const ColRequest& request) {
  clsInstanceRecoveryStats object;
  renderListCol(workspace, object, "getINSTANCE_RECOVERY_STATS_COL", kView.with(OfPairs::StartTime), version,
                request.keys);
}

void gDispInstanceRecoveryStats_ColEnd(Workspace& workspace, const std::string& version,
                                       const ColRequest& request) {
  clsInstanceRecoveryStats object;
  renderListCol(workspace, object, "getINSTANCE_RECOVERY_STATS_COL", kView.with(OfPairs::EndTime), version,
                request.keys);
}

}  // namespace kestrelix
