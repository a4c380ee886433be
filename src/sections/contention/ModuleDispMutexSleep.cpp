#include "sections/contention/ModuleDispMutexSleep.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using M = clsMutexSleep;

const ListView kView{{{"MUTEX TYPE", &M::MUTEX_TYPE},
                      {"LOCATION", &M::LOCATION},
                      {"SLEEPS", &M::SLEEPS},
                      {"WAIT TIME(S)", &M::WAIT_TIME_SEC}}};

/// The key of a series is the beginning of a type's name, as a pattern.
std::string beginningWith(const std::string& type) { return type + "%"; }

}  // namespace

void gDispMutexSleep_All(Workspace& workspace, const std::string& version) {
  clsMutexSleep object;
  renderListAll(workspace, object, "getMUTEX_SLEEP_ALL", kView, version, {beginningWith("")});
}

void gDispMutexSleep_Col(Workspace& workspace, const std::string& version, const ColRequest& request) {
  clsMutexSleep object;
  renderListCol(workspace, object, "getMUTEX_SLEEP_COL", kView, version, {beginningWith(request.keys.at(0))});
}

}  // namespace kestrelix
