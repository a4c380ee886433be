#include "sections/memory/ModuleDispJavaPoolAdvisory.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using A = clsJavaPoolAdvisory;

const ListView kView{{{"JAVA POOL SIZE(MB)", &A::JAVA_POOL_SIZE_MB},
                      {"JP SIZE FACTR", &A::JP_SIZE_FACTR},
                      {"EST LC SIZE(MB)", &A::EST_LC_SIZE_MB},
                      {"EST LC MEM OBJ", &A::EST_LC_MEM_OBJ},
                      {"EST LC TIME SAVED(S)", &A::EST_LC_TIME_SAVED_SEC},
                      {"EST LC TIME SAVED FACTR", &A::EST_LC_TIME_SAVED_FACTR},
                      {"EST LC LOAD TIME(S)", &A::EST_LC_LOAD_TIME_SEC},
                      {"EST LC LOAD TIME FACTR", &A::EST_LC_LOAD_TIME_FACTR},
                      {"EST LC MEM OBJ HITS", &A::EST_LC_MEM_OBJ_HITS}},
                     2};

}  // namespace

void gDispJavaPoolAdvisory_All(Workspace& workspace, const std::string& version) {
  clsJavaPoolAdvisory object;
  renderListAll(workspace, object, "getJAVA_POOL_ADVISORY_ALL", kView, version);
}

void gDispJavaPoolAdvisory_Col(Workspace& workspace, const std::string& version, const ColRequest& request) {
  clsJavaPoolAdvisory object;
  renderListCol(workspace, object, "getJAVA_POOL_ADVISORY_COL", kView, version, request.keys);
}

}  // namespace kestrelix
