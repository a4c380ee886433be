// The whole list of Sections over the demo repository: both views of each, for an ordinary pair, one whose
// snapshots were taken at different levels and one across a restart.
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <set>

#include "demo/demo.h"
#include "report/versions.h"
#include "support/report_fixture.h"

namespace kestrelix {
namespace {

/// What the All view of a pair across a restart shows.
enum class Restart {
  Headings,  ///< the headings alone
  Labels,    ///< the labels of the metrics, with nothing beside them
  Rows,      ///< what any other pair shows: each row is of one snapshot
};

/// How far the Col view's row of a pair tells what the All view's row told.
enum class Series {
  SameRow,  ///< the key tells the row from all others
  Swapped,  ///< likewise, but for its last two columns, which change places
  OneOf,    ///< several rows have the key, or there is none: the first that comes is shown
  None,     ///< there is no series
};

/// Both views of a Section, "NO" included in the columns. A Section of metrics has the columns of each
/// metric's Col view, all others have one number.
struct Shape {
  std::string_view section;
  Versions versions;
  int allColumns;
  std::vector<int> colColumns;
  Restart restart = Restart::Headings;
  Series series = Series::SameRow;

  bool isOfMetrics() const { return restart == Restart::Labels || colColumns.size() > 1; }
  int colColumnsOfRow(int row) const {
    return colColumns.size() == 1 ? colColumns[0] : colColumns.at(static_cast<std::size_t>(row) - 1);
  }
};

std::vector<int> operator+(std::vector<int> first, const std::vector<int>& second) {
  first.insert(first.end(), second.begin(), second.end());
  return first;
}

std::vector<int> rows(int count, int columns) {
  return std::vector<int>(static_cast<std::size_t>(count), columns);
}

const std::vector<Shape>& shapes() {
  using enum Restart;
  using enum Series;
  static const std::vector<Shape> all{
      {"Snapshot", kAllVersions, 9, {8, 8, 5}, Labels},
      {"Cache Sizes", kAllVersions, 5, {6, 6, 5, 5}, Labels},
      {"Load Profile", V9_10, 5, rows(11, 6) + rows(5, 5), Labels},
      {"Load Profile", V11, 6, rows(2, 8) + rows(12, 6) + rows(1, 5), Labels},
      {"Instance Efficiency", kAllVersions, 5, rows(10, 5) + rows(3, 6), Labels},
      {"Top 5 Timed Events", kAllVersions, 6, {8}},
      {"Host CPU", V10_11, 5, rows(2, 6) + rows(5, 5), Labels},
      {"Instance CPU", V10_11, 3, rows(3, 5), Labels},
      {"Virtual Memory Paging", V10_11, 3, rows(2, 5), Labels},
      {"Memory Statistics", V10_11, 4, rows(4, 6), Labels},
      {"Time Model System Stats", V10_11, 4, {6}},
      {"RAC Statistics", V10_11, 4, {6}},
      {"Global Cache Load Profile", V10_11, 4, rows(5, 6) + rows(1, 5)},
      {"Global Cache Efficiency", V10_11, 3, rows(3, 5)},
      {"GCS/GES Workload Characteristics", V10_11, 3, rows(11, 5)},
      {"GCS/GES Messaging Statistics", V10_11, 3, rows(8, 5)},
      {"Wait Events", kAllVersions, 7, {9}},
      {"Background Wait Events", kAllVersions, 7, {9}},
      {"Foreground Wait Events", V11, 8, {10}},
      {"Wait Event Histogram", V10_11, 11, {13}},
      {"SQL ordered by CPU TOTAL", V10, 23, {25}},
      {"SQL ordered by CPU TOTAL", V11, 26, {28}},
      {"SQL ordered by CPU EXEC", V10, 23, {25}},
      {"SQL ordered by CPU EXEC", V11, 26, {28}},
      {"SQL ordered by Elapsed TOTAL", V10, 23, {25}},
      {"SQL ordered by Elapsed TOTAL", V11, 26, {28}},
      {"SQL ordered by Elapsed EXEC", V10, 23, {25}},
      {"SQL ordered by Elapsed EXEC", V11, 26, {28}},
      {"SQL ordered by Gets TOTAL", V9, 20, {22}},
      {"SQL ordered by Gets TOTAL", V10, 23, {25}},
      {"SQL ordered by Gets TOTAL", V11, 26, {28}},
      {"SQL ordered by Gets EXEC", V9, 20, {22}},
      {"SQL ordered by Gets EXEC", V10, 23, {25}},
      {"SQL ordered by Gets EXEC", V11, 26, {28}},
      {"SQL ordered by Reads TOTAL", V9, 20, {22}},
      {"SQL ordered by Reads TOTAL", V10, 23, {25}},
      {"SQL ordered by Reads TOTAL", V11, 26, {28}},
      {"SQL ordered by Reads EXEC", V9, 20, {22}},
      {"SQL ordered by Reads EXEC", V10, 23, {25}},
      {"SQL ordered by Reads EXEC", V11, 26, {28}},
      {"SQL ordered by I/O Wait TOTAL", V10, 23, {25}},
      {"SQL ordered by I/O Wait TOTAL", V11, 26, {28}},
      {"SQL ordered by I/O Wait EXEC", V10, 23, {25}},
      {"SQL ordered by I/O Wait EXEC", V11, 26, {28}},
      {"SQL ordered by Cluster TOTAL", V10, 26, {28}},
      {"SQL ordered by Cluster TOTAL", V11, 29, {31}},
      {"SQL ordered by Cluster EXEC", V10, 26, {28}},
      {"SQL ordered by Cluster EXEC", V11, 29, {31}},
      {"SQL ordered by Executions", V9, 20, {22}},
      {"SQL ordered by Executions", V10, 23, {25}},
      {"SQL ordered by Executions", V11, 26, {28}},
      {"SQL ordered by Parse Calls", V9, 20, {22}},
      {"SQL ordered by Parse Calls", V10, 23, {25}},
      {"SQL ordered by Parse Calls", V11, 26, {28}},
      {"SQL ordered by Sharable Memory", V9, 20, {22}},
      {"SQL ordered by Sharable Memory", V10, 23, {25}},
      {"SQL ordered by Sharable Memory", V11, 26, {28}},
      {"SQL ordered by Version Count", V9, 18, {20}},
      {"SQL ordered by Version Count", V10, 21, {23}},
      {"SQL ordered by Version Count", V11, 24, {26}},
      {"Instance Activity Stats[1]", kAllVersions, 5, {7}},
      {"Instance Activity Stats[2]", V10_11, 4, {6}},
      {"Instance Activity Stats[3]", V10_11, 4, {6}},
      {"OS Statistics", V10_11, 3, {5}},
      {"OS Statistics - detail", V11, 9, {11}, Headings, OneOf},
      {"IO Stat by Function - summary", V11, 10, {12}},
      {"IO Stat by Function - detail", V11, 10, {12}},
      {"Tablespace IO Stats", kAllVersions, 10, {12}},
      {"File IO Stats", V9, 11, {13}},
      {"File IO Stats", V10_11, 12, {14}},
      {"File Read Histogram Stats", V10_11, 9, {11}},
      {"Buffer Pool Statistics", kAllVersions, 10, {12}},
      {"Instance Recovery Stats", kAllVersions, 10, {11}, Rows},
      {"Memory Target Advice", V11, 5, {7}},
      {"Memory Dynamic Components", V11, 7, {9}},
      {"Memory Resize Operations", V11, 9, {11}, Headings, OneOf},
      {"Buffer Pool Advisory", V9, 7, {9}},
      {"Buffer Pool Advisory", V10_11, 9, {11}},
      {"Buffer wait Statistics", kAllVersions, 5, {7}},
      {"PGA Aggr Target Stats[1]", kAllVersions, 4, {6}},
      {"PGA Aggr Target Stats[2]", kAllVersions, 10, {11}, Rows},
      {"PGA Aggr Target Histogram", kAllVersions, 7, {9}},
      {"PGA Memory Advisory", kAllVersions, 7, {9}},
      {"Process Memory Summary Stats", V10_11, 11, {12}, Rows},
      {"Top Process Memory (by component)", V10_11, 9, {10}, Rows},
      {"Enqueue Activity", V9, 8, {10}, Headings, Swapped},
      {"Enqueue Activity", V10_11, 8, {10}},
      {"Rollback Segment Stats", kAllVersions, 8, {10}},
      {"Rollback Segment Storage", kAllVersions, 6, {8}},
      {"Undo Segment Summary", kAllVersions, 9, {11}, Headings, OneOf},
      {"Undo Segment Stats", kAllVersions, 9, {}, Headings, None},
      {"Latch Activity", kAllVersions, 8, {10}},
      {"Latch Sleep Breakdown", kAllVersions, 6, {8}},
      {"Latch Miss Sources", kAllVersions, 6, {8}, Headings, OneOf},
      {"Mutex Sleep", V10_11, 5, {7}, Headings, OneOf},
      {"Segments by Logical Reads", kAllVersions, 16, {18}},
      {"Segments by Physical Reads", kAllVersions, 16, {18}},
      {"Segments by Row Lock Waits", kAllVersions, 16, {18}},
      {"Segments by ITL Waits", kAllVersions, 16, {18}},
      {"Segments by Buffer Busy Waits", kAllVersions, 16, {18}},
      {"Segments by GC Buffer Busy Waits", V10_11, 21, {23}},
      {"Segments by CR Blocks Received", V10_11, 21, {23}},
      {"Segments By CU Blocks Received", V10_11, 21, {23}},
      {"Dictionary Cache Stats[1]", kAllVersions, 8, {10}},
      {"Dictionary Cache Stats[2]", V10_11, 5, {7}},
      {"Library Cache Activity[1]", kAllVersions, 8, {10}},
      {"Library Cache Activity[2]", V10_11, 7, {9}},
      {"Global Enqueue Stats", V10_11, 5, {7}},
      {"Global CR Served Stats", V10_11, 3, rows(19, 5)},
      {"Global CURRENT Served Stats", V10_11, 8, rows(3, 10)},
      {"Global Cache Transfer Stats", V10_11, 11, {13}, Headings, OneOf},
      {"Interconnect Ping Stats", V11, 10, {12}},
      {"Dynamic Remastering Stats", V10_11, 3, rows(14, 5)},
      {"Shared Pool Advisory", V9, 8, {10}},
      {"Shared Pool Advisory", V10_11, 10, {12}},
      {"Java Pool Advisory", V10_11, 10, {12}},
      {"Cache Size Changes", V10_11, 5, {7}},
      {"SGA Target Advisory", V10_11, 6, {8}},
      {"SGA Memory Summary", kAllVersions, 5, {7}},
      {"SGA breakdown difference", kAllVersions, 6, {8}},
      {"SQL Memory Statistics", V10_11, 5, rows(4, 7)},
      {"Resource Limit Stats", kAllVersions, 6, {8}},
      {"init.ora Parameters", kAllVersions, 4, {6}},
  };
  return all;
}

const Shape& shapeOf(std::string_view section, Versions version) {
  const auto found = std::find_if(shapes().begin(), shapes().end(), [&](const Shape& shape) {
    return shape.section == section && (shape.versions & version) != 0;
  });
  if (found == shapes().end()) throw std::logic_error("no shape of " + std::string(section));
  return *found;
}

/// Hours enough for each kind of pair, and for a move of memory between the caches.
constexpr int kSnapshots = 18;

/// The demo repository, made once.
const std::string& demo() {
  static const struct Demo {
    std::string path = (std::filesystem::temp_directory_path() /
                        ("kestrelix-whole-catalogue-" + std::to_string(::getpid()) + ".sqlite"))
                           .string();
    Demo() { demo::makeDemo(path, {.snapshots = kSnapshots}); }
    ~Demo() {
      std::error_code ignored;
      std::filesystem::remove(path, ignored);
    }
  } made;
  return made.path;
}

using Cells = std::vector<std::string>;

Cells cellsOf(const Grid& grid, int row) {
  Cells cells;
  for (int c = 0; c < grid.Cols(); ++c) cells.push_back(grid.TextMatrix(row, c));
  return cells;
}

/// The rows of "Snapshot" that belong to one snapshot, whose figures no restart spoils.
bool isOfOneSnapshot(std::string_view section, int row) { return section == "Snapshot" && row <= 2; }

/// An instance of the demo repository, by its row in the list, and the number of Sections that it lists.
struct Listed {
  std::string name;
  Versions version;
  int instance;
  std::size_t sections;

