// A report on a small repository, without a window: pick an instance, a Section and a pair, read the grid.
#pragma once

#include <stdexcept>
#include <string>
#include <vector>

#include "navigation/version_gate.h"
#include "repository_file/local_session.h"
#include "support/fixture_repository.h"
#include "support/grid_report.h"

namespace kestrelix::testing_support {

/// Opens the fixture's file as PERFSTAT and loads its instances. Views are asked for as the window does it.
///
///   ReportFixture report(repository.write());
///   report.open(0);
///   EXPECT_EQ(report.all("Wait Events", 0), "NO|EVENT|...\n1|...\n");
///   EXPECT_EQ(report.col(1), "NO|EVENT|END TIME|...\n...");
///   EXPECT_THAT(boxes(), IsEmpty());
class ReportFixture {
 public:
  explicit ReportFixture(const std::string& path) {
    const auto session = [&] { return repository_file::localSession(path); };
    if (!repository().open(session, "FIXTURE", "PERFSTAT/perfstat").empty() ||
        !repository().loadInstances().empty())
      throw std::runtime_error("fixture: no instances");
  }

  /// The pairs of an instance, by its row in the list.
  void open(int instance) {
    const clsDbInstance& instances = *repository().gDbInstance;
    version_ = majorVersion(instances.VERSION(instance));
    parallel_ = instances.PARALLEL(instance);
    report_.loadPairs(instances.dbid(instance), instances.INSTANCE_NUMBER(instance));
  }

  /// The grid after a click on the pair with the Section selected.
  std::string all(const std::string& section, int pair) {
    report_.all(section, version_, parallel_, pair);
    return printed(grid());
  }

  /// The grid after a double click on that row of the All view that shows.
  std::string col(int row) {
    grid().Row(row);
    report_.col(version_);
    return printed(grid());
  }

  /// What a renderer has read, in the grid.
  void show(const ReportTable& table) { report_.show(table); }

  /// The Sections that the instance has.
  std::vector<std::string> sections() const {
    std::vector<std::string> texts;
    for (const Section& section : sectionList())
      if (isListed(section, version_, parallel_)) texts.emplace_back(section.text);
    return texts;
  }
  MessageBoxes& messageBoxes() { return report_.boxes; }
  Repository& repository() { return report_.repository; }
  ReportSource source() { return report_.source(version_); }
  Grid& grid() { return report_.grid; }
  const std::string& version() const { return version_; }
  /// The boxes shown so far.
  const std::vector<std::string>& boxes() const { return report_.boxes.shown; }
  const std::vector<std::string>& errors() const { return report_.boxes.errors; }
  /// What was told of how far the views had come.
  const std::vector<std::string>& told() const { return report_.progress.calls; }

 private:
  GridReport report_;
  std::string version_;
  std::string parallel_;
};

}  // namespace kestrelix::testing_support
