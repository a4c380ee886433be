// Oracle 9 and 10: a statement's delta is its end value less its start value, whatever happened in between.
#pragma once

#include <string>

#include "sections/sql/sqlRankings.h"

namespace kestrelix {

/// The list of a ranking for V9 or V10, fewer than :TOP_NUM rows.
std::string twoSnapshotList(const SqlRanking& ranking, Versions version, SqlSort sort);
/// The rows of the one statement :B5.
std::string twoSnapshotOne(const SqlRanking& ranking, Versions version);

}  // namespace kestrelix
