#include "sections/memory/ModuleDispMemoryTargetAdvice.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using A = clsMemoryTargetAdvice;

const ListView kView{{{"MEMORY SIZE(M)", &A::MS},
                      {"MEMORY SIZE FACTOR", &A::MSF},
                      {"EST.DB TIME(S)", &A::EDBT},
                      {"ADVICE RESET", &A::AV}},
                     2};

}  // namespace

void gDispMemoryTargetAdvice_All(Workspace& workspace, const std::string& version) {
  clsMemoryTargetAdvice object;
  renderListAll(workspace, object, "getMEMORY_TARGET_ADVICE_ALL", kView, version);
}

void gDispMemoryTargetAdvice_Col(Workspace& workspace, const std::string& version,
                                 const ColRequest& request) {
  clsMemoryTargetAdvice object;
  renderListCol(workspace, object, "getMEMORY_TARGET_ADVICE_COL", kView, version, request.keys);
}

}  // namespace kestrelix
