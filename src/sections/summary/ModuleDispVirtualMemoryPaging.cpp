#include "sections/summary/ModuleDispVirtualMemoryPaging.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using V = clsVirtualMemoryPaging;

const MetricView kView{
    {"VALUE"},
    {{"KB paged out per sec:", "getKE_PAGED_OUT_PER_SEC", {{"VALUE", &V::KE_PAGED_OUT_PER_SEC}}},
     {"KB paged  in per sec:", "getKE_PAGED_IN_PER_SEC", {{"VALUE", &V::KE_PAGED_IN_PER_SEC}}}}};

}  // namespace

void gDispVirtualMemoryPaging_All(Workspace& workspace, const std::string& version) {
  clsVirtualMemoryPaging object;
  renderMetricAll(workspace, object, kView, version);
}

void gDispVirtualMemoryPaging_Col(Workspace& workspace, const std::string& version,
                                  const ColRequest& request) {
  clsVirtualMemoryPaging object;
  renderMetricCol(workspace, object, kView, version, request.row);
}

}  // namespace kestrelix
