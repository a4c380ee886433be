#include "sections/memory/clsSQLMemoryStatistics.h"

namespace kestrelix {
namespace {

const char* const kBothEnds = R"sql(
     (select nvl(b.total_cursors,0) AS b_total_cursors,
             nvl(e.total_cursors,0) AS e_total_cursors,
             nvl(b.total_sql,0) AS b_total_sql,
             nvl(e.total_sql,0) AS e_total_sql,
             nvl(b.total_sql_mem,0) AS b_total_sql_mem,
             nvl(e.total_sql_mem,0) AS e_total_sql_mem
        from stats$sql_statistics b, stats$sql_statistics e
       where b.snap_id = :B3
         and e.snap_id = :B4
         and b.instance_number = :B2
         and e.instance_number = :B2
         and b.dbid = :B1
         and e.dbid = :B1))sql";

/// A zero divisor is an error of the statement: there is no guard.
std::string compared(const std::string& alias, const std::string& begin, const std::string& end,
                     bool rounded) {
  const auto shown = [rounded](const std::string& figure) {
    return rounded ? "ROUND(" + figure + ",2)" : figure;
  };
  return fold("select " + shown(begin) + " AS " + alias + "_BIGIN, " + shown(end) + " AS " + alias +
              "_END, ROUND(100 * ((" + end + ") - (" + begin + ")) / (" + end + "),2) AS " + alias +
              "_DIFF from " + kBothEnds);
}

}  // namespace

clsSQLMemoryStatistics::clsSQLMemoryStatistics()
    : MetricSectionObject("clsSQLMemoryStatistics", fieldNames()) {
  metric("getAVG_CURSOR_SIZE_KB",
         {Field::AVG_CURSOR_SIZE_KB_BIGIN, Field::AVG_CURSOR_SIZE_KB_END, Field::AVG_CURSOR_SIZE_KB_DIFF},
         compared("AVG_CURSOR_SIZE_KB", "b_total_sql_mem / 1024 / b_total_cursors",
                  "e_total_sql_mem / 1024 / e_total_cursors", true));
  metric("getCURSOR_TO_PARENT_RATIO",
         {Field::CURSOR_TO_PARENT_RATIO_BIGIN, Field::CURSOR_TO_PARENT_RATIO_END,
          Field::CURSOR_TO_PARENT_RATIO_DIFF},
         compared("CURSOR_TO_PARENT_RATIO", "b_total_cursors / b_total_sql", "e_total_cursors / e_total_sql",
                  true));
  metric("getTOTAL_CURSORS",
         {Field::TOTAL_CURSORS_BIGIN, Field::TOTAL_CURSORS_END, Field::TOTAL_CURSORS_DIFF},
         compared("TOTAL_CURSORS", "b_total_cursors", "e_total_cursors", false));
  metric("getTOTAL_PARENTS",
         {Field::TOTAL_PARENTS_BIGIN, Field::TOTAL_PARENTS_END, Field::TOTAL_PARENTS_DIFF},
         compared("TOTAL_PARENTS", "b_total_sql", "e_total_sql", false));
}

}  // namespace kestrelix
