#include "sections/summary/clsInstanceEfficiency.h"

#include "sections/summary/snapshotFigures.h"

namespace kestrelix {
namespace {

/// `percentage` by the gains of `figures`, blank if `divisor` is 0.
std::string ratio(const std::string& alias, const std::string& divisor, const std::string& percentage,
                  const std::vector<Figure>& figures) {
  return fromStartAndEnd("DECODE(" + divisor + ",0,' ',ROUND(" + percentage + ",2)) AS " + alias, figures);
}

/// The share of `whole` that isn't `missed`.
std::string hit(const std::string& alias, const std::string& missed, const Figure& whole,
                std::vector<Figure> figures) {
  figures.push_back(whole);
  const std::string divisor = gain(whole.alias);
  return ratio(alias, divisor, "100 * ( 1 - " + missed + " / " + divisor + " )", figures);
}

/// The share that isn't `part` of `whole`, at each end.
std::string levels(const std::string& alias, const Figure& part, const Figure& whole) {
  const auto level = [&](const std::string& prefix) {
    return "ROUND(100 * ( 1 - " + prefix + part.alias + " / " + prefix + whole.alias + "),2)";
  };
  return fromStartAndEnd(
      level("A.START_") + " AS " + alias + "_START, " + level("B.END_") + " AS " + alias + "_END",
      {part, whole});
}

/// From release 10 on only gets that went through the cache; release 9 can't tell them apart.
Figure bufferGets() {
  return aggregate("BUFFER_GETS", "SUM(VALUE)", "stats$sysstat",
                   "NAME in ('consistent gets from cache','db block gets from cache')");
}
Figure bufferGetsOf9() {
  return aggregate("BUFFER_GETS", "SUM(VALUE)", "stats$sysstat", "NAME in ('session logical reads')");
}

std::string bufferNowait(const Figure& gets) {
  return hit("BUFFER_NOWAIT", gain("BUFFER_WAITS"), gets,
             {aggregate("BUFFER_WAITS", "SUM(WAIT_COUNT)", "stats$waitstat")});
}

std::string memoryUsage(const Figure& sharedPool) {
  const Figure free{"FREE_MEM_SIZE", R"sql(
    (select DBID, INSTANCE_NUMBER, SNAP_ID, NAME, BYTES AS VALUE
       from stats$sgastat
      where DBID = :B1
        and INSTANCE_NUMBER = :B2
        and SNAP_ID = :SNAP
        and POOL in ('shared pool', 'all pools')))sql",
                    "free memory"};
  return levels("MEMORY_USAGE", free, sharedPool);
}

Figure ofStatements(const std::string& column) {
  return {.alias = column, .source = "stats$sql_statistics", .value = column};
}

}  // namespace

clsInstanceEfficiency::clsInstanceEfficiency() : MetricSectionObject("clsInstanceEfficiency", fieldNames()) {
  buildCommon();
  buildOfVersion9();
  buildWorkAreas();
  const auto members = [](const std::string& ofRow4) -> std::vector<std::string> {
    return {"getBUFFER_NOWAIT",
            "getREDO_NOWAIT",
            "getBUFFER_HIT",
            ofRow4,
            "getLIBRARY_HIT",
            "getSOFT_PARSE",
            "getEXECUTE_TO_PARSE",
            "getLATCH_HIT",
            "getPARSE_CPU_TO_PARSE_ELAPSD",
            "getNON_PARSE_CPU",
            "getMEMORY_USAGE",
            "getSQL_WITH_EXECUTIONS",
            "getMEMORY_FOR_SQL_WEXEC"};
  };
  order(V9_10, members("getIN_MEMORY_SORT"));
  order(V11, members("getOPTIMAL_WA_EXEC"));
}

