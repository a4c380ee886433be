// Reading a view: from a Section's row to a table. Nothing here touches a control.
#pragma once

#include <string>
#include <vector>

#include "navigation/clsSnapId.h"
#include "platform/controls/grid.h"
#include "platform/database.h"
#include "platform/progress.h"
#include "report/Section.h"
#include "report/report_table.h"

namespace kestrelix {

/// What views are read from.
struct ReportSource {
  Database& database;
  const clsSnapId& pairs;
  std::string version;  ///< "9", "10" or "11"; for any other nothing is read that depends on it
  Progress& progress;
};

/// What a Col view is asked with: a row of the All view, from 1, and the texts of its key cells.
struct ColRequest {
  int row = 0;
  std::vector<std::string> keys = {};
};

/// What row `row` of an All view, from 1, leads to. A cell that is not there is empty: a grid can still show
/// another Section, when the reading of this one failed.
ColRequest colRequest(const Section& section, const Grid& grid, int row);
ColRequest colRequest(const Section& section, const ReportTable& table, int row);

/// The Section for one pair: its rows or its metrics. For a pair across a restart the headings alone, or the
/// metrics without figures, unless the figures hold there.
ReportTable readAll(const ReportSource& source, const Section& section, int pair);

/// One row or metric over all pairs, a row a pair. Nothing is read where the request leads to no series. An
/// action that the progress ends between two pairs is a failure of the Col view's member.
ReportTable readCol(const ReportSource& source, const Section& section, const ColRequest& request);

/// Reads Sections; a window reads through one, so that it can stand for another.
class SectionReader {
 public:
  virtual ~SectionReader() = default;
  virtual ReportTable all(const ReportSource& source, const Section& section, int pair) {
    return readAll(source, section, pair);
  }
  virtual ReportTable col(const ReportSource& source, const Section& section, const ColRequest& request) {
    return readCol(source, section, request);
  }
};

/// The reader that reads where it is called.
SectionReader& directReader();

}  // namespace kestrelix
