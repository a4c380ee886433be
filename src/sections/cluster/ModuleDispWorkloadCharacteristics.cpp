#include "sections/cluster/ModuleDispWorkloadCharacteristics.h"

#include "sections/cluster/clsWorkloadCharacteristics.h"

namespace kestrelix {
namespace {

using F = clsWorkloadCharacteristics::Field;

const MetricView<clsWorkloadCharacteristics> kView{
    .headings = {"VALUE"},
    .rows = {{.label = "Avg global enqueue get time (ms):",
              .member = "getAGEGT",
              .cells = {{"VALUE", F::AGEGT, Kind::Average, unit::milliseconds}}},
             {.label = "Avg global cache cr block receive time (ms):",
              .member = "getAGCCRBRT",
              .cells = {{"VALUE", F::AGCCRBRT, Kind::Average, unit::milliseconds}}},
             {.label = "Avg global cache current block receive time (ms):",
              .member = "getAGCCUBRT",
              .cells = {{"VALUE", F::AGCCUBRT, Kind::Average, unit::milliseconds}}},
             {.label = "Avg global cache cr block build time (ms):",
              .member = "getAGCCRBBT",
              .cells = {{"VALUE", F::AGCCRBBT, Kind::Average, unit::milliseconds}}},
             {.label = "Avg global cache cr block send time (ms):",
              .member = "getAGCCRBST",
              .cells = {{"VALUE", F::AGCCRBST, Kind::Average, unit::milliseconds}}},
             {.label = "Avg global cache cr block flush time (ms):",
              .member = "getAGCCRBFT",
              .cells = {{"VALUE", F::AGCCRBFT, Kind::Average, unit::milliseconds}}},
             {.label = "Global cache log flushes for cr blocks served %:",
              .member = "getGCLFFCRBS",
              .cells = {{"VALUE", F::GCLFFCRBS, Kind::Share, unit::percent}}},
             {.label = "Avg global cache current block pin time (ms):",
              .member = "getAGCCUBPT",
              .cells = {{"VALUE", F::AGCCUBPT, Kind::Average, unit::milliseconds}}},
             {.label = "Avg global cache current block send time (ms):",
              .member = "getAGCCUBST",
              .cells = {{"VALUE", F::AGCCUBST, Kind::Average, unit::milliseconds}}},
             {.label = "Avg global cache current block flush time (ms):",
              .member = "getAGCCUBFT",
              .cells = {{"VALUE", F::AGCCUBFT, Kind::Average, unit::milliseconds}}},
             {.label = "Global cache log flushes for current blocks served %:",
              .member = "getGCLFFCUBS",
              .cells = {{"VALUE", F::GCLFFCUBS, Kind::Share, unit::percent}}}},
    .headingsAloneOnRestart = true};

}  // namespace

std::vector<ReleaseViews> workloadCharacteristicsViews() { return {viewsOf(kAllVersions, kView)}; }

}  // namespace kestrelix