  friend std::ostream& operator<<(std::ostream& out, const Listed& listed) { return out << listed.name; }
};

const Listed kListed[] = {{"Release9", V9, 0, 46},
                          {"ClusterOfRelease10", V10, 1, 86},
                          {"ClusterOfRelease11", V11, 3, 94},
                          {"Release11", V11, 5, 76}};

/// The report of one instance, with what a walk over its Sections asks for.
class Walk : public testing_support::ReportFixture {
 public:
  explicit Walk(const Listed& listed) : ReportFixture(demo()) { open(listed.instance); }

  const clsSnapId& pairs() { return *repository().gSnapId; }

  std::vector<int> pairsOf(const std::string& status) {
    std::vector<int> found;
    for (int i = 0; i < pairs().rownum(); ++i)
      if (pairs().REPORT_STATUS(i) == status) found.push_back(i);
    return found;
  }

  /// The first ordinary pair from the middle of the morning on for which the Section shows a row, whose All
  /// view is then in the grid; -1 if there is none.
  int showBusyPair(const std::string& section) {
    std::vector<int> ordinary = pairsOf(kStatusOk);
    std::rotate(ordinary.begin(), std::lower_bound(ordinary.begin(), ordinary.end(), 9), ordinary.end());
    for (const int pair : ordinary) {
      all(section, pair);
      if (grid().Rows() > 1) return pair;
    }
    return -1;
  }

