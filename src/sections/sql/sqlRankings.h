// The ten rankings of SQL statements, as one table: what each is measured by, against which total, and which
// columns it shows. The statements and the views are both made from it.
#pragma once

#include <string>
#include <vector>

#include "report/versions.h"
#include "report/views.h"
#include "sections/sql/clsSQLorderedby.h"

namespace kestrelix {

/// What a statement is ranked by, under its names in the two models of a delta.
struct SqlMeasure {
  std::string delta;   ///< Oracle 11: of a statement's group of rows, unrounded
  std::string column;  ///< Oracle 11: the same in the columns of the report, where times are in microseconds
  std::string pair;    ///< Oracle 9 and 10: of the pair of snapshots, unrounded
};

/// The figure of the whole system that a measure is a share of.
struct SqlTotal {
  enum class Source {
    None,
    TimeModel,   ///< stats$sys_time_model, in microseconds; shown in seconds
    Statistics,  ///< stats$sysstat
    Parameter,   ///< stats$parameter at the end of the pair, no difference
  };
  Source source = Source::None;
  std::string name;    ///< of the statistic or the parameter
  std::string column;  ///< of the report
  /// Oracle 9 and 10: a total of zero lists nothing, where a division by another one fails.
  bool mustBePositive = false;
};

enum class SqlSort { ByMeasure, PerExecution };

/// Which statements a ranking leaves out of the list.
enum class SqlCutOff {
  LeastShare,  ///< those below the least share of the total
  Waited,      ///< those that did not wait at all
  Threshold,   ///< those up to the threshold of the end snapshot
};

/// Columns of the report that stand together.
enum class SqlColumns {
  Executions,
  Total,
  Percent,
  Cpu,
  Elapsed,
  Gets,
  Reads,
  Rows,
  IoWait,
  ClusterWait,
  ParseCalls,
  SharableMemory,
  VersionCount,
};

struct SqlRanking {
  std::string name;  ///< in the members: getSQL_ORDERED_BY_<name>_TOTAL, _EXEC, _TIME
  Versions versions;
  bool perExecution;  ///< there is an _EXEC member
  SqlTotal total;
  SqlMeasure share;  ///< what the percentage is of
  SqlMeasure sort;
  SqlCutOff cutOff;
  std::string threshold;  ///< column of stats$snapshot
  std::vector<SqlColumns> columns;

  bool hasTotal() const { return total.source != SqlTotal::Source::None; }
  bool showsClusterWaits() const { return cutOff == SqlCutOff::Waited; }
  std::string member(const std::string& view) const { return "getSQL_ORDERED_BY_" + name + "_" + view; }
};

const std::vector<SqlRanking>& sqlRankings();
/// The ranking of that name. Fails with std::out_of_range when there is none.
const SqlRanking& sqlRanking(const std::string& name);

using SqlColumn = Column<clsSQLorderedby>;
/// The alias that its statements give it.
const std::string& sqlAlias(const SqlColumn& column);

/// The columns of a ranking for one version (V9, V10 or V11), in the order of the report.
std::vector<SqlColumn> sqlColumns(const SqlRanking& ranking, Versions version);
/// How many of the first columns tell which statement it is: "END TIME" follows them.
std::size_t sqlKeyColumns(Versions version);

}  // namespace kestrelix
