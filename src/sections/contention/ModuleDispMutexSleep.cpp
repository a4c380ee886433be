#include "sections/contention/ModuleDispMutexSleep.h"

#include "sections/contention/clsMutexSleep.h"

namespace kestrelix {
namespace {

using F = clsMutexSleep::Field;

/// The key of a series is the beginning of a type's name, as a pattern.
std::vector<std::string> beginningWith(const std::vector<std::string>& keys) { return {keys.at(0) + "%"}; }

const ListView<clsMutexSleep> kView{
    .all = "getMUTEX_SLEEP_ALL",
    .col = "getMUTEX_SLEEP_COL",
    .columns = {{"MUTEX TYPE", F::MUTEX_TYPE, Kind::Key},
                {"LOCATION", F::LOCATION, Kind::Key},
                {"SLEEPS", F::SLEEPS, Kind::Count},
                {"WAIT TIME(S)", F::WAIT_TIME_SEC, Kind::Count, unit::seconds}},
    .allArguments = {"%"},
    .colArguments = beginningWith,
};

}  // namespace

std::vector<ReleaseViews> mutexSleepViews() { return {viewsOf(kAllVersions, kView)}; }

}  // namespace kestrelix
