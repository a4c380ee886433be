#include "sections/activity_io/clsFileReadHistogramStats.h"

#include "sections/activity_io/fileIo.h"

namespace kestrelix {
namespace {

std::string bucket(const std::string& condition, const std::string& alias) {
  return ", sum(case when " + condition + " then " + grown("singleblkrds") + " else 0 end) AS " + alias;
}

std::string histogram(const std::string& buckets, const std::string& files) {
  return "select fse.tsname AS TABLESPACE, fse.filename AS FILENAME" +
         bucket("0 <= e.singleblkrdtim_milli and e.singleblkrdtim_milli <= 2", "TO2") +
         bucket("e.singleblkrdtim_milli = 4", "TO4") + bucket("e.singleblkrdtim_milli = 8", "TO8") +
         bucket("e.singleblkrdtim_milli = 16", "TO16") + bucket("e.singleblkrdtim_milli = 32", "TO32") +
         bucket("e.singleblkrdtim_milli > 32", "OVER32") + " from " + buckets + " e, " + buckets + " b, " +
         files + " fse where " + endAndPerhapsStart() + R"sql(
       and b.file#(+) = e.file#
       and b.singleblkrdtim_milli(+) = e.singleblkrdtim_milli
       and fse.snap_id = e.snap_id
       and fse.dbid = e.dbid
       and fse.instance_number = e.instance_number
       and fse.file# = e.file#
       and )sql" +
         grown("singleblkrds") + " > 0 group by fse.tsname, fse.filename";
}

}  // namespace

clsFileReadHistogramStats::clsFileReadHistogramStats()
    : ListSectionObject("clsFileReadHistogramStats", fieldNames(), {argument("B5", ServerType::String)}) {
  // Release 11 keeps no histogram of temporary files any more.
  const std::string of11 = histogram("stats$file_histogram", "stats$filestatxs");
  const std::string of10 = of11 + " union all " + histogram("stats$temp_histogram", "stats$tempstatxs");
  all("getFILE_READ_HISTOGRAM_STATS_ALL", fold(of11)).only(V11);
  all("getFILE_READ_HISTOGRAM_STATS_ALL", fold(of10)).only(V10);
  col("getFILE_READ_HISTOGRAM_STATS_COL", ofOneFile(of11)).only(V11);
  col("getFILE_READ_HISTOGRAM_STATS_COL", ofOneFile(of10)).only(V10);
}

}  // namespace kestrelix
