#include "sections/activity_io/ModuleDispIOStatbyFunctiondetail.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using I = clsIOStatbyFunctiondetail;

const ListView kView{{{"FUNCTION", &I::FUNC},
                      {"[READ]SMALL READ REQS", &I::S_RR},
                      {"[READ]LARGE READ REQS", &I::L_RR},
                      {"[READ]SMALL DATA READ", &I::S_RM},
                      {"[READ]LARGE DATA READ", &I::L_RM},
                      {"[WRITE]SMALL WRITE REQS", &I::S_WR},
                      {"[WRITE]LARGE WRITE REQS", &I::L_WR},
                      {"[WRITE]SMALL DATA WRITN", &I::S_WM},
                      {"[WRITE]LARGE DATA WRITN", &I::L_WM}}};

}  // namespace

void gDispIOStatbyFunctiondetail_All(Workspace& workspace, const std::string& version) {
  clsIOStatbyFunctiondetail object;
  renderListAll(workspace, object, "getIO_STAT_BY_FUNCTION_DETAIL_ALL", kView, version);
}

void gDispIOStatbyFunctiondetail_Col(Workspace& workspace, const std::string& version,
                                     const ColRequest& request) {
  clsIOStatbyFunctiondetail object;
  renderListCol(workspace, object, "getIO_STAT_BY_FUNCTION_DETAIL_COL", kView, version, request.keys);
}

}  // namespace kestrelix
