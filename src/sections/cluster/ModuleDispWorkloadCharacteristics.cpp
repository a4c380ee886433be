#include "sections/cluster/ModuleDispWorkloadCharacteristics.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using W = clsWorkloadCharacteristics;

const MetricView kView{.headings = {"VALUE"},
                       .rows = {{.label = "Avg global enqueue get time (ms):",
                                 .member = "getAGEGT",
                                 .cells = {{"VALUE", &W::AGEGT}}},
                                {.label = "Avg global cache cr block receive time (ms):",
                                 .member = "getAGCCRBRT",
                                 .cells = {{"VALUE", &W::AGCCRBRT}}},
                                {.label = "Avg global cache current block receive time (ms):",
                                 .member = "getAGCCUBRT",
                                 .cells = {{"VALUE", &W::AGCCUBRT}}},
                                {.label = "Avg global cache cr block build time (ms):",
                                 .member = "getAGCCRBBT",
                                 .cells = {{"VALUE", &W::AGCCRBBT}}},
                                {.label = "Avg global cache cr block send time (ms):",
                                 .member = "getAGCCRBST",
                                 .cells = {{"VALUE", &W::AGCCRBST}}},
                                {.label = "Avg global cache cr block flush time (ms):",
                                 .member = "getAGCCRBFT",
                                 .cells = {{"VALUE", &W::AGCCRBFT}}},
                                {.label = "Global cache log flushes for cr blocks served %:",
                                 .member = "getGCLFFCRBS",
                                 .cells = {{"VALUE", &W::GCLFFCRBS}}},
                                {.label = "Avg global cache current block pin time (ms):",
                                 .member = "getAGCCUBPT",
                                 .cells = {{"VALUE", &W::AGCCUBPT}}},
                                {.label = "Avg global cache current block send time (ms):",
                                 .member = "getAGCCUBST",
                                 .cells = {{"VALUE", &W::AGCCUBST}}},
                                {.label = "Avg global cache current block flush time (ms):",
                                 .member = "getAGCCUBFT",
                                 .cells = {{"VALUE", &W::AGCCUBFT}}},
                                {.label = "Global cache log flushes for current blocks served %:",
                                 .member = "getGCLFFCUBS",
                                 .cells = {{"VALUE", &W::GCLFFCUBS}}}},
                       .headingsAloneOnRestart = true};

}  // namespace

void gDispWorkloadCharacteristics_All(Workspace& workspace, const std::string& version) {
  clsWorkloadCharacteristics object;
  renderMetricAll(workspace, object, kView, version);
}

void gDispWorkloadCharacteristics_Col(Workspace& workspace, const std::string& version,
                                      const ColRequest& request) {
  clsWorkloadCharacteristics object;
  renderMetricCol(workspace, object, kView, version, request.row);
}

}  // namespace kestrelix
