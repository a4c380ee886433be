#include "sections/activity_io/ModuleDispTablespaceIOStats.h"

#include "sections/activity_io/clsTablespaceIOStats.h"

namespace kestrelix {
namespace {

using F = clsTablespaceIOStats::Field;

const ListView<clsTablespaceIOStats> kView{
    .all = "getTABLESPACE_IO_STATS_ALL",
    .col = "getTABLESPACE_IO_STATS_COL",
    .columns = {{"TABLESPACE", F::TABLESPACE, Kind::Key},
                {"READS", F::PHY_READNUM, Kind::Count},
                {"AV READS/S", F::PHY_READNUM_PAR_SEC, Kind::Rate},
                {"AV RD(MS)", F::READTIME_PER_PHY_READNUM, Kind::Average, unit::milliseconds},
                {"Av BLKS/RD", F::PHY_READBLK_PER_PHY_READNUM, Kind::Average, unit::blocks},
                {"WRITES", F::PHY_WRITENUM, Kind::Count},
                {"AV WRITES/S", F::PHY_WRITENUM_PAR_SEC, Kind::Rate},
                {"BUFFER WAITS", F::WAIT_NUM, Kind::Count},
                {"AV BUF WT(MS)", F::DBFILE_WAIT_TIME_PER_WAIT_NUM, Kind::Average, unit::milliseconds}}};

}  // namespace

std::vector<ReleaseViews> tablespaceIOStatsViews() { return {viewsOf(kAllVersions, kView)}; }

}  // namespace kestrelix
