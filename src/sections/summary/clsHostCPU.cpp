#include "sections/summary/clsHostCPU.h"

#include "sections/summary/snapshotFigures.h"

namespace kestrelix {
namespace {

std::string share(const std::string& time) {
  return "ROUND(100 * ( " + gain(time) + " / (" + gain("BUSY_TIME") + " + " + gain("IDLE_TIME") + ") ),2)";
}

std::vector<Figure> withTotal(std::vector<Figure> figures) {
  figures.push_back(hostStatistic("BUSY_TIME", "BUSY_TIME"));
  figures.push_back(hostStatistic("IDLE_TIME", "IDLE_TIME"));
  return figures;
}

/// A time that every host is expected to report: without it the value is null, which can't be shown.
std::string ofTotal(const std::string& alias, const std::string& time) {
  return fromStartAndEnd(share(time) + " AS " + alias, withTotal({hostStatisticIfAny(time, time)}));
}

/// A time that some hosts don't report: blank without it.
std::string ofTotalIfAny(const std::string& alias, const std::string& time) {
  return fromStartAndEnd("DECODE(B.END_" + time + ",null,' '," + share(time) + ") AS " + alias,
                         withTotal({hostStatisticIfAny(time, time)}));
}

}  // namespace

clsHostCPU::clsHostCPU() : MetricSectionObject("clsHostCPU", fieldNames()) {
  metric("getCPUS", {Field::CPUS_START, Field::CPUS_END},
         fromStartAndEnd("A.START_NUM_CPUS AS CPUS_START, B.END_NUM_CPUS AS CPUS_END",
                         {hostStatistic("NUM_CPUS", "NUM_CPUS")}));
  metric("getLOAD", {Field::LOAD_START, Field::LOAD_END},
         fromStartAndEnd("DECODE(A.START_LOAD,null,' ',ROUND(A.START_LOAD,2)) AS LOAD_START, "
                         "DECODE(B.END_LOAD,null,' ',ROUND(B.END_LOAD,2)) AS LOAD_END",
                         {hostStatisticIfAny("LOAD", "LOAD")}));
  metric("getUSER", {Field::USER_VALUE}, ofTotal("USER_VALUE", "USER_TIME"));
  metric("getSYSTEM", {Field::SYSTEM_VALUE}, ofTotal("SYSTEM_VALUE", "SYS_TIME"));
  metric("getIDLE", {Field::IDLE_VALUE},
         fromStartAndEnd(share("IDLE_TIME") + " AS IDLE_VALUE", withTotal({})));
  metric("getWIO", {Field::WIO_VALUE}, ofTotalIfAny("WIO_VALUE", "IOWAIT_TIME"));
  metric("getWCPU", {Field::WCPU_VALUE}, ofTotalIfAny("WCPU_VALUE", "OS_CPU_WAIT_TIME"));
}

}  // namespace kestrelix
