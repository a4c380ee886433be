#include "sections/activity_io/clsIOStatbyFunctionsummary.h"

#include "sections/activity_io/ioFunctions.h"
#include "sections/shared/totals.h"

namespace kestrelix {
namespace {

std::string both(const std::string& first, const std::string& second) {
  return "(" + ioDelta(first) + " + " + ioDelta(second) + ")";
}

std::string perSecond(const std::string& growth) { return "DECODE(:ela,0,null," + growth + " / :ela)"; }

std::string statement() {
  const std::string readMb = both("small_read_megabytes", "large_read_megabytes");
  const std::string writeMb = both("small_write_megabytes", "large_write_megabytes");
  const std::string reads = both("small_read_reqs", "large_read_reqs");
  const std::string writes = both("small_write_reqs", "large_write_reqs");
  // The rates of requests are no megabytes: they go up in thousands.
  return "select func AS FUNC" + sizeText("read_mb", 0, "DATA_READ") + countText("read_reqs_ps", 1, "RRPS") +
         sizeText("read_mb_ps", 1, "MBRPS") + sizeText("write_mb", 0, "DATA_WRIT") +
         countText("write_reqs_ps", 1, "WRPS") + sizeText("write_mb_ps", 1, "MBWPS") +
         ", ROUND(avg_wait_time,1) AS ATPW" + countText("waits", 0, "WAITS") +
         " from (select n.function_name AS func, " + readMb + " AS read_mb, " + perSecond(reads) +
         " AS read_reqs_ps, " + perSecond(readMb) + " AS read_mb_ps, " + writeMb + " AS write_mb, " +
         perSecond(writes) + " AS write_reqs_ps, " + perSecond(writeMb) + " AS write_mb_ps, " +
         ioDelta("number_of_waits") + " AS waits, " + ioDelta("wait_time") + " / (" + reads + " + " + writes +
         ") / 1000 AS avg_wait_time" + readingFunctions() + ")";
}

}  // namespace

clsIOStatbyFunctionsummary::clsIOStatbyFunctionsummary()
    : ListSectionObject("clsIOStatbyFunctionsummary", fieldNames(),
                        {argument("B5", ServerType::String), elapsed()}) {
  all("getIO_STAT_BY_FUNCTION_SUMMARY_ALL", fold(statement() + " order by read_mb + write_mb desc"));
  col("getIO_STAT_BY_FUNCTION_SUMMARY_COL", fold("select * from (" + statement() + ") Z where Z.FUNC = :B5"));
}

}  // namespace kestrelix
