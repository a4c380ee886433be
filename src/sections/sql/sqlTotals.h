#pragma once

#include <string>

#include "sections/sql/sqlRankings.h"

namespace kestrelix {

/// A query of DBID, INSTANCE_NUMBER, SNAP_ID and, under the name `value`, the total's own figure at the
/// snapshot of that bind. Without the statistic or parameter there it has no row.
std::string sqlTotalAt(const SqlTotal& total, const std::string& bind, const std::string& value);

/// A scalar query: that threshold of the end snapshot, under which a statement isn't captured for its memory
/// or its versions.
std::string sqlThreshold(const std::string& column);

}  // namespace kestrelix
