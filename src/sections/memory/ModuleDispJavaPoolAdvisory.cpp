#include "sections/memory/ModuleDispJavaPoolAdvisory.h"

#include "sections/memory/clsJavaPoolAdvisory.h"

namespace kestrelix {
namespace {

using F = clsJavaPoolAdvisory::Field;

const ListView<clsJavaPoolAdvisory> kView{
    .all = "getJAVA_POOL_ADVISORY_ALL",
    .col = "getJAVA_POOL_ADVISORY_COL",
    .columns = {{"JAVA POOL SIZE(MB)", F::JAVA_POOL_SIZE_MB, Kind::Key, unit::number},
                {"JP SIZE FACTR", F::JP_SIZE_FACTR, Kind::Key, unit::number},
                {"EST LC SIZE(MB)", F::EST_LC_SIZE_MB, Kind::Level, unit::megabytes},
                {"EST LC MEM OBJ", F::EST_LC_MEM_OBJ, Kind::Level},
                {"EST LC TIME SAVED(S)", F::EST_LC_TIME_SAVED_SEC, Kind::Level, unit::seconds},
                {"EST LC TIME SAVED FACTR", F::EST_LC_TIME_SAVED_FACTR, Kind::Level},
                {"EST LC LOAD TIME(S)", F::EST_LC_LOAD_TIME_SEC, Kind::Level, unit::seconds},
                {"EST LC LOAD TIME FACTR", F::EST_LC_LOAD_TIME_FACTR, Kind::Level},
                {"EST LC MEM OBJ HITS", F::EST_LC_MEM_OBJ_HITS, Kind::Level}},
    .keys = 2,
};

}  // namespace

std::vector<ReleaseViews> javaPoolAdvisoryViews() { return {viewsOf(kAllVersions, kView)}; }

}  // namespace kestrelix
