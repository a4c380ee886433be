#include "sections/activity_io/ModuleDispIOStatbyFunctionsummary.h"

#include "sections/activity_io/clsIOStatbyFunctionsummary.h"

namespace kestrelix {
namespace {

using F = clsIOStatbyFunctionsummary::Field;

/// Sizes and numbers of requests are shortened: their texts end in the letter of the multiple.
const ListView<clsIOStatbyFunctionsummary> kView{
    .all = "getIO_STAT_BY_FUNCTION_SUMMARY_ALL",
    .col = "getIO_STAT_BY_FUNCTION_SUMMARY_COL",
    .columns = {{"FUNCTION", F::FUNC, Kind::Key},
                {"[READ]DATA VOLUME", F::DATA_READ, Kind::Count, unit::bytes},
                {"[READ]REQUESTS/SEC", F::RRPS, Kind::Rate},
                {"[READ]DATA VOL/SEC", F::MBRPS, Kind::Rate, unit::bytes},
                {"[WRITE]DATA VOLUME", F::DATA_WRIT, Kind::Count, unit::bytes},
                {"[WRITE]REQUESTS/SEC", F::WRPS, Kind::Rate},
                {"[WRITE]DATA VOL/SEC", F::MBWPS, Kind::Rate, unit::bytes},
                {"[WAIT]COUNT", F::WAITS, Kind::Count},
                {"[WAIT]AVG TM(MS)", F::ATPW, Kind::Average, unit::milliseconds}}};

}  // namespace

std::vector<ReleaseViews> ioStatbyFunctionsummaryViews() { return {viewsOf(kAllVersions, kView)}; }

}  // namespace kestrelix
