#include "sections/activity_io/ModuleDispFileIOStats.h"

#include "sections/activity_io/clsFileIOStats.h"

namespace kestrelix {
namespace {

using F = clsFileIOStats::Field;

const ListView<clsFileIOStats> kView{
    .all = "getFILE_IO_STATS_ALL",
    .col = "getFILE_IO_STATS_COL",
    .columns = {{"TABLESPACE", F::TABLESPACE, Kind::Key},
                {"FILENAME", F::FILENAME, Kind::Key},
                {"READS", F::PHY_READNUM, Kind::Count},
                {"AV READS/S", F::PHY_READNUM_PAR_SEC, Kind::Rate},
                {"AV RD(MS)", F::READTIME_PER_PHY_READNUM, Kind::Average, unit::milliseconds},
                {"MX RD(MS)", F::MRT, Kind::Level, unit::milliseconds},
                {"AV BLKS/RD", F::PHY_READBLK_PER_PHY_READNUM, Kind::Average, unit::blocks},
                {"WRITES", F::PHY_WRITENUM, Kind::Count},
                {"AV WRITES/S", F::PHY_WRITENUM_PAR_SEC, Kind::Rate},
                {"BUFFER WAITS", F::WAIT_NUM, Kind::Count},
                {"AV BUF WT(MS)", F::DBFILE_WAIT_TIME_PER_WAIT_NUM, Kind::Average, unit::milliseconds}},
    .keys = 2};

/// Release 9 keeps no histogram that tells the slowest reads.
ListView<clsFileIOStats> viewOf9() {
  ListView<clsFileIOStats> view = kView;
  std::erase_if(view.columns,
                [](const ViewColumn& column) { return column.field == static_cast<std::size_t>(F::MRT); });
  return view;
}

}  // namespace

std::vector<ReleaseViews> fileIOStatsViews() { return {viewsOf(V9, viewOf9()), viewsOf(V10_11, kView)}; }

}  // namespace kestrelix
