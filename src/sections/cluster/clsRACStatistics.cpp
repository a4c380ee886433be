#include "sections/cluster/clsRACStatistics.h"

namespace kestrelix {

clsRACStatistics::clsRACStatistics() : MetricSectionObject("clsRACStatistics", fieldNames()) {
  metric("getNUMBER_OF_INSTANCES", {Field::START_NUMBER_OF_INSTANCES, Field::END_NUMBER_OF_INSTANCES},
         fold(R"sql(
    select b.START_NUMBER_OF_INSTANCES, e.END_NUMBER_OF_INSTANCES
      from (select count(b.thread#) AS START_NUMBER_OF_INSTANCES
              from stats$thread b
             where b.snap_id = :B3
               and b.dbid = :B1
               and b.instance_number = :B2
               and b.status = 'OPEN') b,
           (select count(e.thread#) AS END_NUMBER_OF_INSTANCES
              from stats$thread e
             where e.snap_id = :B4
               and e.dbid = :B1
               and e.instance_number = :B2
               and e.status = 'OPEN') e)sql"));
}

}  // namespace kestrelix
