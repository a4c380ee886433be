#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

#include "sections/instance_support.h"

namespace kestrelix::testing_support {
namespace {

using testing::IsEmpty;
using testing::UnorderedElementsAre;

const char* const kTablespaces =
    "NO|TABLESPACE|READS|AV READS/S|AV RD(MS)|Av BLKS/RD|WRITES|AV WRITES/S|BUFFER WAITS|AV BUF WT(MS)\n";
const char* const kFiles =
    "NO|TABLESPACE|FILENAME|READS|AV READS/S|AV RD(MS)|MX RD(MS)|AV BLKS/RD|WRITES|AV WRITES/S|BUFFER WAITS|"
    "AV BUF WT(MS)\n";
const char* const kFilesOf9 =
    "NO|TABLESPACE|FILENAME|READS|AV READS/S|AV RD(MS)|AV BLKS/RD|WRITES|AV WRITES/S|BUFFER WAITS|"
    "AV BUF WT(MS)\n";
const char* const kHistogram =
    "NO|TABLESPACE|FILENAME|0 - 2 MS|2 - 4 MS|4 - 8 MS|8 - 16 MS|16 - 32 MS|32+ MS\n";

/// Tablespace USERS has the files /u1, which was there, and /u2, which was added in the pair; TEMP and TEMP2
/// have the temporary files /t1 and /t2; IDLE and IDLE_TEMP have no activity.
class FileRepository : public InstanceRepository {
 public:
  explicit FileRepository(std::string_view major) : InstanceRepository(major), numbered_(major != "9") {
    file("stats$filestatxs", "1", "USERS", "/u1", "1", {"1000", "0", "100", "1000", "1", "3"});
    file("stats$filestatxs", "2", "USERS", "/u1", "1", {"1360", "0", "193", "1743", "4", "5"});
    file("stats$filestatxs", "2", "USERS", "/u2", "2", {"0", "7200", "0", "0", "0", "0"});
    file("stats$filestatxs", "1", "IDLE", "/i1", "3", {"5", "5", "5", "5", "5", "5"});
    file("stats$filestatxs", "2", "IDLE", "/i1", "3", {"5", "5", "5", "5", "5", "5"});
    file("stats$tempstatxs", "1", "TEMP", "/t1", "1", {"9", "0", "9", "9", "0", "0"});
    file("stats$tempstatxs", "2", "TEMP", "/t1", "1", {"9", "3600", "9", "9", "0", "0"});
    file("stats$tempstatxs", "1", "IDLE_TEMP", "/i2", "3", {"5", "5", "5", "5", "5", "5"});
    file("stats$tempstatxs", "2", "IDLE_TEMP", "/i2", "3", {"5", "5", "5", "5", "5", "5"});
    file("stats$tempstatxs", "1", "TEMP2", "/t2", "2", {"100", "10", "50", "200", "1", "5"});
    file("stats$tempstatxs", "2", "TEMP2", "/t2", "2", {"2800", "1910", "1070", "4401", "4", "7"});
  }

  /// Reads, writes, read time in hundredths, blocks read, waits and their time in hundredths of a second.
  void file(std::string_view table, std::string_view snapshot, std::string_view tablespace,
            std::string_view name, std::string_view number, const std::array<std::string_view, 6>& figures) {
    if (numbered_)
      row(table, {{"snap_id", snapshot},
                  {"tsname", tablespace},
                  {"filename", name},
                  {"file#", number},
                  {"phyrds", figures[0]},
                  {"phywrts", figures[1]},
                  {"readtim", figures[2]},
                  {"phyblkrd", figures[3]},
                  {"wait_count", figures[4]},
                  {"time", figures[5]}});
    else
      row(table, {{"snap_id", snapshot},
                  {"tsname", tablespace},
                  {"filename", name},
                  {"phyrds", figures[0]},
                  {"phywrts", figures[1]},
                  {"readtim", figures[2]},
                  {"phyblkrd", figures[3]},
                  {"wait_count", figures[4]},
                  {"time", figures[5]}});
  }

  /// Single-block reads of a bucket at snapshots 1 and 2; an empty text is no row.
  FileRepository& bucket(std::string_view table, std::string_view number, std::string_view milliseconds,
                         std::string_view start, std::string_view end) {
    if (!start.empty())
      row(table, {{"snap_id", "1"},
                  {"file#", number},
                  {"singleblkrdtim_milli", milliseconds},
                  {"singleblkrds", start}});
    row(table,
        {{"snap_id", "2"}, {"file#", number}, {"singleblkrdtim_milli", milliseconds}, {"singleblkrds", end}});
    return *this;
  }

