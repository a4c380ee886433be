#include "sections/summary/ModuleDispHostCPU.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using H = clsHostCPU;

MetricRow share(std::string label, std::string member, Accessor value) {
  return {std::move(label), std::move(member), {{"OTHER VALUE", value}}};
}

/// The Col view of the last row bears the label of the row before; users know it so.
MetricRow waitForCpu() {
  MetricRow row = share("WCPU:", "getWCPU", &H::WCPU_VALUE);
  row.colLabel = "WIO:";
  return row;
}

const MetricView kView{{"START", "END", "OTHER VALUE"},
                       {{"CPUs:", "getCPUS", {{"START", &H::CPUS_START}, {"END", &H::CPUS_END}}},
                        {"Load Average:", "getLOAD", {{"START", &H::LOAD_START}, {"END", &H::LOAD_END}}},
                        share("User:", "getUSER", &H::USER_VALUE),
                        share("System:", "getSYSTEM", &H::SYSTEM_VALUE),
                        share("Idle:", "getIDLE", &H::IDLE_VALUE),
                        share("WIO:", "getWIO", &H::WIO_VALUE),
                        waitForCpu()}};

}  // namespace

void gDispHostCPU_All(Workspace& workspace, const std::string& version) {
  clsHostCPU object;
  renderMetricAll(workspace, object, kView, version);
}

void gDispHostCPU_Col(Workspace& workspace, const std::string& version, const ColRequest& request) {
  clsHostCPU object;
  renderMetricCol(workspace, object, kView, version, request.row);
}

}  // namespace kestrelix
