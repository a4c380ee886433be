#include "sections/contention/clsLatchSleepBreakdown.h"

namespace kestrelix {
namespace {

const std::string kLatches = R"sql(
    select b.name AS LATCH_NAME,
           e.gets - b.gets AS GET_REQUESTS,
           e.misses - b.misses AS MISSES,
           e.sleeps - b.sleeps AS SLEEPS,
           e.spin_gets - b.spin_gets AS SPIN_GETS
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
       and e.sleeps - b.sleeps > 0)sql";

}  // namespace

clsLatchSleepBreakdown::clsLatchSleepBreakdown()
    : ListSectionObject("clsLatchSleepBreakdown", fieldNames(), {argument("B5", ServerType::String)}) {
  // The sort means the column of the select list.
  all("getLATCH_SLEEP_BREAKDOWN_ALL", fold(kLatches + " order by misses desc"));
  col("getLATCH_SLEEP_BREAKDOWN_COL", fold("select * from (" + kLatches + ") Z where Z.LATCH_NAME = :B5"));
}

}  // namespace kestrelix
