#include "sections/memory/clsBufferwaitStatistics.h"

namespace kestrelix {
namespace {

/// Only classes that were waited for, so that the average needs no guard. Times are hundredths of a second.
const char* const kStatement = R"sql(
    select e.class AS CLASSNAME,
           e.wait_count - nvl(b.wait_count,0) AS ICNT,
           ROUND((e.time - nvl(b.time,0)) / 100) AS ITIM,
           ROUND(10 * (e.time - nvl(b.time,0)) / (e.wait_count - nvl(b.wait_count,0))) AS IAVG
      from stats$waitstat b, stats$waitstat e
     where b.snap_id = :B3
       and e.snap_id = :B4
       and b.dbid = :B1
       and e.dbid = :B1
       and b.dbid = e.dbid
       and b.instance_number = :B2
       and e.instance_number = :B2
       and b.instance_number = e.instance_number
       and b.class = e.class
       and b.wait_count < e.wait_count)sql";

}  // namespace

clsBufferwaitStatistics::clsBufferwaitStatistics()
    : ListSectionObject("clsBufferwaitStatistics", fieldNames(), {argument("B5", ServerType::String)}) {
  all("getBUFFER_WAIT_STATISTICS_ALL", fold(std::string(kStatement) + " order by ITIM desc, ICNT desc"));
  col("getBUFFER_WAIT_STATISTICS_COL",
      fold(std::string("select * from (") + kStatement + ") Z where Z.CLASSNAME = :B5"));
}

}  // namespace kestrelix
