#include "sections/contention/clsRollbackSegmentStats.h"

namespace kestrelix {
namespace {

const std::string kSegments = R"sql(
    select b.usn AS USN,
           e.gets - b.gets AS GETS,
           decode(e.gets ,b.gets, ' ',ROUND((e.waits - b.waits) * 100 / (e.gets - b.gets),2)) AS WAITS,
           e.writes - b.writes AS WRITES,
           e.wraps - b.wraps AS WRAPS,
           e.shrinks - b.shrinks AS SHRINKS,
           e.extends - b.extends AS EXTENDS
      from stats$rollstat b, stats$rollstat e
     where b.snap_id = :B3
       and e.snap_id = :B4
       and b.dbid = :B1
       and e.dbid = :B1
       and b.dbid = e.dbid
       and b.instance_number = :B2
       and e.instance_number = :B2
       and b.instance_number = e.instance_number
       and e.usn = b.usn)sql";

}  // namespace

clsRollbackSegmentStats::clsRollbackSegmentStats()
    : ListSectionObject("clsRollbackSegmentStats", fieldNames(), {argument("B5", ServerType::Number)}) {
  all("getROLLBACK_SEGMENT_STATS_ALL", fold(kSegments + " order by e.usn"));
  col("getROLLBACK_SEGMENT_STATS_COL",
      fold("select * from (" + kSegments + " order by e.usn) Z where Z.USN = :B5"));
}

}  // namespace kestrelix
