#include "sections/memory/clsPGAAggrTargetStats.h"

namespace kestrelix {
namespace {

struct Folded {
  const char* statistic;
  const char* alias;
};

/// Some statistics of one snapshot as the columns of one row.
std::string folded(const std::vector<Folded>& statistics, const std::string& bind) {
  std::string sums;
  std::string names;
  for (const auto& [statistic, alias] : statistics) {
    const std::string name = "'" + std::string(statistic) + "'";
    sums += std::string(sums.empty() ? "" : ", ") + "sum(case when name = " + name +
            " then value else 0 end) AS " + alias;
    names += (names.empty() ? "" : ", ") + name;
  }
  return "(select " + sums + " from stats$pgastat pga where pga.snap_id = " + bind +
         " and pga.dbid = :B1 and pga.instance_number = :B2 and pga.name in (" + names + "))";
}

std::string hitRatio() {
  const std::vector<Folded> traffic{{"bytes processed", "bytes"}, {"extra bytes read/written", "bytesrw"}};
  return fold(R"sql(
    select ROUND(100 * (e.bytes - nvl(b.bytes,0))
                 / (e.bytes - nvl(b.bytes,0) + e.bytesrw - nvl(b.bytesrw,0)),1) AS PGA_CACHE_HIT_PAR,
           ROUND((e.bytes - nvl(b.bytes,0)) / 1024 / 1024) AS W_A_MB_PROCESSED,
           ROUND((e.bytesrw - nvl(b.bytesrw,0)) / 1024 / 1024) AS EXTRA_W_A_MB_READ_WRITTEN
      from )sql" +
              folded(traffic, ":B3") + " b, " + folded(traffic, ":B4") +
              " e where e.bytes - nvl(b.bytes,0) > 0");
}

/// An instance without a target has no row.
std::string sizes(const std::string& letter, const std::string& bind) {
  const std::vector<Folded> memory{{"total PGA allocated", "PGA_alloc"},
                                   {"total PGA used for auto workareas", "PGA_used_auto"},
                                   {"total PGA used for manual workareas", "PGA_used_man"},
                                   {"global memory bound", "glob_mem_bnd"},
                                   {"aggregate PGA auto target", "pat"}};
  return "select '" + letter + R"sql(' AS SNAP,
           ROUND(to_number(p.value) / 1024 / 1024) AS PGA_AGGR_TARGET_MB,
           ROUND(mu.pat / 1024 / 1024) AS AUTO_PGA_TARGET_MB,
           ROUND(mu.PGA_alloc / 1024 / 1024,1) AS PGA_MEM_ALLOC_MB,
           ROUND((mu.PGA_used_auto + mu.PGA_used_man) / 1024 / 1024,1) AS W_A_PGA_USED_MB,
           ROUND(100 * (mu.PGA_used_auto + mu.PGA_used_man) / PGA_alloc,1) AS PAR_PGA_W_A_MEM,
           ROUND(decode(mu.PGA_used_auto + mu.PGA_used_man, 0, 0,
                        100 * mu.PGA_used_auto / (mu.PGA_used_auto + mu.PGA_used_man)),1) AS PAR_AUTO_W_A_MEM,
           ROUND(decode(mu.PGA_used_auto + mu.PGA_used_man, 0, 0,
                        100 * mu.PGA_used_man / (mu.PGA_used_auto + mu.PGA_used_man)),1) AS PAR_MAN_W_A_MEM,
           ROUND(mu.glob_mem_bnd / 1024) AS GLOBAL_MEM_BOUND_KB
      from )sql" +
         folded(memory, bind) + R"sql( mu, stats$parameter p
     where p.snap_id = )sql" +
         bind + R"sql(
       and p.dbid = :B1
       and p.instance_number = :B2
       and p.name = 'pga_aggregate_target'
       and p.value != '0')sql";
}

}  // namespace

clsPGAAggrTargetStats::clsPGAAggrTargetStats()
    : ListSectionObject("clsPGAAggrTargetStats", fieldNames(), {argument("B5", ServerType::String)}) {
  const auto fields1 = {Field::PGA_CACHE_HIT_PAR, Field::W_A_MB_PROCESSED, Field::EXTRA_W_A_MB_READ_WRITTEN};
  all("getPGA_AGGR_TARGET_STATS_1_ALL", hitRatio()).reading(fields1);
  col("getPGA_AGGR_TARGET_STATS_1_COL", hitRatio()).reading(fields1);

  const std::string both = sizes("B", ":B3") + " union all " + sizes("E", ":B4") + " order by snap";
  const auto fields2 = {Field::SNAP,
                        Field::PGA_AGGR_TARGET_MB,
                        Field::AUTO_PGA_TARGET_MB,
                        Field::PGA_MEM_ALLOC_MB,
                        Field::W_A_PGA_USED_MB,
                        Field::PAR_PGA_W_A_MEM,
                        Field::PAR_AUTO_W_A_MEM,
                        Field::PAR_MAN_W_A_MEM,
                        Field::GLOBAL_MEM_BOUND_KB};
  all("getPGA_AGGR_TARGET_STATS_2_ALL", fold(both)).reading(fields2).acrossRestarts();
  col("getPGA_AGGR_TARGET_STATS_2_COL", fold("select * from (" + both + ") Z where Z.SNAP = :B5"))
      .reading(fields2)
      .acrossRestarts();
}

}  // namespace kestrelix
