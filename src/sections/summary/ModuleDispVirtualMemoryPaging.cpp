#include "sections/summary/ModuleDispVirtualMemoryPaging.h"

#include "sections/summary/clsVirtualMemoryPaging.h"

namespace kestrelix {
namespace {

using F = clsVirtualMemoryPaging::Field;
using Row = MetricRow<clsVirtualMemoryPaging>;

Row rate(std::string label, std::string member, F value) {
  return {.label = std::move(label),
          .member = std::move(member),
          .cells = {{"VALUE", value, Kind::Rate, unit::kilobytes}}};
}

const MetricView<clsVirtualMemoryPaging> kView{
    .headings = {"VALUE"},
    .rows = {rate("KB paged out per sec:", "getKE_PAGED_OUT_PER_SEC", F::KE_PAGED_OUT_PER_SEC),
             rate("KB paged  in per sec:", "getKE_PAGED_IN_PER_SEC", F::KE_PAGED_IN_PER_SEC)}};

}  // namespace

std::vector<ReleaseViews> virtualMemoryPagingViews() { return {viewsOf(kAllVersions, kView)}; }

}  // namespace kestrelix
