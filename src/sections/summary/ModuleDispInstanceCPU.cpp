#include "sections/summary/ModuleDispInstanceCPU.h"

#include "sections/summary/clsInstanceCPU.h"

namespace kestrelix {
namespace {

using F = clsInstanceCPU::Field;
using Row = MetricRow<clsInstanceCPU>;

Row share(std::string label, std::string member, F value) {
  return {.label = std::move(label),
          .member = std::move(member),
          .cells = {{"VALUE", value, Kind::Share, unit::percent}}};
}

const MetricView<clsInstanceCPU> kView{
    .headings = {"VALUE"},
    .rows = {share("% of total CPU for Instance:", "getPER_OF_TOTAL_CPU_FOR_INSTANCE",
                   F::PER_OF_TOTAL_CPU_FOR_INSTANCE),
             share("% of busy  CPU for Instance:", "getPER_OF_BUSY_CPU_FOR_INSTANCE",
                   F::PER_OF_BUSY_CPU_FOR_INSTANCE),
             share("%DB time waiting for CPU - Resource Mgr:", "getPER_RESOURCE_MGR", F::PER_RESOURCE_MGR)}};

}  // namespace

std::vector<ReleaseViews> instanceCPUViews() { return {viewsOf(kAllVersions, kView)}; }

}  // namespace kestrelix