void clsInstanceEfficiency::buildCommon() {
  metric("getBUFFER_NOWAIT", {Field::BUFFER_NOWAIT}, bufferNowait(bufferGets())).only(V10_11);
  metric("getREDO_NOWAIT", {Field::REDO_NOWAIT},
         hit("REDO_NOWAIT", gain("REDO_LOG_SPAC_REQUESTS"), statistic("REDO_ENTRIES", "redo entries"),
             {statistic("REDO_LOG_SPAC_REQUESTS", "redo log space requests")}));
  metric("getBUFFER_HIT", {Field::BUFFER_HIT},
         hit("BUFFER_HIT", gain("PHYSICAL_READS_CACHE"), bufferGets(),
             {statistic("PHYSICAL_READS_CACHE", "physical reads cache")}))
      .only(V10_11);
  const std::string sorts = "(" + gain("SORTS_DISK") + " + " + gain("SORTS_MEMORY") + ")";
  metric("getIN_MEMORY_SORT", {Field::IN_MEMORY_SORT},
         ratio("IN_MEMORY_SORT", sorts, "100 * " + gain("SORTS_MEMORY") + " / " + sorts,
               {statistic("SORTS_MEMORY", "sorts (memory)"), statistic("SORTS_DISK", "sorts (disk)")}));
  metric("getLIBRARY_HIT", {Field::LIBRARY_HIT},
         ratio("LIBRARY_HIT", gain("PINS"), "100 * " + gain("PINHITS") + " / " + gain("PINS"),
               {aggregate("PINS", "SUM(PINS)", "stats$librarycache"),
                aggregate("PINHITS", "SUM(PINHITS)", "stats$librarycache")}));
  const Figure parses = statistic("PARSE_COUNT_TOTAL", "parse count (total)");
  metric("getSOFT_PARSE", {Field::SOFT_PARSE},
         hit("SOFT_PARSE", gain("PARSE_COUNT_HARD"), parses,
             {statistic("PARSE_COUNT_HARD", "parse count (hard)")}));
  metric("getEXECUTE_TO_PARSE", {Field::EXECUTE_TO_PARSE},
         hit("EXECUTE_TO_PARSE", gain("PARSE_COUNT_TOTAL"), statistic("EXECUTE_COUNT", "execute count"),
             {parses}));
  metric("getLATCH_HIT", {Field::LATCH_HIT},
         hit("LATCH_HIT", gain("MISSES"), aggregate("GETS", "SUM(gets)", "stats$latch"),
             {aggregate("MISSES", "SUM(misses)", "stats$latch")}));
  const Figure parseCpu = statistic("PARSE_TIME_CPU", "parse time cpu");
  metric("getPARSE_CPU_TO_PARSE_ELAPSD", {Field::PARSE_CPU_TO_PARSE_ELAPSD},
         ratio("PARSE_CPU_TO_PARSE_ELAPSD", gain("PARSE_TIME_ELAPSED"),
               "100 * " + gain("PARSE_TIME_CPU") + " / " + gain("PARSE_TIME_ELAPSED"),
               {parseCpu, statistic("PARSE_TIME_ELAPSED", "parse time elapsed")}));
  metric("getNON_PARSE_CPU", {Field::NON_PARSE_CPU},
         hit("NON_PARSE_CPU", gain("PARSE_TIME_CPU"),
             statistic("CPU_USED_BY_THIS_SESSION", "CPU used by this session"), {parseCpu}));
  // The parameter is a text, and so is the larger of the two.
  metric("getMEMORY_USAGE", {Field::MEMORY_USAGE_START, Field::MEMORY_USAGE_END},
         memoryUsage(aggregate("SHARED_POOL_SIZE", "MAX(VALUE)", "stats$parameter",
                               "(NAME = '__' || 'shared_pool_size' or NAME = 'shared_pool_size')")))
      .only(V10_11);
  metric("getSQL_WITH_EXECUTIONS", {Field::SQL_WITH_EXECUTIONS_START, Field::SQL_WITH_EXECUTIONS_END},
         levels("SQL_WITH_EXECUTIONS", ofStatements("SINGLE_USE_SQL"), ofStatements("TOTAL_SQL")));
  metric("getMEMORY_FOR_SQL_WEXEC", {Field::MEMORY_FOR_SQL_WEXEC_START, Field::MEMORY_FOR_SQL_WEXEC_END},
         levels("MEMORY_FOR_SQL_WEXEC", ofStatements("SINGLE_USE_SQL_MEM"), ofStatements("TOTAL_SQL_MEM")));
}

void clsInstanceEfficiency::buildOfVersion9() {
  metric("getBUFFER_NOWAIT", {Field::BUFFER_NOWAIT}, bufferNowait(bufferGetsOf9())).only(V9);
  metric(
      "getBUFFER_HIT", {Field::BUFFER_HIT},
      hit("BUFFER_HIT",
          "( " + gain("PHYSICAL_READS") + " - " + gain("READS_DIRECT") + " - " + gain("READS_DIRECT_LOB") +
              " )",
          bufferGetsOf9(),
          {statistic("PHYSICAL_READS", "physical reads"), statistic("READS_DIRECT", "physical reads direct"),
           statistic("READS_DIRECT_LOB", "physical reads direct (lob)")}))
      .only(V9);
  metric("getMEMORY_USAGE", {Field::MEMORY_USAGE_START, Field::MEMORY_USAGE_END},
         memoryUsage(aggregate("SHARED_POOL_SIZE", "SUM(BYTES)", "stats$sgastat",
                               "POOL in ('shared pool', 'all pools')")))
      .only(V9);
}

void clsInstanceEfficiency::buildWorkAreas() {
  metric("getOPTIMAL_WA_EXEC", {Field::OPTIMAL_WA_EXEC}, fold(R"sql(
    select DECODE(TOTAL_EXEC, 0, ' ', ROUND (100 * OPT_EXEC / TOTAL_EXEC,2)) AS OPTIMAL_WA_EXEC
      from (select sum(e.optimal_executions - nvl(b.optimal_executions,0)) AS OPT_EXEC,
                   sum(e.total_executions - nvl(b.total_executions,0)) AS TOTAL_EXEC
              from stats$sql_workarea_histogram e, stats$sql_workarea_histogram b
             where e.snap_id = :B4
               and e.dbid = :B1
               and e.instance_number = :B2
               and b.snap_id(+) = :B3
               and b.dbid(+) = e.dbid
               and b.instance_number(+) = e.instance_number
               and b.low_optimal_size(+) = e.low_optimal_size
               and b.high_optimal_size(+) = e.high_optimal_size))sql"));
}

}  // namespace kestrelix
