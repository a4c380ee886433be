#include "sections/objects/clsResourceLimitStats.h"

namespace kestrelix {
namespace {

const std::string kLimits = R"sql(
    select resource_name AS RESOURCE_NAME,
           current_utilization AS CURRENT_UTILIZATION,
           max_utilization AS MAXIMUM_UTILIZATION,
           initial_allocation AS INITIAL_ALLOCATION,
           limit_value AS LIMIT
      from stats$resource_limit
     where snap_id = :B4
       and dbid = :B1
       and instance_number = :B2)sql";

}  // namespace

clsResourceLimitStats::clsResourceLimitStats()
    : ListSectionObject("clsResourceLimitStats", fieldNames(), {argument("B5", ServerType::String)}) {
  all("getRESOURCE_LIMIT_STATS_ALL", fold(kLimits + " order by RESOURCE_NAME"));
  col("getRESOURCE_LIMIT_STATS_COL", fold("select * from (" + kLimits + ") Z where Z.RESOURCE_NAME = :B5"));
}

}  // namespace kestrelix