  /// Growth of /u1: 5 in bucket 1, 2 in 2, 5 in 4, 2 in 8, 4 in 16, 1 in 32 and 3 above; of /t1: 4 in
  /// 2, 1 in 32 and none in 64.
  FileRepository& histograms() {
    bucket("stats$file_histogram", "1", "1", "", "5");
    bucket("stats$file_histogram", "1", "2", "1", "3");
    bucket("stats$file_histogram", "1", "4", "10", "15");
    bucket("stats$file_histogram", "1", "8", "", "2");
    bucket("stats$file_histogram", "1", "16", "3", "7");
    bucket("stats$file_histogram", "1", "32", "0", "1");
    bucket("stats$file_histogram", "1", "64", "9", "10");
    return bucket("stats$file_histogram", "1", "128", "", "2");
  }
  FileRepository& temporaryHistogram() {
    return bucket("stats$temp_histogram", "1", "32", "1", "2")
        .bucket("stats$temp_histogram", "1", "64", "5", "5")
        .bucket("stats$temp_histogram", "1", "2", "", "4");
  }

 private:
  bool numbered_;
};

TEST(TablespaceIo, filesAreSummedByTablespaceAndABusyOneComesFirst) {
  for (const char* major : {"9", "10", "11"}) {
    FileRepository repository(major);
    OpenReport report(repository);
    // USERS: 360 reads in 3600 s, 93 hundredths / 360 * 10 = 2.58 ms, 743 / 360 = 2.06 blocks; 2 / 3 * 10 =
    // 6.67 ms. TEMP2: 2700 reads and 1900 writes, .75 and .53 a second; 1020 / 2700 * 10 = 3.78 ms, 4201 /
    // 2700 = 1.56 blocks. TEMP: no read is 0 ms, and a blank number of blocks.
    EXPECT_EQ(report.all("Tablespace IO Stats", 0), std::string(kTablespaces) +
                                                        "1|USERS|360|0|2.6|2.1|7200|2|3|6.7\n"
                                                        "2|TEMP2|2700|1|3.8|1.6|1900|1|3|6.7\n"
                                                        "3|TEMP|0|0|0| |3600|1|0|0\n");
    EXPECT_EQ(report.all("Tablespace IO Stats", 1), kTablespaces);
    EXPECT_THAT(report.boxes(), IsEmpty());
  }
}

TEST(TablespaceIo, everyFigureIsTheSumOfTheFilesTheNewOnesFromZero) {
  for (const char* table : {"stats$filestatxs", "stats$tempstatxs"})
    for (const char* major : {"9", "10", "11"}) {
      FileRepository repository(major);
      repository.file(table, "1", "SUM", "/s1", "21", {"100", "10", "50", "200", "1", "5"});
      repository.file(table, "2", "SUM", "/s1", "21", {"400", "110", "150", "800", "4", "7"});
      repository.file(table, "2", "SUM", "/s2", "22", {"5100", "5300", "1000", "10000", "3", "4"});
      OpenReport report(repository);
      // 5400 reads and writes, 1.5 a second; 1100 / 5400 * 10 = 2.04 ms; 10600 / 5400 = 1.96 blocks; 6 waits
      // of 10 ms. By file: 100 / 300 * 10 = 3.33 and 1000 / 5100 * 10 = 1.96 ms; 2 / 3 and 4 / 3 * 10 ms a
      // wait.
      report.all("Tablespace IO Stats", 0);
      EXPECT_THAT(report.rowsInAnyOrder().front(), "SUM|5400|2|2|2|5400|2|6|10") << table << major;
      report.all("File IO Stats", 0);
      const std::string slowest = std::string(major) == "9" ? "" : " |";
      EXPECT_THAT(report.rowsInAnyOrder(),
                  testing::IsSupersetOf({"SUM|/s1|300|0|3.3|" + slowest + "2|100|0|3|6.7",
                                         "SUM|/s2|5100|1|2|" + slowest + "2|5300|1|3|13.3"}))
          << table << major;
    }
}

TEST(TablespaceIo, aSeriesFollowsOneTablespace) {
  FileRepository repository("10");
  // 2700 reads and 5400 writes in 5400 s: half a read a second is rounded up.
  repository.file("stats$filestatxs", "4", "USERS", "/u1", "1", {"2700", "5400", "27", "2700", "0", "0"});
  OpenReport report(repository);
  report.all("Tablespace IO Stats", 0);
  EXPECT_EQ(report.col(1),
            "NO|TABLESPACE|END TIME|READS|AV READS/S|AV RD(MS)|Av BLKS/RD|WRITES|AV WRITES/S|BUFFER WAITS|"
            "AV BUF WT(MS)|STATUS\n"
            "1|USERS|2026-01-05 11:00:00|360|0|2.6|2.1|7200|2|3|6.7|OK\n"
            "2||2026-01-05 12:00:00|||||||||DB RESTART\n"
            "3|USERS|2026-01-05 13:30:00|2700|1|0.1|1|5400|1|0|0|OK\n");
}

TEST(TablespaceIo, withoutSecondsThereAreNoRates) {
  FileRepository repository("11");
  repository.snapshot("5", "2026-01-05 13:30:00", "7", "2026-01-05 11:30:00");
  repository.file("stats$filestatxs", "5", "USERS", "/u1", "1", {"10", "0", "0", "10", "0", "0"});
  OpenReport report(repository);
  EXPECT_EQ(report.all("Tablespace IO Stats", 3), std::string(kTablespaces) + "1|USERS|10| |0|1|0| |0|0\n");
  EXPECT_EQ(report.all("File IO Stats", 3), std::string(kFiles) + "1|USERS|/u1|10| |0| |1|0| |0| \n");
}

TEST(FileIo, inRelease10EveryFileHasItsSlowestBucketThatGrew) {
  FileRepository repository("10");
  repository.histograms().temporaryHistogram();
  OpenReport report(repository);
  // Bucket 128 of /u1 is new with 2 reads. No operation is a blank here.
  EXPECT_EQ(report.all("File IO Stats", 0), std::string(kFiles) +
                                                "1|TEMP|/t1|0|0| |32| |3600|1|0| \n"
                                                "2|TEMP2|/t2|2700|1|3.8| |1.6|1900|1|3|6.7\n"
                                                "3|USERS|/u1|360|0|2.6|128|2.1|0|0|3|6.7\n"
                                                "4|USERS|/u2|0|0| | | |7200|2|0| \n");
  EXPECT_EQ(report.all("File IO Stats", 1), kFiles);
  EXPECT_THAT(report.boxes(), IsEmpty());
}

TEST(FileIo, inRelease11TemporaryFilesHaveNoSlowestBucket) {
  FileRepository repository("11");
  repository.histograms();
  OpenReport report(repository);
  EXPECT_EQ(report.all("File IO Stats", 0), std::string(kFiles) +
                                                "1|TEMP|/t1|0|0| | | |3600|1|0| \n"
                                                "2|TEMP2|/t2|2700|1|3.8| |1.6|1900|1|3|6.7\n"
                                                "3|USERS|/u1|360|0|2.6|128|2.1|0|0|3|6.7\n"
                                                "4|USERS|/u2|0|0| | | |7200|2|0| \n");
}

TEST(FileIo, inRelease9ThereAreNoBuckets) {
  FileRepository repository("9");
  OpenReport report(repository);
  EXPECT_EQ(report.all("File IO Stats", 0), std::string(kFilesOf9) +
                                                "1|TEMP|/t1|0|0| | |3600|1|0| \n"
                                                "2|TEMP2|/t2|2700|1|3.8|1.6|1900|1|3|6.7\n"
                                                "3|USERS|/u1|360|0|2.6|2.1|0|0|3|6.7\n"
                                                "4|USERS|/u2|0|0| | |7200|2|0| \n");
  EXPECT_EQ(report.col(3),
            "NO|TABLESPACE|FILENAME|END TIME|READS|AV READS/S|AV RD(MS)|AV BLKS/RD|WRITES|AV WRITES/S|"
            "BUFFER WAITS|AV BUF WT(MS)|STATUS\n"
            "1|USERS|/u1|2026-01-05 11:00:00|360|0|2.6|2.1|0|0|3|6.7|OK\n"
            "2|||2026-01-05 12:00:00|||||||||DB RESTART\n"
            "3|||2026-01-05 13:30:00|||||||||OK\n");
}

TEST(FileIo, equalRowsOfADataAndATemporaryFileAreOneInRelease9Alone) {
  for (const auto& [major, rows] : {std::pair{"9", 1}, std::pair{"10", 2}, std::pair{"11", 2}}) {
    FileRepository repository(major);
    repository.file("stats$filestatxs", "4", "TEMP", "/same", "9", {"5400", "0", "0", "5400", "0", "0"});
    repository.file("stats$tempstatxs", "4", "TEMP", "/same", "9", {"5400", "0", "0", "5400", "0", "0"});
    OpenReport report(repository);
    report.all("File IO Stats", 2);
    EXPECT_EQ(report.grid().Rows(), 1 + rows) << major;
  }
}

TEST(FileIo, aSeriesFollowsOneFileByItsNameAlone) {
  FileRepository repository("10");
  // Another tablespace's temporary file of the same name comes first in the order of tablespaces.
  repository.file("stats$filestatxs", "4", "USERS", "/u1", "1", {"5400", "0", "0", "5400", "0", "0"});
  repository.file("stats$tempstatxs", "4", "A_TEMP", "/u1", "1", {"0", "5400", "0", "0", "0", "0"});
  OpenReport report(repository);
  report.all("File IO Stats", 0);
  EXPECT_EQ(report.col(3),
            "NO|TABLESPACE|FILENAME|END TIME|READS|AV READS/S|AV RD(MS)|MX RD(MS)|AV BLKS/RD|WRITES|"
            "AV WRITES/S|BUFFER WAITS|AV BUF WT(MS)|STATUS\n"
            "1|USERS|/u1|2026-01-05 11:00:00|360|0|2.6| |2.1|0|0|3|6.7|OK\n"
            "2|||2026-01-05 12:00:00||||||||||DB RESTART\n"
            "3|A_TEMP|/u1|2026-01-05 13:30:00|0|0| | | |5400|1|0| |OK\n");
}

TEST(FileIo, aSeriesOfRelease11HasTheBucketToo) {
  FileRepository repository("11");
  repository.histograms();
  OpenReport report(repository);
  report.all("File IO Stats", 0);
  EXPECT_EQ(report.col(3),
            "NO|TABLESPACE|FILENAME|END TIME|READS|AV READS/S|AV RD(MS)|MX RD(MS)|AV BLKS/RD|WRITES|"
            "AV WRITES/S|BUFFER WAITS|AV BUF WT(MS)|STATUS\n"
            "1|USERS|/u1|2026-01-05 11:00:00|360|0|2.6|128|2.1|0|0|3|6.7|OK\n"
            "2|||2026-01-05 12:00:00||||||||||DB RESTART\n"
            "3|||2026-01-05 13:30:00||||||||||OK\n");
}

TEST(FileReadHistogram, countsAreOfTheReadsThatCameInByBucket) {
  FileRepository repository("10");
  repository.histograms().temporaryHistogram();
  OpenReport report(repository);
  const std::string view = report.all("File Read Histogram Stats", 0);
  EXPECT_EQ(view.substr(0, view.find('\n') + 1), kHistogram);
  EXPECT_THAT(report.rowsInAnyOrder(), UnorderedElementsAre("USERS|/u1|7|5|2|4|1|3", "TEMP|/t1|4|0|0|0|1|0"));
  EXPECT_EQ(report.all("File Read Histogram Stats", 1), kHistogram);
  EXPECT_THAT(report.boxes(), IsEmpty());
}

TEST(FileReadHistogram, release11HasDataFilesAlone) {
  FileRepository repository("11");
  repository.histograms();
  OpenReport report(repository);
  EXPECT_EQ(report.all("File Read Histogram Stats", 0),
            std::string(kHistogram) + "1|USERS|/u1|7|5|2|4|1|3\n");
}

TEST(FileReadHistogram, aSeriesFollowsOneFile) {
  for (const char* major : {"10", "11"}) {
    FileRepository repository(major);
    repository.histograms();
    OpenReport report(repository);
    report.all("File Read Histogram Stats", 0);
    EXPECT_EQ(
        report.col(1),
        "NO|TABLESPACE|FILENAME|END TIME|0 - 2 MS|2 - 4 MS|4 - 8 MS|8 - 16 MS|16 - 32 MS|32+ MS|STATUS\n"
        "1|USERS|/u1|2026-01-05 11:00:00|7|5|2|4|1|3|OK\n"
        "2|||2026-01-05 12:00:00|||||||DB RESTART\n"
        "3|||2026-01-05 13:30:00|||||||OK\n");
  }
}

}  // namespace
}  // namespace kestrelix::testing_support
