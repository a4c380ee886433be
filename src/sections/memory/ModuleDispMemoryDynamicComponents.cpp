#include "sections/memory/ModuleDispMemoryDynamicComponents.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using A = clsMemoryDynamicComponents;

const ListView kView{{{"CACHE", &A::COMP},
                      {"START SNAP SIZE(M)", &A::BEG_SIZE},
                      {"END SNAP SIZE(M)", &A::END_SIZE},
                      {"OP COUNT", &A::OP_CNT},
                      {"LAST OP TYPE/MODE", &A::LOMOD},
                      {"LAST OP TIME", &A::LOTIM}}};

}  // namespace

void gDispMemoryDynamicComponents_All(Workspace& workspace, const std::string& version) {
  clsMemoryDynamicComponents object;
  renderListAll(workspace, object, "getMEMORY_DYNAMIC_COMPONENTS_ALL", kView, version);
}

void gDispMemoryDynamicComponents_Col(Workspace& workspace, const std::string& version,
                                      const ColRequest& request) {
  clsMemoryDynamicComponents object;
  renderListCol(workspace, object, "getMEMORY_DYNAMIC_COMPONENTS_COL", kView, version, request.keys);
}

}  // namespace kestrelix
