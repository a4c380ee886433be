#include "sections/summary/clsInstanceCPU.h"

#include "sections/summary/snapshotFigures.h"

namespace kestrelix {

clsInstanceCPU::clsInstanceCPU() : MetricSectionObject("clsInstanceCPU", fieldNames()) {
  // The time model counts microseconds, the host hundredths of a second.
  const std::string used = "(" + gain("DB_CPU") + "+" + gain("BG_CPU") + ")";
  const Figure dbCpu = timeModel("DB_CPU", "DB CPU");
  const Figure backgroundCpu = timeModel("BG_CPU", "background cpu time");
  const Figure busy = hostStatistic("BUSY_TIME", "BUSY_TIME");
  metric("getPER_OF_TOTAL_CPU_FOR_INSTANCE", {Field::PER_OF_TOTAL_CPU_FOR_INSTANCE},
         fromStartAndEnd("ROUND(100 * (" + used + "/1000000) / ((" + gain("BUSY_TIME") + " + " +
                             gain("IDLE_TIME") + ")/100),2) AS PER_OF_TOTAL_CPU_FOR_INSTANCE",
                         {dbCpu, backgroundCpu, busy, hostStatistic("IDLE_TIME", "IDLE_TIME")}));
  metric("getPER_OF_BUSY_CPU_FOR_INSTANCE", {Field::PER_OF_BUSY_CPU_FOR_INSTANCE},
         fromStartAndEnd("ROUND((100 * " + used + "/1000000) / (" + gain("BUSY_TIME") +
                             "/100),2) AS PER_OF_BUSY_CPU_FOR_INSTANCE",
                         {dbCpu, backgroundCpu, busy}));
  // The quotient is rounded to a whole number before it becomes a percentage: users see multiples of 100.
  metric("getPER_RESOURCE_MGR", {Field::PER_RESOURCE_MGR},
         fromStartAndEnd(
             "DECODE(" + gain("RSRC_WAIT") + ", 0, ' ', ROUND(100*(round(" + gain("RSRC_WAIT") + "/" +
                 gain("DB_TIME") + ")),2)) AS PER_RESOURCE_MGR",
             {hostStatistic("RSRC_WAIT", "RSRC_MGR_CPU_WAIT_TIME"), timeModel("DB_TIME", "DB time")}));
}

}  // namespace kestrelix
