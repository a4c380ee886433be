#include "sections/activity_io/ModuleDispIOStatbyFunctionsummary.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using I = clsIOStatbyFunctionsummary;

const ListView kView{{{"FUNCTION", &I::FUNC},
                      {"[READ]DATA VOLUME", &I::DATA_READ},
                      {"[READ]REQUESTS/SEC", &I::RRPS},
                      {"[READ]DATA VOL/SEC", &I::MBRPS},
                      {"[WRITE]DATA VOLUME", &I::DATA_WRIT},
                      {"[WRITE]REQUESTS/SEC", &I::WRPS},
                      {"[WRITE]DATA VOL/SEC", &I::MBWPS},
                      {"[WAIT]COUNT", &I::WAITS},
                      {"[WAIT]AVG TM(MS)", &I::ATPW}}};

}  // namespace

void gDispIOStatbyFunctionsummary_All(Workspace& workspace, const std::string& version) {
  clsIOStatbyFunctionsummary object;
  renderListAll(workspace, object, "getIO_STAT_BY_FUNCTION_SUMMARY_ALL", kView, version);
}

void gDispIOStatbyFunctionsummary_Col(Workspace& workspace, const std::string& version,
                                      const ColRequest& request) {
  clsIOStatbyFunctionsummary object;
  renderListCol(workspace, object, "getIO_STAT_BY_FUNCTION_SUMMARY_COL", kView, version, request.keys);
}

}  // namespace kestrelix
