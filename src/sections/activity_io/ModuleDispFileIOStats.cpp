#include "sections/activity_io/ModuleDispFileIOStats.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using F = clsFileIOStats;

const ListView kView{{{"TABLESPACE", &F::TABLESPACE},
                      {"FILENAME", &F::FILENAME},
                      {"READS", &F::PHY_READNUM},
                      {"AV READS/S", &F::PHY_READNUM_PAR_SEC},
                      {"AV RD(MS)", &F::READTIME_PER_PHY_READNUM},
                      {"MX RD(MS)", &F::MRT},
                      {"AV BLKS/RD", &F::PHY_READBLK_PER_PHY_READNUM},
                      {"WRITES", &F::PHY_WRITENUM},
                      {"AV WRITES/S", &F::PHY_WRITENUM_PAR_SEC},
                      {"BUFFER WAITS", &F::WAIT_NUM},
                      {"AV BUF WT(MS)", &F::DBFILE_WAIT_TIME_PER_WAIT_NUM}},
                     2};
const ListView kViewOf9{{{"TABLESPACE", &F::TABLESPACE},
                         {"FILENAME", &F::FILENAME},
                         {"READS", &F::PHY_READNUM},
                         {"AV READS/S", &F::PHY_READNUM_PAR_SEC},
                         {"AV RD(MS)", &F::READTIME_PER_PHY_READNUM},
                         {"AV BLKS/RD", &F::PHY_READBLK_PER_PHY_READNUM},
                         {"WRITES", &F::PHY_WRITENUM},
                         {"AV WRITES/S", &F::PHY_WRITENUM_PAR_SEC},
                         {"BUFFER WAITS", &F::WAIT_NUM},
                         {"AV BUF WT(MS)", &F::DBFILE_WAIT_TIME_PER_WAIT_NUM}},
                        2};

const ListView& view(const std::string& version) { return versionOf(version) == V9 ? kViewOf9 : kView; }

}  // namespace

void gDispFileIOStats_All(Workspace& workspace, const std::string& version) {
  clsFileIOStats object;
  renderListAll(workspace, object, "getFILE_IO_STATS_ALL", view(version), version);
}

void gDispFileIOStats_Col(Workspace& workspace, const std::string& version, const ColRequest& request) {
  clsFileIOStats object;
  renderListCol(workspace, object, "getFILE_IO_STATS_COL", view(version), version, request.keys);
}

}  // namespace kestrelix
