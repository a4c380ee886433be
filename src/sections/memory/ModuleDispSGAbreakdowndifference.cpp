#include "sections/memory/ModuleDispSGAbreakdowndifference.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using A = clsSGAbreakdowndifference;

const ListView kView{{{"POOL", &A::POOL},
                      {"NAME", &A::NAME},
                      {"START(MB)", &A::BEGIN_MB},
                      {"END(MB)", &A::END_MB},
                      {"% DIFF", &A::PER_DIFF}},
                     2};

}  // namespace

void gDispSGAbreakdowndifference_All(Workspace& workspace, const std::string& version) {
  clsSGAbreakdowndifference object;
  renderListAll(workspace, object, "getSGA_BREAKDOWN_DIFFERENCE_ALL", kView, version);
}

void gDispSGAbreakdowndifference_Col(Workspace& workspace, const std::string& version,
                                     const ColRequest& request) {
  clsSGAbreakdowndifference object;
  renderListCol(workspace, object, "getSGA_BREAKDOWN_DIFFERENCE_COL", kView, version, request.keys);
}

}  // namespace kestrelix
