#include "sections/memory/ModuleDispMemoryResizeOperations.h"

#include "sections/memory/clsMemoryResizeOperations.h"

namespace kestrelix {
namespace {

using F = clsMemoryResizeOperations::Field;

const ListView<clsMemoryResizeOperations> kView{
    .all = "getMEMORY_RESIZE_OPERATIONS_ALL",
    .col = "getMEMORY_RESIZE_OPERATIONS_COL",
    .columns = {{"OPERATION TIME", F::OP_ST_TM, Kind::Time},
                {"ELAP(S)", F::ELAPSD_S, Kind::Count, unit::seconds},
                {"CACHE", F::COMP, Kind::Key},
                {"INIT SIZE(M)", F::INI_SZ, Kind::Level, unit::megabytes},
                {"DELTA(M) & MODE", F::OP_TM, Kind::Text},
                {"FINAL SIZE(M)", F::END_SZ, Kind::Level, unit::megabytes},
                {"STATUS", F::stat, Kind::Text},
                {"NUM OPS", F::NUM_OPS, Kind::Count}},
    .keys = 3,
};

}  // namespace

std::vector<ReleaseViews> memoryResizeOperationsViews() { return {viewsOf(kAllVersions, kView)}; }

}  // namespace kestrelix
