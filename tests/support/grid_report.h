// Views read into a grid, as the main window does it, over any connection.
#pragma once

#include <stdexcept>
#include <string>
#include <utility>

#include "navigation/repository.h"
#include "report/GridRendering.h"
#include "report/reading.h"
#include "sections/SectionList.h"
#include "support/grid_texts.h"
#include "support/recording_boxes.h"
#include "support/recording_progress.h"

namespace kestrelix::testing_support {

class GridReport {
 public:
  Repository repository;
  RecordingBoxes boxes;
  RecordingProgress progress;
  Grid grid{"MSFlexGridMain"};

  /// The pairs of an instance. Fails where there are none.
  void loadPairs(const std::string& dbid, const std::string& instance) {
    if (!repository.loadPairs(dbid, instance, false).empty()) throw std::runtime_error("fixture: no pairs");
  }
  ReportSource source(const std::string& version) {
    return {*repository.gOraDatabase, *repository.gSnapId, version, progress};
  }
  /// The All view of a Section that the version lists.
  void all(const std::string& text, const std::string& version, const std::string& parallel, int pair) {
    selected_ = &section(text);
    if (!isListed(*selected_, version, parallel))
      throw std::runtime_error("fixture: " + text + " is not listed");
    show(readAll(source(version), *selected_, pair));
  }
  /// The Col view that the grid's current row leads to.
  void col(const std::string& version) {
    if (selected_->col.kind == ColKey::Kind::Refused) return boxes.show(BoxIcon::Exclamation, kNoSeries, {});
    show(readCol(source(version), *selected_, colRequest(*selected_, grid, grid.Row())));
  }

  void show(const ReportTable& table) {
    showFailures(boxes, table.failures);
    if (table.read) showTable(grid, table);
  }

 private:
  const Section* selected_ = nullptr;
};

}  // namespace kestrelix::testing_support
