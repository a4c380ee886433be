// Oracle 11: a statement's delta is the sum of its steps from snapshot to snapshot, so that a cursor that was
// reloaded in between counts from zero again.
#pragma once

#include <string>

#include "sections/sql/sqlRankings.h"

namespace kestrelix {

/// The list of a ranking, at most :TOP_NUM rows.
std::string lagWindowList(const SqlRanking& ranking, SqlSort sort);
/// The rows of the one statement :B5, one for each of its cursors.
std::string lagWindowOne(const SqlRanking& ranking);

}  // namespace kestrelix
