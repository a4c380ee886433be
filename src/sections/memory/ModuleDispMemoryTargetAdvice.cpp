#include "sections/memory/ModuleDispMemoryTargetAdvice.h"

#include "sections/memory/clsMemoryTargetAdvice.h"

namespace kestrelix {
namespace {

using F = clsMemoryTargetAdvice::Field;

const ListView<clsMemoryTargetAdvice> kView{
    .all = "getMEMORY_TARGET_ADVICE_ALL",
    .col = "getMEMORY_TARGET_ADVICE_COL",
    .columns = {{"MEMORY SIZE(M)", F::MS, Kind::Key, unit::number},
                {"MEMORY SIZE FACTOR", F::MSF, Kind::Key, unit::number},
                {"EST.DB TIME(S)", F::EDBT, Kind::Count, unit::seconds},
                {"ADVICE RESET", F::AV, Kind::Text}},
    .keys = 2,
};

}  // namespace

std::vector<ReleaseViews> memoryTargetAdviceViews() { return {viewsOf(kAllVersions, kView)}; }

}  // namespace kestrelix
