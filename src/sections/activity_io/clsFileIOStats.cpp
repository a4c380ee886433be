#include "sections/activity_io/clsFileIOStats.h"

#include "sections/activity_io/fileIo.h"
#include "sections/shared/totals.h"

namespace kestrelix {
namespace {

/// Blank for no operation, unlike the figures of a whole tablespace.
std::string each(const std::string& figure, const std::string& count) {
  return "DECODE(" + count + ",0,' ',ROUND(" + figure + ",1))";
}

/// `slowest` is the expression of MRT, or empty where it isn't selected.
std::string columns(const std::string& slowest) {
  const std::string reads = grown("phyrds");
  const std::string writes = grown("phywrts");
  const std::string waits = grown("wait_count");
  return "select e.tsname AS TABLESPACE, e.filename AS FILENAME, " + reads + " AS PHY_READNUM, " +
         operationsPerSecond(reads) + " AS PHY_READNUM_PAR_SEC, " +
         each("(" + grown("readtim") + " / " + reads + ")*10", reads) + " AS READTIME_PER_PHY_READNUM, " +
         (slowest.empty() ? "" : slowest + " AS MRT, ") + each(grown("phyblkrd") + " / " + reads, reads) +
         " AS PHY_READBLK_PER_PHY_READNUM, " + writes + " AS PHY_WRITENUM, " + operationsPerSecond(writes) +
         " AS PHY_WRITENUM_PAR_SEC, " + waits + " AS WAIT_NUM, " +
         each("(" + grown("time") + " / " + waits + ")*10", waits) + " AS DBFILE_WAIT_TIME_PER_WAIT_NUM";
}

/// By file, the slowest bucket of single-block reads that grew in the pair.
std::string slowestReads(const std::string& histogram) {
  return ", (select max(e.singleblkrdtim_milli) AS mrt, e.file# AS fn from " + histogram + " b, " +
         histogram + " e where " + endAndPerhapsStart() + R"sql(
       and b.file#(+) = e.file#
       and b.singleblkrdtim_milli(+) = e.singleblkrdtim_milli
       and (e.singleblkrds - nvl(b.singleblkrds,0)) > 0
     group by e.file#) max_read)sql";
}

std::string files(const std::string& table, const std::string& histogram) {
  return columns("DECODE(max_read.mrt,null,' ',max_read.mrt)") +
         activeFiles(table, slowestReads(histogram), " and max_read.fn(+) = e.file#");
}

}  // namespace

clsFileIOStats::clsFileIOStats()
    : ListSectionObject("clsFileIOStats", fieldNames(), {argument("B5", ServerType::String), elapsed()}) {
  const std::string dataFiles = files("stats$filestatxs", "stats$file_histogram");
  // Release 11 keeps no histogram of temporary files any more.
  const std::string of11 = dataFiles + " union all " + columns("' '") + activeFiles("stats$tempstatxs");
  const std::string of10 = dataFiles + " union all " + files("stats$tempstatxs", "stats$temp_histogram");
  const std::string of9 = columns("") + activeFiles("stats$filestatxs") + " union " + columns("") +
                          activeFiles("stats$tempstatxs");
  const std::string sort = " order by TABLESPACE, FILENAME";
  all("getFILE_IO_STATS_ALL", fold(of11 + sort)).only(V11);
  all("getFILE_IO_STATS_ALL", fold(of10 + sort)).only(V10);
  col("getFILE_IO_STATS_COL", ofOneFile(of11)).only(V11);
  col("getFILE_IO_STATS_COL", ofOneFile(of10 + sort)).only(V10);
  const auto withoutSlowest = {Field::TABLESPACE,
                               Field::FILENAME,
                               Field::PHY_READNUM,
                               Field::PHY_READNUM_PAR_SEC,
                               Field::READTIME_PER_PHY_READNUM,
                               Field::PHY_READBLK_PER_PHY_READNUM,
                               Field::PHY_WRITENUM,
                               Field::PHY_WRITENUM_PAR_SEC,
                               Field::WAIT_NUM,
                               Field::DBFILE_WAIT_TIME_PER_WAIT_NUM};
  all("getFILE_IO_STATS_ALL", fold(of9 + sort)).only(V9).reading(withoutSlowest);
  col("getFILE_IO_STATS_COL", ofOneFile(of9)).only(V9).reading(withoutSlowest);
}

}  // namespace kestrelix
