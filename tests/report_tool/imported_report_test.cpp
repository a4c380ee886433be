// A folder of CSV files made by hand, imported by one program and reported by the other.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "support/run_program.h"

namespace kestrelix::testing_support {
namespace {

using testing::StartsWith;

// Instance 0 has snapshots 11, 12 and 13 and was started anew before 13; instance 1 has 21 and 22, and no
// parameter log_buffer.
class ImportedReport : public testing::Test {
 protected:
  ImportedReport()
      : file_(std::filesystem::temp_directory_path() /
              ("kestrelix-imported-report-" + std::to_string(::getpid()) + ".sqlite")) {
    import_ =
        runProgram("kestrelix-repository",
                   "import " KESTRELIX_SOURCE_DIR "/tests/data/three_snapshots " + file_.string(), file_);
  }
  ~ImportedReport() override { std::filesystem::remove(file_); }

  Outcome report(const std::string& arguments) const {
    return runProgram("kestrelix-report", "--repository " + file_.string() + " --format csv " + arguments,
                      file_);
  }
  /// The output of a report without a box.
  std::string shown(const std::string& arguments) const {
    const Outcome outcome = report(arguments);
    EXPECT_EQ(outcome.status, 0) << arguments;
    EXPECT_EQ(outcome.errors, "") << arguments;
    return outcome.output;
  }

