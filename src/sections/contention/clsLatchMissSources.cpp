#include "sections/contention/clsLatchMissSources.h"

namespace kestrelix {
namespace {

const std::string kPlaces = R"sql(
    select e.parent_name AS LATCH_NAME,
           e.where_in_code AS WHERE_FROM,
           e.nwfail_count - nvl(b.nwfail_count,0) AS NOWAIT_MISSES,
           e.sleep_count - nvl(b.sleep_count,0) AS SLEEPS,
           e.wtr_slp_count - nvl(b.wtr_slp_count,0) AS WAITER_SLEEPS
      from stats$latch_misses_summary b, stats$latch_misses_summary e
     where b.snap_id(+) = :B3
       and e.snap_id = :B4
       and b.dbid(+) = :B1
       and e.dbid = :B1
       and b.dbid(+) = e.dbid
       and b.instance_number(+) = :B2
       and e.instance_number = :B2
       and b.instance_number(+) = e.instance_number
       and b.parent_name(+) = e.parent_name
       and b.where_in_code(+) = e.where_in_code
       and e.sleep_count > nvl(b.sleep_count,0))sql";

}  // namespace

clsLatchMissSources::clsLatchMissSources()
    : ListSectionObject("clsLatchMissSources", fieldNames(), {argument("B5", ServerType::String)}) {
  all("getLATCH_MISS_SOURCES_ALL", fold(kPlaces + " order by e.parent_name, sleeps desc"));
  // The key is the latch alone: of its places the first that comes is shown.
  col("getLATCH_MISS_SOURCES_COL", fold("select * from (" + kPlaces + ") Z where Z.LATCH_NAME = :B5"));
}

}  // namespace kestrelix
