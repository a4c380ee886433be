// A folder of CSV files made by hand, imported and read as a report.
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>

#include "import/importer.h"
#include "support/report_fixture.h"
#include "support/sqlite_reading.h"

namespace kestrelix {
namespace {

// Instance 1 has snapshots 11, 12 and 13 and was started anew before 13; instance 2 has 21 and 22, of two
// levels, and no parameter log_buffer.
class ImportedFolder : public ::testing::Test {
 protected:
  ImportedFolder() {
    path_ = std::filesystem::temp_directory_path() /
            ("kestrelix-imported-" + std::to_string(::getpid()) + ".sqlite");
    importing::importFolder(KESTRELIX_SOURCE_DIR "/tests/data/three_snapshots", path_, {});
  }
  ~ImportedFolder() override { std::filesystem::remove(path_); }

  std::filesystem::path path_;
};

TEST_F(ImportedFolder, snapshotShowsBothEndsAndTheMinutesBetween) {
  testing_support::ReportFixture report(path_);
  report.open(0);
  EXPECT_EQ(report.all("Snapshot", 0),
            "NO|NAME|SNAP TIME|SNAP ID|SESSIONS|CURS/SESS|LEVEL|COMMENT|OTHER VALUE\n"
            "1|Begin Snap:|2026-01-05 10:00:00|11|20|2.5|7|noon, \"busy\"|\n"
            "2|End Snap:|2026-01-05 11:00:30|12|16|2.5|7| |\n"
            "3|Elapsed(mins):|||||||60.5\n");
  EXPECT_EQ(report.col(3),
            "NO|NAME|END TIME|OTHER VALUE|STATUS\n"
            "1|Elapsed(mins):|2026-01-05 11:00:30|60.5|OK\n"
            "2|Elapsed(mins):|2026-01-05 12:00:00||DB RESTART\n");
  EXPECT_TRUE(report.boxes().empty());
}

TEST_F(ImportedFolder, aRestartedPairHasItsSnapshotsAndNoMinutes) {
  testing_support::ReportFixture report(path_);
  report.open(0);
  EXPECT_EQ(report.all("Snapshot", 1),
            "NO|NAME|SNAP TIME|SNAP ID|SESSIONS|CURS/SESS|LEVEL|COMMENT|OTHER VALUE\n"
            "1|Begin Snap:|2026-01-05 11:00:30|12|16|2.5|7| |\n"
            "2|End Snap:|2026-01-05 12:00:00|13|0| |7| |\n"
            "3|Elapsed(mins):|||||||\n");
  EXPECT_TRUE(report.boxes().empty());
}

// 536870912 bytes are 512 MB, 553648128 are 528 MB, 268435456 are 256 MB.
TEST_F(ImportedFolder, cacheSizesAreThoseOfTheParameters) {
  testing_support::ReportFixture report(path_);
  report.open(0);
  EXPECT_EQ(report.all("Cache Sizes", 0),
            "NO|NAME|START VALUE|END VALUE|OTHER VALUE\n"
            "1|Buffer Cache(MB):|512|528|\n"
            "2|Shared Pool(MB):|256| |\n"
            "3|Std Block Size(KB):|||8\n"
            "4|Log Buffer(KB):|||1024\n");
  EXPECT_EQ(report.col(1),
            "NO|NAME|END TIME|START VALUE|END VALUE|STATUS\n"
            "1|Buffer Cache(MB):|2026-01-05 11:00:30|512|528|OK\n"
            "2|Buffer Cache(MB):|2026-01-05 12:00:00|||DB RESTART\n");
  EXPECT_TRUE(report.boxes().empty());
}

TEST_F(ImportedFolder, aMissingParameterIsItsGettersBox) {
  testing_support::ReportFixture report(path_);
  report.open(1);
  const std::string before = report.all("Snapshot", 0);
  EXPECT_EQ(report.all("Cache Sizes", 0), before);
  ASSERT_EQ(report.boxes().size(), 1u);
  EXPECT_NE(report.boxes()[0].find("(clsCacheSize){getLOG_BUFFER_SIZE} Error"), std::string::npos);
}

TEST_F(ImportedFolder, aColumnOfItsOwnIsKept) {
  EXPECT_EQ(repository_file::readTexts(path_, R"(select note from "stats$parameter" where note is not null)"),
            (repository_file::Texts{"typed off the screen"}));
}

}  // namespace
}  // namespace kestrelix
