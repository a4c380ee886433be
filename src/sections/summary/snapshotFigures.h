// The frame that the statements of the report's head share: figures of the start of a pair beside those of
// its end.
#pragma once

#include <string>
#include <vector>

namespace kestrelix {

/// One figure of a snapshot. `source` is a table, or a view in brackets, with DBID, INSTANCE_NUMBER, SNAP_ID
/// and the columns of `value`; in it ":SNAP" stands for the bind of the snapshot.
struct Figure {
  std::string alias;  ///< its name in the statement, behind the prefix of its end
  std::string source;
  std::string name = {};        ///< the row of the source, by its column NAME; empty where it has one alone
  bool mayBeMissing = false;    ///< its row can be missing: the figure is null then
  std::string value = "VALUE";  ///< the column that holds it
};

/// A statistic of the instance, by name (stats$sysstat).
Figure statistic(const std::string& alias, const std::string& name);
/// Commits and rollbacks since the start of the instance, as TRANSACTIONS.
Figure transactionCount();
/// A figure of the time model, in microseconds, by name.
Figure timeModel(const std::string& alias, const std::string& name);
/// A figure of the host, by name (stats$osstat).
Figure hostStatistic(const std::string& alias, const std::string& name);
/// The same, null where the host doesn't report it.
Figure hostStatisticIfAny(const std::string& alias, const std::string& name);
/// A figure of the memory of sessions, by name (stats$pgastat).
Figure sessionMemory(const std::string& alias, const std::string& name);
/// An aggregate over all rows that a table has for a snapshot, or over those that meet `condition`.
Figure aggregate(const std::string& alias, const std::string& expression, const std::string& table,
                 const std::string& condition = {});

/// What ties the two ends together.
inline const std::string kSameInstance = "A.DBID = B.DBID and A.INSTANCE_NUMBER = B.INSTANCE_NUMBER";

/// Selects `columns` from the figures at the start as A and at the end as B, one row each; no row if a figure
/// that may not be missing is. Both views bring the time, START_SNAP_TIME and END_SNAP_TIME, and have
/// prefixed aliases, START_x and END_x.
std::string fromStartAndEnd(const std::string& columns, const std::vector<Figure>& figures,
                            const std::string& join = kSameInstance);

/// END_x - START_x, in brackets.
std::string gain(const std::string& alias);

}  // namespace kestrelix
