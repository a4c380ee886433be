#include "sections/memory/ModuleDispSGAMemorySummary.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using A = clsSGAMemorySummary;

const ListView kView{{{"SGA REGIONS", &A::SGA_REGIONS},
                      {"START SIZE(MB)", &A::START_SIZE_MB},
                      {"END SIZE(MB)", &A::END_SIZE_MB},
                      {"DIFF SIZE(MB)", &A::DIFF_SIZE_MB}}};

}  // namespace

void gDispSGAMemorySummary_All(Workspace& workspace, const std::string& version) {
  clsSGAMemorySummary object;
  renderListAll(workspace, object, "getSGA_MEMORY_SUMMARY_ALL", kView, version);
}

void gDispSGAMemorySummary_Col(Workspace& workspace, const std::string& version, const ColRequest& request) {
  clsSGAMemorySummary object;
  renderListCol(workspace, object, "getSGA_MEMORY_SUMMARY_COL", kView, version, request.keys);
}

}  // namespace kestrelix
