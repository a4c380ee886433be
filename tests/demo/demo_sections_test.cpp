// Every Section answers on the demo repository, and shows something.
#include <algorithm>
#include <set>

#include "demo/demo_support.h"
#include "support/report_fixture.h"

namespace kestrelix::demo {
namespace {

constexpr int kBusyPair = 10;     // Monday from 10 to 11
constexpr int kMovePair = 12;     // in which a granule moves
constexpr int kBadPair = 33;      // of the first instances; an hour later of the second ones
constexpr int kRestartPair = 45;  // likewise

int rowsOf(const std::string& grid) {
  return static_cast<int>(std::count(grid.begin(), grid.end(), '\n')) - 1;
}

TEST_F(DemoTest, everySectionHasRowsInABusyPairAndGivesNoBox) {
  testing_support::ReportFixture report(path());
  // Rare events: a warehouse meets them in many pairs, not in all.
  const std::set<std::string> rare = {"Segments by ITL Waits", "Segments by Row Lock Waits"};
  const std::vector<std::size_t> sections = {46, 86, 86, 94, 94, 76};
  for (int instance = 0; instance < 6; ++instance) {
    report.open(instance);
    const auto names = report.sections();
    EXPECT_EQ(names.size(), sections[static_cast<std::size_t>(instance)]);
    for (const std::string& name : names) {
      const int pair = name == "Memory Resize Operations" ? kMovePair : kBusyPair;
      const int rows = rowsOf(report.all(name, pair));
      EXPECT_TRUE(rows > 0 || rare.contains(name)) << instance << " " << name;
      const int shift = instance == 2 || instance == 4 ? 1 : 0;
      report.all(name, kBadPair + shift);
      report.all(name, kRestartPair + shift);
    }
  }
  EXPECT_EQ(report.boxes(), std::vector<std::string>());
}

TEST_F(DemoTest, everySeriesHasARowForEachPairAndGivesNoBox) {
  testing_support::ReportFixture report(path());
  for (const int instance : {0, 1, 3}) {
    report.open(instance);
    for (const std::string& name : report.sections()) {
      if (rowsOf(report.all(name, name == "Memory Resize Operations" ? kMovePair : kBusyPair)) == 0) continue;
      const std::size_t before = report.boxes().size();
      const std::string series = report.col(1);
      if (name == "Undo Segment Stats") {
        // Its rows are times already: it says so.
        EXPECT_EQ(report.boxes().size(), before + 1);
        continue;
      }
      EXPECT_EQ(rowsOf(series), 59) << instance << " " << name;
      EXPECT_EQ(report.boxes().size(), before) << instance << " " << name;
    }
  }
}

TEST_F(DemoTest, theTopEventsShareTheCallTime) {
  testing_support::ReportFixture report(path());
  report.open(3);
  const std::string top = report.all("Top 5 Timed Events", kBusyPair);
  EXPECT_EQ(rowsOf(top), 5);
  EXPECT_NE(top.find("|CPU time| |"), std::string::npos);
  EXPECT_NE(top.find("|db file sequential read|"), std::string::npos);
}

}  // namespace
}  // namespace kestrelix::demo