  /// The boxes since the last time, and the errors behind them.
  std::vector<std::string> newBoxes() {
    std::vector<std::string> fresh(boxes().begin() + static_cast<std::ptrdiff_t>(boxes_), boxes().end());
    fresh.insert(fresh.end(), errors().begin() + static_cast<std::ptrdiff_t>(errors_), errors().end());
    boxes_ = boxes().size();
    errors_ = errors().size();
    return fresh;
  }

 private:
  std::size_t boxes_ = 0;
  std::size_t errors_ = 0;
};

const std::vector<std::string> kNone;

TEST(WholeCatalogue, hasAShapeForEachListedSection) {
  for (const auto& [version, listed] : {std::pair{V9, 46}, std::pair{V10, 86}, std::pair{V11, 94}})
    EXPECT_EQ(std::count_if(shapes().begin(), shapes().end(),
                            [&](const Shape& shape) { return (shape.versions & version) != 0; }),
              listed)
        << version;
}

TEST(WholeCatalogue, listsTheSectionsInTheOrderOfTheirShapes) {
  std::vector<std::string_view> ordered;
  for (const Shape& shape : shapes())
    if (ordered.empty() || ordered.back() != shape.section) ordered.push_back(shape.section);
  std::vector<std::string_view> listed;
  for (const Section& entry : sectionList()) listed.push_back(entry.text);
  EXPECT_EQ(listed, ordered);
}

TEST(WholeCatalogue, hasARowOfEachSectionInSomeOrdinaryPairOfEachVersion) {
  std::set<std::pair<Versions, std::string>> shown;
  std::set<std::pair<Versions, std::string>> empty;
  for (const Listed& listed : kListed) {
    Walk walk(listed);
    for (const std::string& name : walk.sections())
      (walk.showBusyPair(name) >= 0 ? shown : empty).insert({listed.version, name});
  }
  for (const auto& [version, name] : empty)
    EXPECT_TRUE(shown.contains({version, name})) << name << " has no row in any ordinary pair";
}

class OfInstance : public ::testing::TestWithParam<Listed> {};

TEST_P(OfInstance, showsEachAllViewInItsColumnsWithoutABox) {
  Walk walk(GetParam());
  const auto names = walk.sections();
  EXPECT_EQ(names.size(), GetParam().sections);
  const std::vector<int> changed = walk.pairsOf(kStatusLevel);
  ASSERT_FALSE(changed.empty());
  for (const std::string& name : names) {
    const Shape& shape = shapeOf(name, GetParam().version);
    std::vector<int> pairs = changed;
    pairs.insert(pairs.begin(), std::max(walk.showBusyPair(name), 0));
    for (const int pair : pairs) {
      walk.all(name, pair);
      EXPECT_EQ(walk.grid().Cols(), shape.allColumns) << name << " of pair " << pair;
      if (!shape.isOfMetrics()) continue;
      EXPECT_EQ(walk.grid().Rows() - 1, static_cast<int>(shape.colColumns.size())) << name;
    }
    EXPECT_EQ(walk.newBoxes(), kNone) << name;
  }
}

TEST_P(OfInstance, showsOfAPairAcrossARestartWhatHoldsThere) {
  Walk walk(GetParam());
  const std::vector<int> restarted = walk.pairsOf(kStatusRestart);
  ASSERT_FALSE(restarted.empty());
  for (const std::string& name : walk.sections()) {
    const Shape& shape = shapeOf(name, GetParam().version);
    walk.all(name, restarted.front());
    const Grid& grid = walk.grid();
    EXPECT_EQ(grid.Cols(), shape.allColumns) << name;
    switch (shape.restart) {
      case Restart::Headings:
        EXPECT_EQ(grid.Rows(), 1) << name;
        break;
      case Restart::Rows:
        EXPECT_GE(grid.Rows(), 3) << name << " lacks a row of either snapshot";
        break;
      case Restart::Labels:
        EXPECT_EQ(grid.Rows() - 1, static_cast<int>(shape.colColumns.size())) << name;
        for (int r = 1; r < grid.Rows(); ++r) {
          EXPECT_NE(grid.TextMatrix(r, 1), "") << name;
          if (isOfOneSnapshot(name, r)) continue;
          for (int c = 2; c < grid.Cols(); ++c) EXPECT_EQ(grid.TextMatrix(r, c), "") << name << " row " << r;
        }
        break;
    }
    EXPECT_EQ(walk.newBoxes(), kNone) << name;
  }
}

/// The row of a pair in a Col view without "NO" and the pair's own columns.
Cells withoutPair(const Grid& grid, int pair) {
  const Cells headings = cellsOf(grid, 0);
  Cells cells = cellsOf(grid, pair + 1);
  if (headings.back() == "STATUS") cells.pop_back();
  for (std::size_t c = 1; c < headings.size(); ++c)
    if (headings[c] == "END TIME" || headings[c] == "START TIME") {
      cells.erase(cells.begin() + static_cast<std::ptrdiff_t>(c));
      break;
    }
  return {cells.begin() + 1, cells.end()};
}

/// The Col view's figures of a metric are those of its row in the All view, under the same headings.
void expectSameMetric(const Cells& headings, const Cells& row, const Grid& grid, int pair,
                      const std::string& what) {
  int compared = 0;
  for (int c = 2; c < grid.Cols(); ++c) {
    const auto heading = std::find(headings.begin(), headings.end(), grid.TextMatrix(0, c));
    if (heading == headings.end()) continue;
    EXPECT_EQ(grid.TextMatrix(pair + 1, c), row[static_cast<std::size_t>(heading - headings.begin())])
        << what << " " << *heading;
    ++compared;
  }
  EXPECT_GT(compared, 0) << what;
}

/// A series has a row for each pair, empty for a pair across a restart, and each pair's status.
void expectPairs(const Shape& shape, const Grid& grid, const clsSnapId& pairs, bool ofOneSnapshot,
                 const std::string& what) {
  ASSERT_EQ(grid.Rows() - 1, pairs.rownum()) << what;
  const bool hasStatus = shape.restart != Restart::Rows && !ofOneSnapshot;
  for (int i = 0; i < pairs.rownum(); ++i) {
    EXPECT_EQ(grid.TextMatrix(i + 1, 0), std::to_string(i + 1)) << what;
    if (!hasStatus) continue;
    EXPECT_EQ(grid.TextMatrix(0, grid.Cols() - 1), "STATUS") << what;
    EXPECT_EQ(grid.TextMatrix(i + 1, grid.Cols() - 1), pairs.REPORT_STATUS(i)) << what;
    if (!pairs.restarted(i)) continue;
    Cells cells = withoutPair(grid, i);
    // The label of a metric stands in each row.
    if (shape.isOfMetrics() || shape.section == "RAC Statistics") cells.erase(cells.begin());
    EXPECT_EQ(cells, Cells(cells.size())) << what;
  }
}

TEST_P(OfInstance, followsTheFirstTheMiddleAndTheLastRowOverAllPairs) {
  Walk walk(GetParam());
  for (const std::string& name : walk.sections()) {
    const Shape& shape = shapeOf(name, GetParam().version);
    const int pair = walk.showBusyPair(name);
    if (pair < 0) continue;
    const Grid& grid = walk.grid();
    const int last = grid.Rows() - 1;
    for (const int row : std::set<int>{1, (last + 1) / 2, last}) {
      walk.all(name, pair);
      const std::string what = name + " row " + std::to_string(row);
      const Cells headings = cellsOf(grid, 0);
      const Cells followed = cellsOf(grid, row);
      walk.col(row);
      if (shape.series == Series::None) {
        EXPECT_EQ(walk.newBoxes(), Cells{"[Exclamation] The time series display is not supported."}) << what;
        EXPECT_EQ(cellsOf(grid, row), followed) << what;
        continue;
      }
      EXPECT_EQ(walk.newBoxes(), kNone) << what;
      EXPECT_EQ(grid.Cols(), shape.colColumnsOfRow(row)) << what;
      expectPairs(shape, grid, walk.pairs(), isOfOneSnapshot(name, row), what);
      if (shape.isOfMetrics()) {
        expectSameMetric(headings, followed, grid, pair, what);
      } else if (shape.series != Series::OneOf) {
        Cells cells = withoutPair(grid, pair);
        if (shape.series == Series::Swapped) std::swap(cells[cells.size() - 2], cells.back());
        EXPECT_EQ(cells, Cells(followed.begin() + 1, followed.end())) << what;
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(WholeCatalogue, OfInstance, ::testing::ValuesIn(kListed),
                         [](const auto& listed) { return listed.param.name; });

}  // namespace
}  // namespace kestrelix
