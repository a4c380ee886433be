#include "sections/memory/clsProcessMemorySummaryStats.h"

#include "sections/memory/processMemory.h"

namespace kestrelix {
namespace {

/// The rows that sum up all processes are those of process -9.
const char* const kBothSnapshots =
    " where snap_id in (:B3, :B4) and dbid = :B1 and instance_number = :B2 and pid = -9";

std::string statement() {
  return "select ZZ.B_OR_E AS SNAP, ZZ.CAT AS CATEGORY, " + megabytes("ZZ.TOT_ALLOC_MB", 1, "ALLOC_MB") +
         ", " + megabytes("ZZ.TOT_USED_MB", 1, "USED_MB") + ", " +
         megabytes("ZZ.TOT_FREE_PGA_MB", 1, "FREE_MB") + ", " +
         megabytes("ZZ.AVG_ALLOC_MB", 1, "AVG_ALLOC_MB") + ", " +
         megabytes("ZZ.STDDEV_ALLOC_MB", 1, "STDDEV_ALLOC_MB") + ", " +
         megabytes("ZZ.MAX_ALLOC_MB", 0, "MAX_ALLOC_MB") + ", " +
         megabytes("ZZ.MAX_MAX_ALLOC_MB", 0, "HIST_MAX_ALLOC_MB") + R"sql(,
           DECODE(ZZ.NZA, null,' ',ZZ.NZA) AS NUM_PROCS_OR_ALLOCS
      from
     (select decode(snap_id, :B3, 'B', :B4, 'E') AS b_or_e,
             1 AS ord_col,
             snap_id AS snid,
             '---------' AS cat,
             pga_alloc_mem AS tot_alloc_mb,
             pga_used_mem AS tot_used_mb,
             pga_freeable_mem AS tot_free_pga_mb,
             avg_pga_alloc_mem AS avg_alloc_mb,
             stddev_pga_alloc_mem AS stddev_alloc_mb,
             max_pga_alloc_mem AS max_alloc_mb,
             max_pga_max_mem AS max_max_alloc_mb,
             num_processes AS nza
        from stats$process_rollup)sql" +
         kBothSnapshots + R"sql(
       union all
      select decode(snap_id, :B3, 'B', :B4, 'E') AS b_or_e,
             2 AS ord_col,
             snap_id AS snid,
             category AS cat,
             allocated AS tot_alloc_mb,
             used AS tot_used_mb,
             to_number(null) AS tot_free_pga_mb,
             avg_allocated AS avg_alloc_mb,
             stddev_allocated AS stddev_alloc_mb,
             max_allocated AS max_alloc_mb,
             max_max_allocated AS max_max_alloc_mb,
             non_zero_allocations AS nza
        from stats$process_memory_rollup)sql" +
         kBothSnapshots + R"sql() ZZ
     order by snid, ord_col, tot_alloc_mb desc)sql";
}

}  // namespace

clsProcessMemorySummaryStats::clsProcessMemorySummaryStats()
    : ListSectionObject("clsProcessMemorySummaryStats", fieldNames(),
                        {argument("B5", ServerType::String), argument("B6", ServerType::String)}) {
  all("getPROCESS_MEMORY_SUMMARY_STATS_ALL", fold(statement())).acrossRestarts();
  col("getPROCESS_MEMORY_SUMMARY_STATS_COL",
      fold("select * from (" + statement() + ") Z where Z.SNAP = :B5 and Z.CATEGORY = :B6"))
      .acrossRestarts();
}

}  // namespace kestrelix
