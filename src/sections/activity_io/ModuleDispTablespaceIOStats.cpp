#include "sections/activity_io/ModuleDispTablespaceIOStats.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using T = clsTablespaceIOStats;

const ListView kView{{{"TABLESPACE", &T::TABLESPACE},
                      {"READS", &T::PHY_READNUM},
                      {"AV READS/S", &T::PHY_READNUM_PAR_SEC},
                      {"AV RD(MS)", &T::READTIME_PER_PHY_READNUM},
                      {"Av BLKS/RD", &T::PHY_READBLK_PER_PHY_READNUM},
                      {"WRITES", &T::PHY_WRITENUM},
                      {"AV WRITES/S", &T::PHY_WRITENUM_PAR_SEC},
                      {"BUFFER WAITS", &T::WAIT_NUM},
                      {"AV BUF WT(MS)", &T::DBFILE_WAIT_TIME_PER_WAIT_NUM}}};

}  // namespace

void gDispTablespaceIOStats_All(Workspace& workspace, const std::string& version) {
  clsTablespaceIOStats object;
  renderListAll(workspace, object, "getTABLESPACE_IO_STATS_ALL", kView, version);
}

void gDispTablespaceIOStats_Col(Workspace& workspace, const std::string& version, const ColRequest& request) {
  clsTablespaceIOStats object;
  renderListCol(workspace, object, "getTABLESPACE_IO_STATS_COL", kView, version, request.keys);
}

}  // namespace kestrelix
