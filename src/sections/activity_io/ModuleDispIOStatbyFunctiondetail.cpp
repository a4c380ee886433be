#include "sections/activity_io/ModuleDispIOStatbyFunctiondetail.h"

#include "sections/activity_io/clsIOStatbyFunctiondetail.h"

namespace kestrelix {
namespace {

using F = clsIOStatbyFunctiondetail::Field;

/// Sizes and numbers of requests are shortened: their texts end in the letter of the multiple.
const ListView<clsIOStatbyFunctiondetail> kView{
    .all = "getIO_STAT_BY_FUNCTION_DETAIL_ALL",
    .col = "getIO_STAT_BY_FUNCTION_DETAIL_COL",
    .columns = {{"FUNCTION", F::FUNC, Kind::Key},
                {"[READ]SMALL READ REQS", F::S_RR, Kind::Count},
                {"[READ]LARGE READ REQS", F::L_RR, Kind::Count},
                {"[READ]SMALL DATA READ", F::S_RM, Kind::Count, unit::bytes},
                {"[READ]LARGE DATA READ", F::L_RM, Kind::Count, unit::bytes},
                {"[WRITE]SMALL WRITE REQS", F::S_WR, Kind::Count},
                {"[WRITE]LARGE WRITE REQS", F::L_WR, Kind::Count},
                {"[WRITE]SMALL DATA WRITN", F::S_WM, Kind::Count, unit::bytes},
                {"[WRITE]LARGE DATA WRITN", F::L_WM, Kind::Count, unit::bytes}}};

}  // namespace

std::vector<ReleaseViews> ioStatbyFunctiondetailViews() { return {viewsOf(kAllVersions, kView)}; }

}  // namespace kestrelix
