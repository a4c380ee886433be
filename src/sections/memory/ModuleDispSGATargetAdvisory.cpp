#include "sections/memory/ModuleDispSGATargetAdvisory.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using A = clsSGATargetAdvisory;

const ListView kView{{{"SGA TARGET SIZE(MB)", &A::SGA_TARGET_SIZE_MB},
                      {"SGA SIZE FACTOR", &A::SGA_SIZE_FACTOR},
                      {"EST DB TIME(S)", &A::EST_DB_TIME_SEC},
                      {"EST DB TIME FACTOR", &A::EST_DB_TIME_FACTOR},
                      {"EST PHYSICAL READS", &A::EST_PHYSICAL_READS}},
                     2};

}  // namespace

void gDispSGATargetAdvisory_All(Workspace& workspace, const std::string& version) {
  clsSGATargetAdvisory object;
  renderListAll(workspace, object, "getSGA_TARGET_ADVISORY_ALL", kView, version);
}

void gDispSGATargetAdvisory_Col(Workspace& workspace, const std::string& version, const ColRequest& request) {
  clsSGATargetAdvisory object;
  renderListCol(workspace, object, "getSGA_TARGET_ADVISORY_COL", kView, version, request.keys);
}

}  // namespace kestrelix
