#include "sections/contention/clsLatchActivity.h"

namespace kestrelix {
namespace {

const std::string kLatches = R"sql(
    select b.name AS LATCH,
           e.gets - b.gets AS GET_REQUESTS,
           DECODE(e.gets, b.gets, ' ',ROUND((e.misses - b.misses) * 100 / (e.gets - b.gets),1)) AS PCT_GET_MISS,
           DECODE(e.misses, b.misses, ' ',ROUND((e.sleeps - b.sleeps) / (e.misses - b.misses),1)) AS AVG_SLPS_MISS,
           ROUND((e.wait_time - b.wait_time) / 1000000) AS WAIT_TIME_SEC,
           e.immediate_gets - b.immediate_gets AS NOWAIT_REQUESTS,
           DECODE(e.immediate_gets,b.immediate_gets, ' ',
                  ROUND((e.immediate_misses - b.immediate_misses) * 100
                        / (e.immediate_gets - b.immediate_gets))) AS PCT_NOWAIT_MISS
      from stats$latch b, stats$latch e
     where b.snap_id = :B3
       and e.snap_id = :B4
       and b.dbid = :B1
       and e.dbid = :B1
       and b.dbid = e.dbid
       and b.instance_number = :B2
       and e.instance_number = :B2
       and b.instance_number = e.instance_number
       and b.name = e.name
       and (e.gets - b.gets + e.immediate_gets - b.immediate_gets) > 0)sql";

}  // namespace

clsLatchActivity::clsLatchActivity()
    : ListSectionObject("clsLatchActivity", fieldNames(), {argument("B5", ServerType::String)}) {
  all("getLATCH_ACTIVITY_ALL", fold(kLatches + " order by b.name"));
  col("getLATCH_ACTIVITY_COL", fold("select * from (" + kLatches + ") Z where Z.LATCH = :B5"));
}

}  // namespace kestrelix
