#include "sections/summary/ModuleDispMemoryStatistics.h"

#include "sections/summary/clsMemoryStatistics.h"

namespace kestrelix {
namespace {

using F = clsMemoryStatistics::Field;
using Row = MetricRow<clsMemoryStatistics>;

Row levels(std::string label, std::string member, F start, F end) {
  return {
      .label = std::move(label),
      .member = std::move(member),
      .cells = {{"START", start, Kind::Level, unit::megabytes}, {"END", end, Kind::Level, unit::megabytes}}};
}
Row shares(std::string label, std::string member, F start, F end) {
  return {.label = std::move(label),
          .member = std::move(member),
          .cells = {{"START", start, Kind::Share, unit::percent}, {"END", end, Kind::Share, unit::percent}}};
}

const MetricView<clsMemoryStatistics> kView{
    .headings = {"START", "END"},
    .rows = {levels("Host Mem (MB):", "getHOST_MEM_MB", F::HOST_MEM_MB_START, F::HOST_MEM_MB_END),
             levels("SGA use (MB):", "getSGA_USE_MB", F::SGA_USE_MB_START, F::SGA_USE_MB_END),
             levels("PGA use (MB):", "getPGA_USE_MB", F::PGA_USE_MB_START, F::PGA_USE_MB_END),
             shares("% Host Mem used for SGA+PGA:", "getHOST_MEM_USE_FOR_SGA_PGA",
                    F::HOST_MEM_USE_FOR_SGA_PGA_START, F::HOST_MEM_USE_FOR_SGA_PGA_END)}};

}  // namespace

std::vector<ReleaseViews> memoryStatisticsViews() { return {viewsOf(kAllVersions, kView)}; }

}  // namespace kestrelix
