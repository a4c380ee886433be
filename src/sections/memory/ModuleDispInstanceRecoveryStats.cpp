#include "sections/memory/ModuleDispInstanceRecoveryStats.h"

#include "sections/memory/clsInstanceRecoveryStats.h"

namespace kestrelix {
namespace {

using F = clsInstanceRecoveryStats::Field;

const ListView<clsInstanceRecoveryStats> kView{
    .all = "getINSTANCE_RECOVERY_STATS_ALL",
    .col = "getINSTANCE_RECOVERY_STATS_COL",
    .columns = {{"SNAP", F::SNAP, Kind::Key},
                {"TARGT MTTR(S)", F::TARGT_MTTR_SEC, Kind::Level, unit::seconds},
                {"ESTD MTTR(S)", F::ESTD_MTTR_SEC, Kind::Level, unit::seconds},
                {"RECOVERY ESTD IOS", F::RECOVERY_ESTD_IOS, Kind::Level},
                {"ACTUAL REDO BLKS", F::ACTUAL_REDO_BLKS, Kind::Level, unit::blocks},
                {"TARGET REDO BLKS", F::TARGET_REDO_BLKS, Kind::Level, unit::blocks},
                {"LOG FILE SIZE_REDO BLKS", F::LOG_FILE_SIZE_REDO_BLKS, Kind::Level, unit::blocks},
                {"LOG CKPT TIMEOUT REDO BLKS", F::LOG_CKPT_TIMEOUT_REDO_BLKS, Kind::Level, unit::blocks},
                {"LOG CKPT INTERVAL REDO BLKS", F::LOG_CKPT_INTERVAL_REDO_BLKS, Kind::Level, unit::blocks}},
    .ofPairs = OfPairs::SnapshotOfRow,
};

}  // namespace

std::vector<ReleaseViews> instanceRecoveryStatsViews() { return {viewsOf(kAllVersions, kView)}; }

}  // namespace kestrelix
