#include "sections/cluster/clsGlobalEnqueueStats.h"

#include "sections/shared/totals.h"

namespace kestrelix {
namespace {

const std::string kStatistics = R"sql(
    select b.name AS STATISTIC,
           e.value - b.value AS TOTAL,
           DECODE(:ELA,0,' ',ROUND((e.value - b.value) / :ELA,1)) AS PER_SECOND,
           DECODE(:TRAN,0,' ',ROUND((e.value - b.value) / :TRAN,1)) AS PER_TRANS
      from stats$dlm_misc b, stats$dlm_misc e
     where b.snap_id = :B3
       and e.snap_id = :B4
       and b.instance_number = :B2
       and e.instance_number = :B2
       and b.dbid = :B1
       and e.dbid = :B1
       and e.statistic# = b.statistic#)sql";

}  // namespace

clsGlobalEnqueueStats::clsGlobalEnqueueStats()
    : ListSectionObject("clsGlobalEnqueueStats", fieldNames(),
                        {argument("B5", ServerType::String), elapsed(), transactions()}) {
  all("getGLOBAL_ENQUEUE_STATS_ALL", fold(kStatistics + " order by b.name"));
  col("getGLOBAL_ENQUEUE_STATS_COL", fold("select * from (" + kStatistics + ") z where z.STATISTIC = :B5"));
}

}  // namespace kestrelix