  std::filesystem::path file_;
  Outcome import_;
};

TEST_F(ImportedReport, theImportCountsItsTablesAndRows) {
  EXPECT_EQ(import_.status, 0);
  // 3 instances, 68 parameters, 5 snapshots, 10 statistics.
  EXPECT_EQ(import_.output, file_.string() + ": 4 tables, 86 rows\n");
  EXPECT_EQ(import_.errors, "");
}

TEST_F(ImportedReport, listsItsInstancesAndPairs) {
  EXPECT_EQ(shown("instances"),
            "INDEX,DBID,DB_NAME,VERSION,INSTANCE_NUMBER,INSTANCE_NAME,HOST_NAME,RAC\r\n"
            "0,42,HAND,10.2.0.4.0,1,hand1,desk,NO\r\n"
            "1,42,HAND,10.2.0.4.0,2,hand2,desk,NO\r\n");
  EXPECT_EQ(shown("pairs --instance 0"),
            "INDEX,START TIME,END TIME,START ID,END ID,STATUS\r\n"
            "0,2026-01-05 10:00:00,2026-01-05 11:00:30,11,12,OK\r\n"
            "1,2026-01-05 11:00:30,2026-01-05 12:00:00,12,13,DB RESTART\r\n");
  EXPECT_EQ(shown("pairs --instance 1"),
            "INDEX,START TIME,END TIME,START ID,END ID,STATUS\r\n"
            "0,2026-01-05 10:00:00,2026-01-05 11:00:00,21,22,SNAP_LEVEL NG\r\n");
}

// 50 cursors of 20 sessions and 40 of 16 are 2.5 each; an hour and 30 seconds are 60.5 minutes.
TEST_F(ImportedReport, snapshotShowsItsAllAndColViews) {
  EXPECT_EQ(shown("section Snapshot --instance 0 --pair 0"),
            "NO,NAME,SNAP TIME,SNAP ID,SESSIONS,CURS/SESS,LEVEL,COMMENT,OTHER VALUE\r\n"
            "1,Begin Snap:,2026-01-05 10:00:00,11,20,2.5,7,\"noon, \"\"busy\"\"\",\r\n"
            "2,End Snap:,2026-01-05 11:00:30,12,16,2.5,7, ,\r\n"
            "3,Elapsed(mins):,,,,,,,60.5\r\n");
  EXPECT_EQ(shown("section Snapshot --instance 0 --pair 0 --row 3"),
            "NO,NAME,END TIME,OTHER VALUE,STATUS\r\n"
            "1,Elapsed(mins):,2026-01-05 11:00:30,60.5,OK\r\n"
            "2,Elapsed(mins):,2026-01-05 12:00:00,,DB RESTART\r\n");
}

TEST_F(ImportedReport, aRestartedPairLeavesElapsedBlank) {
  EXPECT_EQ(shown("section Snapshot --instance 0 --pair 1"),
            "NO,NAME,SNAP TIME,SNAP ID,SESSIONS,CURS/SESS,LEVEL,COMMENT,OTHER VALUE\r\n"
            "1,Begin Snap:,2026-01-05 11:00:30,12,16,2.5,7, ,\r\n"
            "2,End Snap:,2026-01-05 12:00:00,13,0, ,7, ,\r\n"
            "3,Elapsed(mins):,,,,,,,\r\n");
}

// 536870912, 553648128 and 268435456 bytes are 512, 528 and 256 MB; 8192 and 1048576 are 8 and 1024 KB.
TEST_F(ImportedReport, cacheSizesShowsItsAllAndColViews) {
  EXPECT_EQ(shown("section \"Cache Sizes\" --instance 0 --pair 0"),
            "NO,NAME,START VALUE,END VALUE,OTHER VALUE\r\n"
            "1,Buffer Cache(MB):,512,528,\r\n"
            "2,Shared Pool(MB):,256, ,\r\n"
            "3,Std Block Size(KB):,,,8\r\n"
            "4,Log Buffer(KB):,,,1024\r\n");
  EXPECT_EQ(shown("section \"Cache Sizes\" --instance 0 --pair 1"),
            "NO,NAME,START VALUE,END VALUE,OTHER VALUE\r\n"
            "1,Buffer Cache(MB):,,,\r\n"
            "2,Shared Pool(MB):,,,\r\n"
            "3,Std Block Size(KB):,,,\r\n"
            "4,Log Buffer(KB):,,,\r\n");
  EXPECT_EQ(shown("section \"Cache Sizes\" --instance 0 --pair 0 --row 1"),
            "NO,NAME,END TIME,START VALUE,END VALUE,STATUS\r\n"
            "1,Buffer Cache(MB):,2026-01-05 11:00:30,512,528,OK\r\n"
            "2,Buffer Cache(MB):,2026-01-05 12:00:00,,,DB RESTART\r\n");
}

TEST_F(ImportedReport, aMissingParameterIsItsGettersBoxAndNoView) {
  for (const char* row : {"", " --row 1"}) {
    const Outcome outcome = report(std::string("section \"Cache Sizes\" --instance 1 --pair 0") + row);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output, "");
    EXPECT_THAT(outcome.errors, StartsWith("[Critical] (clsCacheSize){getLOG_BUFFER_SIZE} Error\n"));
  }
}

TEST_F(ImportedReport, aRowThatIsNotThereIsWrongUsage) {
  const Outcome outcome = report("section Snapshot --instance 0 --pair 0 --row 4");
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.errors,
            "kestrelix-report: the view has no row 4, they go from 1 to 3; --help tells the usage\n");
}

TEST_F(ImportedReport, aRangeOfOnePairKeepsItsNumber) {
  EXPECT_EQ(shown("section Snapshot --instance 0 --pair 1 --row 3 --from 1"),
            "NO,NAME,END TIME,OTHER VALUE,STATUS\r\n"
            "1,Elapsed(mins):,2026-01-05 12:00:00,,DB RESTART\r\n");
}

TEST_F(ImportedReport, outputThatCannotBeWrittenIsAFailure) {
  for (const char* arguments : {"instances > /dev/full", "--help > /dev/full", "statements > /dev/full"}) {
    const Outcome outcome = report(arguments);
    EXPECT_EQ(outcome.status, 1) << arguments;
    EXPECT_EQ(outcome.errors, "kestrelix-report: the standard output cannot be written\n") << arguments;
  }
}

}  // namespace
}  // namespace kestrelix::testing_support
