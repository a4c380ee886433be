#include "sections/memory/clsTopProcessMemory.h"

#include "sections/memory/processMemory.h"

namespace kestrelix {
namespace {

/// The head row of a process is named after what its program's name has in brackets. The serial numbers are
/// not compared: a category is joined to every process of its pid.
std::string statement() {
  return "select ZZ.B_OR_E AS SNAP, ZZ.PID AS PID, ZZ.CAT AS CATEGORY, " +
         megabytes("ZZ.TOT_ALLOC_MB", 1, "ALLOC_MB") + ", " + megabytes("ZZ.TOT_USED_MB", 1, "USED_MB") +
         ", " + megabytes("ZZ.TOT_FREE_PGA_MB", 1, "FREE_MB") + ", " +
         megabytes("ZZ.MAX_ALLOC_MB", 1, "MAX_ALLOC_MB") + ", " +
         megabytes("ZZ.MAX_MAX_ALLOC_MB", 1, "HIST_MAX_ALLOC_MB") + R"sql(
      from
     (select decode(snap_id, :B3, 'B', :B4, 'E') AS b_or_e,
             snap_id AS snid,
             1 AS ord_col,
             pid AS pid,
             rpad(substr( program, instrb(program,'(') + 1, instrb(program, ')')-1-instrb(program,'(')) || ' ', 13, '-') AS cat,
             pga_alloc_mem AS tot_alloc_mb,
             pga_used_mem AS tot_used_mb,
             pga_freeable_mem AS tot_free_pga_mb,
             max_pga_alloc_mem AS max_alloc_mb,
             max_pga_max_mem AS max_max_alloc_mb,
             pga_alloc_mem AS tot_alloc_mb2
        from stats$process_rollup
       where snap_id in (:B3, :B4)
         and dbid = :B1
         and instance_number = :B2
         and pid != -9
       union all
      select decode(pmr.snap_id, :B3, 'B', :B4, 'E') AS b_or_e,
             pmr.snap_id AS snid,
             2 AS ord_col,
             pmr.pid AS pid,
             pmr.category AS cat,
             pmr.allocated AS tot_alloc_mb,
             pmr.used AS tot_used_mb,
             to_number(null) AS tot_free_pga_mb,
             pmr.max_allocated AS max_alloc_mb,
             pmr.max_max_allocated AS max_max_alloc_mb,
             pr.pga_alloc_mem AS tot_alloc_mb2
        from stats$process_memory_rollup pmr, stats$process_rollup pr
       where pmr.snap_id in (:B3, :B4)
         and pmr.dbid = :B1
         and pmr.instance_number = :B2
         and pmr.pid != -9
         and pr.snap_id = pmr.snap_id
         and pr.dbid = pmr.dbid
         and pr.instance_number = pmr.instance_number
         and pr.pid = pmr.pid
         and pmr.serial# = pmr.serial#) ZZ
     order by snid, tot_alloc_mb2 desc, pid, ord_col,tot_alloc_mb desc)sql";
}

}  // namespace

clsTopProcessMemory::clsTopProcessMemory()
    : ListSectionObject("clsTopProcessMemory", fieldNames(),
                        {argument("B5", ServerType::String), argument("B6", ServerType::Number),
                         argument("B7", ServerType::String)}) {
  all("getTOP_PROCESS_MEMORY_ALL", fold(statement())).acrossRestarts();
  col("getTOP_PROCESS_MEMORY_COL",
      fold("select * from (" + statement() + ") Z where Z.SNAP = :B5 and Z.PID = :B6 and Z.CATEGORY = :B7"))
      .acrossRestarts();
}

}  // namespace kestrelix
