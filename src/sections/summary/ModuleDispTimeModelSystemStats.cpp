#include "sections/summary/ModuleDispTimeModelSystemStats.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using T = clsTimeModelSystemStats;

const ListView kView{
    {{"STATISTIC", &T::STATISTIC}, {"TIME (S)", &T::TIME_VALUE}, {"% OF DB TIME", &T::PER_DBTIME_VALUE}}};

}  // namespace

void gDispTimeModelSystemStats_All(Workspace& workspace, const std::string& version) {
  clsTimeModelSystemStats object;
  renderListAll(workspace, object, "getTIME_MODEL_SYSTEM_STATS_ALL", kView, version);
}

void gDispTimeModelSystemStats_Col(Workspace& workspace, const std::string& version,
                                   const ColRequest& request) {
  clsTimeModelSystemStats object;
  renderListCol(workspace, object, "getTIME_MODEL_SYSTEM_STATS_COL", kView, version, request.keys);
}

}  // namespace kestrelix
