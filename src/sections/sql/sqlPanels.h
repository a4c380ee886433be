// The two panels behind a ranking, as values: the stored text and the plans of one statement.
#pragma once

#include "report/reading.h"

namespace kestrelix {

/// The text of the statement of that hash in a pair, a row a piece; which statement and which snapshots
/// stands in the first row alone. A pair across a restart lists no statement, so there is none to name: the
/// headings alone.
ReportTable readSqlText(const ReportSource& source, int pair, const std::string& hash);

/// The plans that it used, a row a step, likewise.
ReportTable readSqlPlan(const ReportSource& source, int pair, const std::string& hash);

}  // namespace kestrelix
