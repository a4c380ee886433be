#include "sections/memory/clsPGAAggrTargetHistogram.h"

namespace kestrelix {
namespace {

/// A number of bytes in the largest unit that it fills, at the right of twelve characters. `bytes` is the
/// text below one kilobyte.
std::string sizeText(const std::string& size, const std::string& bytes) {
  std::string text = "case";
  std::string unit = "1024 * 1024 * 1024 * 1024";
  for (const char letter : {'T', 'G', 'M', 'K'}) {
    text += " when " + size + " >= " + unit + " then lpad(ROUND(" + size + " / (" + unit + ")) || '" +
            letter + "',12)";
    unit = unit.substr(0, unit.rfind(" * "));
  }
  return text + " else " + bytes + " end";
}

/// The upper end is not padded below one kilobyte: such a row has no time series.
std::string statement() {
  return "select " + sizeText("e.low_optimal_size", "lpad(e.low_optimal_size || 'B',12)") +
         " AS LOW_OPTIMAL, " + sizeText("e.high_optimal_size", "e.high_optimal_size || 'B'") +
         R"sql( AS HIGH_OPTIMAL,
           e.total_executions - nvl(b.total_executions,0) AS TOTAL_EXECS,
           e.optimal_executions - nvl(b.optimal_executions,0) AS OPTIMAL_EXECS,
           e.onepass_executions - nvl(b.onepass_executions,0) AS ONE_PASS_EXECS,
           e.multipasses_executions - nvl(b.multipasses_executions,0) AS MULTI_PASS_EXECS
      from stats$sql_workarea_histogram e, stats$sql_workarea_histogram b
     where e.snap_id = :B4
       and e.dbid = :B1
       and e.instance_number = :B2
       and b.snap_id(+) = :B3
       and b.dbid(+) = e.dbid
       and b.instance_number(+) = e.instance_number
       and b.low_optimal_size(+) = e.low_optimal_size
       and b.high_optimal_size(+) = e.high_optimal_size
       and e.total_executions - nvl(b.total_executions,0) > 0
     order by e.low_optimal_size)sql";
}

}  // namespace

clsPGAAggrTargetHistogram::clsPGAAggrTargetHistogram()
    : ListSectionObject("clsPGAAggrTargetHistogram", fieldNames(),
                        {argument("B5", ServerType::String), argument("B6", ServerType::String)}) {
  all("getPGA_AGGR_TARGET_HISTOGRAM_ALL", fold(statement()));
  col("getPGA_AGGR_TARGET_HISTOGRAM_COL",
      fold("select * from (" + statement() +
           ") Z where Z.LOW_OPTIMAL = lpad(:B5 ,12) and Z.HIGH_OPTIMAL = lpad(:B6 ,12)"));
}

}  // namespace kestrelix
