#include "sections/contention/clsMutexSleep.h"

namespace kestrelix {
namespace {

const std::string kSleeps = R"sql(
    select e.mutex_type AS MUTEX_TYPE,
           e.location AS LOCATION,
           e.sleeps - nvl(b.sleeps, 0) AS SLEEPS,
           ROUND((e.wait_time - nvl(b.wait_time, 0)) / 1000000,1) AS WAIT_TIME_SEC
      from stats$mutex_sleep b, stats$mutex_sleep e
     where b.snap_id(+) = :B3
       and e.snap_id = :B4
       and e.dbid = :B1
       and b.dbid(+) = e.dbid
       and e.instance_number = :B2
       and b.instance_number(+) = e.instance_number
       and b.mutex_type(+) = e.mutex_type
       and b.location(+) = e.location
       and e.sleeps - nvl(b.sleeps, 0) > 0)sql";

}  // namespace

clsMutexSleep::clsMutexSleep()
    : ListSectionObject("clsMutexSleep", fieldNames(), {argument("B5", ServerType::String)}) {
  all("getMUTEX_SLEEP_ALL", fold(kSleeps + " order by e.wait_time - nvl(b.wait_time, 0) desc"));
  col("getMUTEX_SLEEP_COL", fold("select * from (" + kSleeps + ") Z where Z.MUTEX_TYPE like :B5"));
}

}  // namespace kestrelix
