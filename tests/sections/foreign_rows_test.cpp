// One repository holds many databases and instances, and their snapshot ids can be the same. No Section of
// one instance may show what belongs to another.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <stdexcept>

#include "demo/demo.h"
#include "support/report_fixture.h"
#include "support/sqlite_reading.h"

namespace kestrelix::testing_support {
namespace {

using testing::IsEmpty;

constexpr int kSnapshots = 12;

/// A file that goes with the object.
class TemporaryFile {
 public:
  TemporaryFile() {
    static int count = 0;
    path_ = std::filesystem::temp_directory_path() /
            ("kestrelix-foreign-" + std::to_string(::getpid()) + "-" + std::to_string(++count) + ".sqlite");
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  ~TemporaryFile() {
    std::error_code ignored;
    std::filesystem::remove(path_, ignored);
  }
  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

const std::filesystem::path& demo() {
  static const struct Demo {
    TemporaryFile file;
    Demo() { demo::makeDemo(file.path().string(), {.snapshots = kSnapshots}); }
  } made;
  return made.file.path();
}

void run(const std::filesystem::path& file, const std::string& statements) {
  sqlite3* connection = nullptr;
  sqlite3_open(file.c_str(), &connection);
  const bool done = sqlite3_exec(connection, statements.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK;
  const std::string error = sqlite3_errmsg(connection);
  sqlite3_close(connection);
  if (!done) throw std::runtime_error(error);
}

struct Instance {
  const char* name;
  std::string dbid;
  std::string number;
  bool version11;
};
void PrintTo(const Instance& instance, std::ostream* out) { *out << instance.name; }

struct Table {
  std::string name;
  std::vector<std::string> columns;
  bool has(const std::string& column) const {
    return std::find(columns.begin(), columns.end(), column) != columns.end();
  }
};

std::vector<Table> tables() {
  std::vector<Table> all;
  for (const std::string& name : repository_file::readTexts(
           demo(), "select name from sqlite_master where type = 'table' and name like 'stats$%'"))
    all.push_back({name, repository_file::readTexts(
                             demo(), "select lower(name) from pragma_table_info('" + name + "')")});
  return all;
}

/// The condition that a row, of a table by that alias, is the instance's.
std::string isOf(const Instance& instance, const std::string& alias) {
  return alias + ".dbid = " + instance.dbid + " and " + alias + ".instance_number = " + instance.number;
}

/// The repository with the rows of that instance alone.
void keepOnly(const Instance& instance, const std::filesystem::path& file) {
  std::filesystem::copy_file(demo(), file, std::filesystem::copy_options::overwrite_existing);
  std::string statements = "begin;";
  for (const Table& table : tables()) {
    if (!table.has("dbid")) continue;
    statements += "delete from \"" + table.name + "\" where dbid <> " + instance.dbid;
    if (table.has("instance_number")) statements += " or instance_number <> " + instance.number;
    statements += ";";
  }
  run(file, statements + "commit;");
}

enum class Of { Database, Instance };
enum class Snapshots { Own, Foreign };

/// Adds rows of another database or instance under the instance's snapshot ids. Their figures are those of
/// the following snapshot, so that they differ. The ids are snapshots of the other one as well, or not.
void addForeign(const Instance& instance, Of of, Snapshots snapshots, const std::filesystem::path& file) {
  const std::string otherDbid =
      repository_file::readTexts(demo(), "select dbid from stats$snapshot where dbid <> " + instance.dbid)[0];
  const std::string before = "(select max(p.snap_id) from stats$snapshot p where p.snap_id < t.snap_id and " +
                             isOf(instance, "p") + ")";
  std::string statements = "begin;";
  for (const Table& table : tables()) {
    if (!table.has("dbid") || !table.has("instance_number") || !table.has("snap_id")) continue;
    if (table.name == "stats$database_instance") continue;
    if (table.name == "stats$snapshot" && snapshots == Snapshots::Own) continue;
    std::string values;
    for (const std::string& column : table.columns) {
      values += values.empty() ? "" : ", ";
      if (column == "snap_id")
        values += before;
      else if (column == "dbid" && of == Of::Database)
        values += otherDbid;
      else if (column == "instance_number" && of == Of::Instance)
        values += "3 - instance_number";
      else
        values += "\"" + column + "\"";
    }
    statements += "insert into \"" + table.name + "\" select " + values + " from \"" + table.name +
                  "\" t where " + isOf(instance, "t") + " and " + before + " is not null;";
  }
  run(file, statements + "commit;");
}

/// Both views of a Section with their boxes, and whether they had anything to show.
struct Shown {
  std::string section;
  std::string text;
  bool hasRows;
};

/// Those of every Section: the All view of an ordinary pair, both of whose snapshots have foreign rows (the
/// last one has none), and the series of its first row.
std::vector<Shown> viewsOf(const std::filesystem::path& file) {
  ReportFixture report(file.string());
  report.open(0);
  const clsSnapId& pairs = *report.repository().gSnapId;
  int pair = static_cast<int>(pairs.rownum()) - 2;
  while (pair > 0 && pairs.REPORT_STATUS(pair) != kStatusOk) --pair;
  std::vector<Shown> views;
  for (const std::string& section : report.sections()) {
    const std::size_t boxes = report.boxes().size();
    std::string text = report.all(section, pair);
    const bool hasRows = report.grid().Rows() > 1;
    if (hasRows) text += report.col(1);
    for (std::size_t b = boxes; b < report.boxes().size(); ++b) text += report.boxes()[b] + "\n";
    views.push_back({section, text, hasRows});
  }
  return views;
}

class ForeignRows : public testing::TestWithParam<Instance> {
 protected:
  ForeignRows() {
    keepOnly(GetParam(), file_.path());
    own_ = viewsOf(file_.path());
  }

  /// The Sections that foreign rows change.
  std::vector<std::string> changedBy(Of of, Snapshots snapshots) {
    keepOnly(GetParam(), file_.path());
    addForeign(GetParam(), of, snapshots, file_.path());
    std::vector<std::string> changed;
    const std::vector<Shown> views = viewsOf(file_.path());
    for (std::size_t i = 0; i < own_.size(); ++i)
      if (views.at(i).text != own_[i].text) changed.push_back(own_[i].section);
    return changed;
  }

  TemporaryFile file_;
  std::vector<Shown> own_;
};

TEST_P(ForeignRows, showInNoView) {
  for (const Shown& shown : own_)
    EXPECT_EQ(shown.hasRows, shown.section != "Memory Resize Operations") << shown.section;
  EXPECT_THAT(changedBy(Of::Database, Snapshots::Own), IsEmpty());
  EXPECT_THAT(changedBy(Of::Instance, Snapshots::Own), IsEmpty());
}

// The level gate of the segments asks for the start snapshot's id alone, and the snapshots that "OS
// Statistics - detail" joins may be any instance's.
TEST_P(ForeignRows, ofSharedSnapshotIdsMeetTheGateOfTheSegmentsAndTheDetailOfTheHost) {
  std::vector<std::string> segments;
  for (const Shown& shown : own_)
    if (shown.section.starts_with("Segments ")) segments.push_back(shown.section);
  EXPECT_THAT(changedBy(Of::Database, Snapshots::Foreign), testing::ElementsAreArray(segments));
  if (GetParam().version11) segments.insert(segments.begin(), "OS Statistics - detail");
  EXPECT_THAT(changedBy(Of::Instance, Snapshots::Foreign), testing::ElementsAreArray(segments));
}

INSTANTIATE_TEST_SUITE_P(Releases, ForeignRows,
                         testing::Values(Instance{"release9", "1087236415", "1", false},
                                         Instance{"clusterOfRelease10", "2405618893", "1", false},
                                         Instance{"clusterOfRelease11", "3121750462", "1", true}),
                         [](const auto& tested) { return std::string(tested.param.name); });

}  // namespace
}  // namespace kestrelix::testing_support
