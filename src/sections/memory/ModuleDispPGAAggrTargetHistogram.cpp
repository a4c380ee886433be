#include "sections/memory/ModuleDispPGAAggrTargetHistogram.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using A = clsPGAAggrTargetHistogram;

const ListView kView{{{"LOW OPTIMAL", &A::LOW_OPTIMAL},
                      {"HIGH OPTIMAL", &A::HIGH_OPTIMAL},
                      {"TOTAL EXECS", &A::TOTAL_EXECS},
                      {"OPTIMAL EXECS", &A::OPTIMAL_EXECS},
                      {"1-PASS EXECS", &A::ONE_PASS_EXECS},
                      {"M-PASS EXECS", &A::MULTI_PASS_EXECS}},
                     2};

}  // namespace

void gDispPGAAggrTargetHistogram_All(Workspace& workspace, const std::string& version) {
  clsPGAAggrTargetHistogram object;
  renderListAll(workspace, object, "getPGA_AGGR_TARGET_HISTOGRAM_ALL", kView, version);
}

void gDispPGAAggrTargetHistogram_Col(Workspace& workspace, const std::string& version,
                                     const ColRequest& request) {
  clsPGAAggrTargetHistogram object;
  renderListCol(workspace, object, "getPGA_AGGR_TARGET_HISTOGRAM_COL", kView, version, request.keys);
}

}  // namespace kestrelix
