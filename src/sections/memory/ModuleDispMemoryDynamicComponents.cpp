#include "sections/memory/ModuleDispMemoryDynamicComponents.h"

#include "sections/memory/clsMemoryDynamicComponents.h"

namespace kestrelix {
namespace {

using F = clsMemoryDynamicComponents::Field;

const ListView<clsMemoryDynamicComponents> kView{
    .all = "getMEMORY_DYNAMIC_COMPONENTS_ALL",
    .col = "getMEMORY_DYNAMIC_COMPONENTS_COL",
    .columns = {{"CACHE", F::COMP, Kind::Key},
                {"START SNAP SIZE(M)", F::BEG_SIZE, Kind::Level, unit::megabytes},
                {"END SNAP SIZE(M)", F::END_SIZE, Kind::Level, unit::megabytes},
                {"OP COUNT", F::OP_CNT, Kind::Count},
                {"LAST OP TYPE/MODE", F::LOMOD, Kind::Text},
                {"LAST OP TIME", F::LOTIM, Kind::Time}},
};

}  // namespace

std::vector<ReleaseViews> memoryDynamicComponentsViews() { return {viewsOf(kAllVersions, kView)}; }

}  // namespace kestrelix
