#include "sections/activity_io/clsTablespaceIOStats.h"

#include "sections/activity_io/fileIo.h"
#include "sections/shared/totals.h"

namespace kestrelix {
namespace {

std::string total(const std::string& counter) { return "sum(" + grown(counter) + ")"; }

/// Times are counted in hundredths of a second and shown in milliseconds.
std::string milliseconds(const std::string& time, const std::string& divisor) {
  return "ROUND(decode(" + divisor + ", 0, 0, (" + time + " / " + divisor + ")*10),1)";
}

std::string tablespaces(const std::string& table) {
  const std::string reads = total("phyrds");
  const std::string writes = total("phywrts");
  const std::string waits = total("wait_count");
  return "select e.tsname AS TABLESPACE, " + reads + " AS PHY_READNUM, " + operationsPerSecond(reads) +
         " AS PHY_READNUM_PAR_SEC, " + milliseconds(total("readtim"), reads) +
         " AS READTIME_PER_PHY_READNUM, DECODE(" + reads + ", 0, ' ', ROUND(" + total("phyblkrd") + " / " +
         reads + ",1)) AS PHY_READBLK_PER_PHY_READNUM, " + writes + " AS PHY_WRITENUM, " +
         operationsPerSecond(writes) + " AS PHY_WRITENUM_PAR_SEC, " + waits + " AS WAIT_NUM, " +
         milliseconds(total("time"), waits) + " AS DBFILE_WAIT_TIME_PER_WAIT_NUM, " + reads + " + " + writes +
         " AS TOTAL_PHY_NUM" + activeFiles(table) + " group by e.tsname";
}

}  // namespace

clsTablespaceIOStats::clsTablespaceIOStats()
    : ListSectionObject("clsTablespaceIOStats", fieldNames(),
                        {argument("B5", ServerType::String), elapsed()}) {
  const std::string both = tablespaces("stats$filestatxs") + " union all " + tablespaces("stats$tempstatxs");
  all("getTABLESPACE_IO_STATS_ALL", fold(both + " order by TOTAL_PHY_NUM desc"));
  col("getTABLESPACE_IO_STATS_COL", fold("select * from (" + both + ") Z where Z.TABLESPACE = :B5"));
}

}  // namespace kestrelix
