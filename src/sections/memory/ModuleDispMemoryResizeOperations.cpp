#include "sections/memory/ModuleDispMemoryResizeOperations.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using A = clsMemoryResizeOperations;

const ListView kView{{{"OPERATION TIME", &A::OP_ST_TM},
                      {"ELAP(S)", &A::ELAPSD_S},
                      {"CACHE", &A::COMP},
                      {"INIT SIZE(M)", &A::INI_SZ},
                      {"DELTA(M) & MODE", &A::OP_TM},
                      {"FINAL SIZE(M)", &A::END_SZ},
                      {"STATUS", &A::stat},
                      {"NUM OPS", &A::NUM_OPS}},
                     3};

}  // namespace

void gDispMemoryResizeOperations_All(Workspace& workspace, const std::string& version) {
  clsMemoryResizeOperations object;
  renderListAll(workspace, object, "getMEMORY_RESIZE_OPERATIONS_ALL", kView, version);
}

void gDispMemoryResizeOperations_Col(Workspace& workspace, const std::string& version,
                                     const ColRequest& request) {
  clsMemoryResizeOperations object;
  renderListCol(workspace, object, "getMEMORY_RESIZE_OPERATIONS_COL", kView, version, request.keys);
}

}  // namespace kestrelix
