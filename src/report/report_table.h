// A view that has been read, as a value.
#pragma once

#include <string>
#include <vector>

#include "platform/failure.h"
#include "report/measure.h"

namespace kestrelix {

struct TableColumn {
  std::string heading;
  Measure measure;
};

/// Rows of texts under their headings, without the running number that a grid puts in front. Every row has a
/// cell for each column.
struct ReportTable {
  std::string title;  ///< the Section's name
  std::vector<TableColumn> columns;
  std::vector<std::vector<std::string>> rows;
  /// Where the rows are metrics, each with figures of its own: what its cells are. Else empty, and the
  /// columns tell.
  std::vector<std::vector<Measure>> measures;
  /// Of the pair that the rows are of: "OK", "SNAP_LEVEL NG", "DB RESTART". Empty for a series, which has it
  /// in each row.
  std::string status;
  /// What went wrong, in order. The rows can be there all the same: see `read`.
  Failures failures;
  /// There is something to show. Not so when the reading ended at the last of the failures, or when there is
  /// no such view in the release.
  bool read = false;

  const Measure& measure(std::size_t row, std::size_t column) const {
    return measures.empty() ? columns.at(column).measure : measures.at(row).at(column);
  }
};

}  // namespace kestrelix
