#include "sections/summary/ModuleDispInstanceCPU.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using I = clsInstanceCPU;

const MetricView kView{
    {"VALUE"},
    {{"% of total CPU for Instance:",
      "getPER_OF_TOTAL_CPU_FOR_INSTANCE",
      {{"VALUE", &I::PER_OF_TOTAL_CPU_FOR_INSTANCE}}},
     {"% of busy  CPU for Instance:",
      "getPER_OF_BUSY_CPU_FOR_INSTANCE",
      {{"VALUE", &I::PER_OF_BUSY_CPU_FOR_INSTANCE}}},
     {"%DB time waiting for CPU - Resource Mgr:", "getPER_RESOURCE_MGR", {{"VALUE", &I::PER_RESOURCE_MGR}}}}};

}  // namespace

void gDispInstanceCPU_All(Workspace& workspace, const std::string& version) {
  clsInstanceCPU object;
  renderMetricAll(workspace, object, kView, version);
}

void gDispInstanceCPU_Col(Workspace& workspace, const std::string& version, const ColRequest& request) {
  clsInstanceCPU object;
  renderMetricCol(workspace, object, kView, version, request.row);
}

}  // namespace kestrelix
