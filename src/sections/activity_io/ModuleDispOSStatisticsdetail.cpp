#include "sections/activity_io/ModuleDispOSStatisticsdetail.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using O = clsOSStatisticsdetail;

const ListView kView{{{"SNAP ID", &O::SNAP_ID},
                      {"SNAPSHOT DAY TIME", &O::SNAP_TIME},
                      {"LOAD", &O::LOAD},
                      {"%BUSY", &O::PCT_BUSY},
                      {"%USER", &O::PCT_USER},
                      {"%SYSTEM", &O::PCT_SYS},
                      {"%WIO", &O::PCT_IOWT},
                      {"%WCPU", &O::PCT_CPUWT}}};

}  // namespace

void gDispOSStatisticsdetail_All(Workspace& workspace, const std::string& version) {
  clsOSStatisticsdetail object;
  renderListAll(workspace, object, "getOS_STATISTICS_DETAIL_ALL", kView, version);
}

void gDispOSStatisticsdetail_Col(Workspace& workspace, const std::string& version, const ColRequest&) {
  clsOSStatisticsdetail object;
  renderListCol(workspace, object, "getOS_STATISTICS_DETAIL_COL", kView, version, {});
}

}  // namespace kestrelix
