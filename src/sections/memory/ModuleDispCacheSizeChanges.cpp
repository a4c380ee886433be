#include "sections/memory/ModuleDispCacheSizeChanges.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using A = clsCacheSizeChanges;

const ListView kView{{{"CACHE", &A::CACHE},
                      {"START SIZE(MB)", &A::START_SIZE_MB},
                      {"END SIZE(MB)", &A::END_SIZE_MB},
                      {"DIFF SIZE(MB)", &A::DIFF_SIZE_MB}}};

}  // namespace

void gDispCacheSizeChanges_All(Workspace& workspace, const std::string& version) {
  clsCacheSizeChanges object;
  renderListAll(workspace, object, "getCACHE_SIZE_CHANGES_ALL", kView, version);
}

void gDispCacheSizeChanges_Col(Workspace& workspace, const std::string& version, const ColRequest& request) {
  clsCacheSizeChanges object;
  renderListCol(workspace, object, "getCACHE_SIZE_CHANGES_COL", kView, version, request.keys);
}

}  // namespace kestrelix
