#include "sections/summary/clsMemoryStatistics.h"

#include "sections/summary/snapshotFigures.h"

namespace kestrelix {
namespace {

std::string megabytes(const std::string& alias, const std::string& bytes) {
  return "ROUND(A.START_" + bytes + " / 1024 / 1024,1) AS " + alias + "_START, ROUND(B.END_" + bytes +
         " / 1024 / 1024,1) AS " + alias + "_END";
}

std::string share(const std::string& prefix) {
  return "ROUND(100 * (" + prefix + "PGAALLOC + " + prefix + "SGAALLOC) / " + prefix + "PMEM,1)";
}

}  // namespace

clsMemoryStatistics::clsMemoryStatistics() : MetricSectionObject("clsMemoryStatistics", fieldNames()) {
  const Figure host = hostStatistic("PMEM", "PHYSICAL_MEMORY_BYTES");
  const Figure sga = aggregate("SGAALLOC", "SUM(VALUE)", "stats$sga");
  const Figure pga = sessionMemory("PGAALLOC", "total PGA allocated");
  // Both views are of one instance already, so that the test of the instance against itself does no harm.
  metric("getHOST_MEM_MB", {Field::HOST_MEM_MB_START, Field::HOST_MEM_MB_END},
         fromStartAndEnd(megabytes("HOST_MEM_MB", "PMEM"), {host},
                         "A.DBID = B.DBID and A.INSTANCE_NUMBER = A.INSTANCE_NUMBER"));
  metric("getSGA_USE_MB", {Field::SGA_USE_MB_START, Field::SGA_USE_MB_END},
         fromStartAndEnd(megabytes("SGA_USE_MB", "SGAALLOC"), {sga}));
  metric("getPGA_USE_MB", {Field::PGA_USE_MB_START, Field::PGA_USE_MB_END},
         fromStartAndEnd(megabytes("PGA_USE_MB", "PGAALLOC"), {pga}));
  metric("getHOST_MEM_USE_FOR_SGA_PGA",
         {Field::HOST_MEM_USE_FOR_SGA_PGA_START, Field::HOST_MEM_USE_FOR_SGA_PGA_END},
         fromStartAndEnd(share("A.START_") + " AS HOST_MEM_USE_FOR_SGA_PGA_START, " + share("B.END_") +
                             " AS HOST_MEM_USE_FOR_SGA_PGA_END",
                         {host, sga, pga}));
}

}  // namespace kestrelix
