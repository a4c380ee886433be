#include "sections/activity_io/ModuleDispInstanceActivityStats.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using I = clsInstanceActivityStats;

const ListView kView1{{{"STATISTIC", &I::STATISTIC},
                       {"TOTAL", &I::TOTAL},
                       {"PER SECOND", &I::PER_SECOND},
                       {"PER TRANS", &I::PER_TRANS}}};
const ListView kView2{
    {{"STATISTIC", &I::STATISTIC}, {"START VALUE", &I::START_VALUE}, {"END VALUE", &I::END_VALUE}}};
const ListView kView3{{{"STATISTIC", &I::STATISTIC}, {"TOTAL", &I::TOTAL}, {"PER HOUR", &I::PER_HOUR}}};

}  // namespace

void gDispInstanceActivityStats1_All(Workspace& workspace, const std::string& version) {
  clsInstanceActivityStats object;
  renderListAll(workspace, object, "getMAIN1_ALL", kView1, version);
}

void gDispInstanceActivityStats1_Col(Workspace& workspace, const std::string& version,
                                     const ColRequest& request) {
  clsInstanceActivityStats object;
  renderListCol(workspace, object, "getMAIN1_COL", kView1, version, request.keys);
}

void gDispInstanceActivityStats2_All(Workspace& workspace, const std::string& version) {
  clsInstanceActivityStats object;
  renderListAll(workspace, object, "getMAIN2_ALL", kView2, version);
}

void gDispInstanceActivityStats2_Col(Workspace& workspace, const std::string& version,
                                     const ColRequest& request) {
  clsInstanceActivityStats object;
  renderListCol(workspace, object, "getMAIN2_COL", kView2, version, request.keys);
}

void gDispInstanceActivityStats3_All(Workspace& workspace, const std::string& version) {
  clsInstanceActivityStats object;
  renderListAll(workspace, object, "getMAIN3_ALL", kView3, version);
}

void gDispInstanceActivityStats3_Col(Workspace& workspace, const std::string& version,
                                     const ColRequest& request) {
  clsInstanceActivityStats object;
  renderListCol(workspace, object, "getMAIN3_COL", kView3, version, request.keys);
}

}  // namespace kestrelix
