#include "sections/memory/ModuleDispSharedPoolAdvisory.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using A = clsSharedPoolAdvisory;

const ListView kView{{{"SHARED POOL SIZE(MB)", &A::SHARED_POOL_SIZE_MB},
                      {"SP SIZE FACTR", &A::SP_SIZE_FACTR},
                      {"EST LC SIZE(MB)", &A::EST_LC_SIZE_MB},
                      {"EST LC MEM OBJ", &A::EST_LC_MEM_OBJ},
                      {"EST LC TIME SAVED(S)", &A::EST_LC_TIME_SAVED_SEC},
                      {"EST LC TIME SAVED FACTR", &A::EST_LC_TIME_SAVED_FACTR},
                      {"EST LC LOAD TIME(S)", &A::EST_LC_LOAD_TIME_SEC},
                      {"EST LC LOAD TIME FACTR", &A::EST_LC_LOAD_TIME_FACTR},
                      {"EST LC MEM OBJ HITS", &A::EST_LC_MEM_OBJ_HITS}},
                     2};
const ListView kViewOf9{{{"SHARED POOL SIZE(MB)", &A::SHARED_POOL_SIZE_MB},
                         {"SP SIZE FACTR", &A::SP_SIZE_FACTR},
                         {"EST LC SIZE(MB)", &A::EST_LC_SIZE_MB},
                         {"EST LC MEM OBJ", &A::EST_LC_MEM_OBJ},
                         {"EST LC TIME SAVED(S)", &A::EST_LC_TIME_SAVED_SEC},
                         {"EST LC TIME SAVED FACTR", &A::EST_LC_TIME_SAVED_FACTR},
                         {"EST LC MEM OBJ HITS", &A::EST_LC_MEM_OBJ_HITS}},
                        2};

const ListView& view(const std::string& version) { return versionOf(version) == V9 ? kViewOf9 : kView; }

}  // namespace

void gDispSharedPoolAdvisory_All(Workspace& workspace, const std::string& version) {
  clsSharedPoolAdvisory object;
  renderListAll(workspace, object, "getSHARED_POOL_ADVISORY_ALL", view(version), version);
}

void gDispSharedPoolAdvisory_Col(Workspace& workspace, const std::string& version,
                                 const ColRequest& request) {
  clsSharedPoolAdvisory object;
  renderListCol(workspace, object, "getSHARED_POOL_ADVISORY_COL", view(version), version, request.keys);
}

}  // namespace kestrelix
