#include "sections/summary/ModuleDispMemoryStatistics.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using M = clsMemoryStatistics;

MetricRow levels(std::string label, std::string member, Accessor start, Accessor end) {
  return {std::move(label), std::move(member), {{"START", start}, {"END", end}}};
}

const MetricView kView{
    {"START", "END"},
    {levels("Host Mem (MB):", "getHOST_MEM_MB", &M::HOST_MEM_MB_START, &M::HOST_MEM_MB_END),
     levels("SGA use (MB):", "getSGA_USE_MB", &M::SGA_USE_MB_START, &M::SGA_USE_MB_END),
     levels("PGA use (MB):", "getPGA_USE_MB", &M::PGA_USE_MB_START, &M::PGA_USE_MB_END),
     levels("% Host Mem used for SGA+PGA:", "getHOST_MEM_USE_FOR_SGA_PGA", &M::HOST_MEM_USE_FOR_SGA_PGA_START,
            &M::HOST_MEM_USE_FOR_SGA_PGA_END)}};

}  // namespace

void gDispMemoryStatistics_All(Workspace& workspace, const std::string& version) {
  clsMemoryStatistics object;
  renderMetricAll(workspace, object, kView, version);
}

void gDispMemoryStatistics_Col(Workspace& workspace, const std::string& version, const ColRequest& request) {
  clsMemoryStatistics object;
  renderMetricCol(workspace, object, kView, version, request.row);
}

}  // namespace kestrelix
