#include "sections/summary/ModuleDispHostCPU.h"

#include "sections/summary/clsHostCPU.h"

namespace kestrelix {
namespace {

using F = clsHostCPU::Field;
using Row = MetricRow<clsHostCPU>;

Row levels(std::string label, std::string member, F start, F end) {
  return {.label = std::move(label),
          .member = std::move(member),
          .cells = {{"START", start, Kind::Level}, {"END", end, Kind::Level}}};
}
Row share(std::string label, std::string member, F value) {
  return {.label = std::move(label),
          .member = std::move(member),
          .cells = {{"OTHER VALUE", value, Kind::Share, unit::percent}}};
}

/// The Col view of the last row bears the label of the row before; users know it so.
Row waitForCpu() {
  Row row = share("WCPU:", "getWCPU", F::WCPU_VALUE);
  row.colLabel = "WIO:";
  return row;
}

const MetricView<clsHostCPU> kView{
    .headings = {"START", "END", "OTHER VALUE"},
    .rows = {levels("CPUs:", "getCPUS", F::CPUS_START, F::CPUS_END),
             levels("Load Average:", "getLOAD", F::LOAD_START, F::LOAD_END),
             share("User:", "getUSER", F::USER_VALUE), share("System:", "getSYSTEM", F::SYSTEM_VALUE),
             share("Idle:", "getIDLE", F::IDLE_VALUE), share("WIO:", "getWIO", F::WIO_VALUE), waitForCpu()}};

}  // namespace

std::vector<ReleaseViews> hostCPUViews() { return {viewsOf(kAllVersions, kView)}; }

}  // namespace kestrelix
