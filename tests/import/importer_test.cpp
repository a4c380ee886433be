#include "import/importer.h"

#include <gtest/gtest.h>
#include <sqlite3.h>
#include <unistd.h>

#include <fstream>

#include "support/answering_progress.h"
#include "support/sqlite_reading.h"
#include "support/test_folder.h"

namespace kestrelix::importing {

using repository_file::readTexts;
using repository_file::Texts;
namespace {

class ImporterTest : public ::testing::Test {
 protected:
  ImporterTest() { std::filesystem::create_directory(folder_ / "csv"); }

  void put(const std::string& name, const std::string& text) {
    std::ofstream(folder_ / "csv" / name, std::ios::binary) << text;
  }
  std::vector<ImportedTable> run(bool keepUnknown = false) {
    ImportOptions options;
    options.keepUnknown = keepUnknown;
    return importFolder(folder_ / "csv", path_, options);
  }
  /// The error without the folder's name, and whether anything was left behind.
  std::string failure(bool keepUnknown = false) {
    std::string text = "no error";
    try {
      run(keepUnknown);
    } catch (const ImportError& error) {
      text = error.what();
      const std::string folder = (folder_ / "csv").string();
      if (text.starts_with(folder)) text.erase(0, folder.size());
    }
    const auto files = folder_.files();
    return files == 1 ? text : text + " and something was left behind";
  }
  Texts ask(const std::string& sql) { return readTexts(path_, sql); }

  testing_support::TestFolder folder_;
  const std::filesystem::path path_ = folder_ / "made.sqlite";
};

TEST_F(ImporterTest, aFolderWithoutTablesIsRefused) {
  EXPECT_EQ(failure(), ": has no CSV file");
  put("notes.txt", "hello");
  EXPECT_EQ(failure(), ": has no CSV file");
  std::filesystem::remove_all(folder_ / "csv");
  EXPECT_NE(failure().find("cannot be read"), std::string::npos);
}

TEST_F(ImporterTest, whatIsNamedLikeATableAndIsNoFileIsRefused) {
  put("stats$sysstat.csv", "NAME\nx\n");
  std::filesystem::create_symlink("nowhere", folder_ / "csv" / "stats$sgastat.csv");
  EXPECT_EQ(failure(), "/stats$sgastat.csv: is no plain file");
}

TEST_F(ImporterTest, theRepositorysOwnNamesAreRefused) {
  put("KESTRELIX$COLUMN.csv", "NAME\nx\n");
  EXPECT_EQ(failure(true), "/KESTRELIX$COLUMN.csv: the name is the repository's own, no table can bear it");
}

TEST_F(ImporterTest, tablesThatNoReleaseHasAreRefusedByName) {
  put("stats$sysstat.csv", "NAME\nx\n");
  put("emp.csv", "ENAME\nKING\n");
  EXPECT_EQ(failure(), ": no release has the tables of emp.csv");
}

TEST_F(ImporterTest, aBadValueIsToldWithFileLineColumnAndText) {
  put("stats$sysstat.csv", "NAME,VALUE\nredo size,1\n\"two\nlines\",abc\n");
  EXPECT_EQ(failure(), "/stats$sysstat.csv, line 4, column VALUE: not a number: 'abc'");
  put("stats$sysstat.csv", "NAME,VALUE\nx,1\n");
  put("STATS$SNAPSHOT.CSV", "SNAP_ID,SNAP_TIME\r\n1,05-JAN-26\r\n");
  EXPECT_EQ(
      failure(),
      "/STATS$SNAPSHOT.CSV, line 2, column SNAP_TIME: not a date as YYYY-MM-DD HH24:MI:SS: '05-JAN-26'");
}

TEST_F(ImporterTest, aFileThatIsCutWhileItIsReadIsRefused) {
  const std::string head = "NAME,VALUE\n";
  std::string text = head;
  for (int i = 0; i < 50000; ++i) text += "abcdefg,12\n";
  put("stats$sysstat.csv", text);
  // A file that is cut between two lines looks whole from its end.
  const auto cut = head.size() + 40000 * 11;
  testing_support::AnsweringProgress progress([&](std::int64_t, std::int64_t) {
    std::filesystem::resize_file(folder_ / "csv" / "stats$sysstat.csv", cut);
    return true;
  });
  try {
    importFolder(folder_ / "csv", path_, {}, progress);
    FAIL();
  } catch (const ImportError& error) {
    const std::string said = error.what();
    EXPECT_NE(
        said.find("stats$sysstat.csv: was changed while it was read: 440011 bytes where there were 550011"),
        std::string::npos)
        << said;
  }
  EXPECT_EQ(folder_.files(), 1);
}

TEST_F(ImporterTest, longBadValuesAreCutAtACharacter) {
  std::string value = "x";
  for (int i = 0; i < 40; ++i) value += "\xe3\x81\x82";
  put("stats$sysstat.csv", "VALUE\n" + value + "\n");
  // 60 bytes: the x and nineteen characters of three.
  std::string cut = "x";
  for (int i = 0; i < 19; ++i) cut += "\xe3\x81\x82";
  EXPECT_EQ(failure(), "/stats$sysstat.csv, line 2, column VALUE: not a number: '" + cut + "...'");
}

TEST_F(ImporterTest, brokenFilesAreRefusedWithTheirPlace) {
  put("stats$sysstat.csv", "");
  EXPECT_EQ(failure(), "/stats$sysstat.csv: has no line of column names");
  put("stats$sysstat.csv", "NAME,VALUE\nx,1\ny\n");
  EXPECT_EQ(failure(), "/stats$sysstat.csv, line 3: 1 fields under 2 column names");
  put("stats$sysstat.csv", "NAME,name\nx,1\n");
  EXPECT_EQ(failure(), "/stats$sysstat.csv, line 1: column NAME comes twice");
  put("stats$sysstat.csv", "NAME,\nx,1\n");
  EXPECT_EQ(failure(), "/stats$sysstat.csv, line 1: a column without a name");
  put("stats$sysstat.csv", "NAME,VALUE\nx,\"1\n");
  EXPECT_EQ(failure(), "/stats$sysstat.csv, line 2, column VALUE: a quote that is not closed");
  put("stats$sysstat.csv", "NAME\n\x93\xfa\n");
  EXPECT_EQ(failure(), "/stats$sysstat.csv, line 2, column NAME: not UTF-8");
}

TEST_F(ImporterTest, twoFilesOfOneTableAreRefused) {
  put("stats$sysstat.csv", "NAME\nx\n");
  put("STATS$SYSSTAT.csv", "NAME\nx\n");
  EXPECT_NE(failure().find("is the same table as"), std::string::npos);
}

TEST_F(ImporterTest, anEarlierFileSurvivesAFailure) {
  std::ofstream(path_) << "earlier";
  put("stats$sysstat.csv", "VALUE\nabc\n");
  EXPECT_THROW(run(), ImportError);
  EXPECT_EQ(std::filesystem::file_size(path_), 7u);
}

TEST_F(ImporterTest, valuesTakeTheTypesOfTheReleases) {
  put("STATS$SNAPSHOT.CSV",
      "\xef\xbb\xbf\"SNAP_ID\",\"DBID\",\"INSTANCE_NUMBER\",\"SNAP_TIME\",\"UCOMMENT\"\r\n"
      "1,7,1,1970-01-01 01:00:00,\"Mittag, \"\"Last\"\"\"\r\n2,7,1,1970-01-02,\r\n");
  put("stats$sqltext.csv", "old_hash_value,piece,sql_text,address\n5,0,\"select\n1\",00FF\n");
  put("stats$db_cache_advice.csv", "snap_id,size_factor\n1,.5\n2,1\n");
  const auto tables = run();
  ASSERT_EQ(tables.size(), 3u);
  EXPECT_EQ(tables[1].name, "stats$snapshot");
  EXPECT_EQ(tables[1].rows, 2);
  EXPECT_EQ(ask(R"(select snap_id||'|'||snap_time||'|'||coalesce(ucomment,'NULL') from "stats$snapshot")"),
            (Texts{"1|3600|Mittag, \"Last\"", "2|86400|NULL"}));
  EXPECT_EQ(ask(R"(select sql_text||hex(address) from "stats$sqltext")"), (Texts{"select\n100FF"}));
  // One half in Oracle's byte form is C0 33: the exponent 0 and the digit pair 50, one more.
  EXPECT_EQ(ask(R"(select coalesce(hex(size_factor),'') from "stats$db_cache_advice" where snap_id = 1)"),
            (Texts{"C033"}));
  EXPECT_EQ(ask(R"(select column_name||oracle_type||integral from "kestrelix$column"
                   where table_name = 'stats$db_cache_advice')"),
            (Texts{"snap_idNUMBER1", "size_factorNUMBER0"}));
}

TEST_F(ImporterTest, columnsOfItsOwnAreNumbersOnlyIfAllTheirValuesAre) {
  put("stats$sysstat.csv",
      "NAME,A,B,C,D,E\n"
      "x,1,1,007,1E3,\n"
      "y,-.5,x,1,2,\n"
      "z,,3,2,3,\n");
  run();
  EXPECT_EQ(ask(R"(select column_name||oracle_type from "kestrelix$column")"),
            (Texts{"nameVARCHAR2", "aNUMBER", "bVARCHAR2", "cVARCHAR2", "dVARCHAR2", "eVARCHAR2"}));
}

TEST_F(ImporterTest, unknownTablesAreKeptOnDemand) {
  put("Emp.csv", "ENAME,SAL\nKING,5000\n");
  run(true);
  EXPECT_EQ(ask("select ename||typeof(sal)||sal from emp"), (Texts{"KINGinteger5000"}));
}

TEST_F(ImporterTest, backgroundEventsOfRelease11AreTheDifference) {
  put("stats$system_event.csv",
      "SNAP_ID,DBID,INSTANCE_NUMBER,EVENT,TOTAL_WAITS,TOTAL_TIMEOUTS,TIME_WAITED_MICRO,TOTAL_WAITS_FG,"
      "TOTAL_TIMEOUTS_FG,TIME_WAITED_MICRO_FG\n"
      "1,7,1,log file sync,10,2,500,10,2,500\n"
      "1,7,1,latch free,100,20,5000,60,5,1000\n"
      "1,7,1,of release 10,100,20,5000,,,\n");
  const auto tables = run();
  ASSERT_EQ(tables.size(), 2u);
  EXPECT_EQ(tables[0].name, "stats$bg_event_summary");
  EXPECT_EQ(tables[0].rows, 2);
  EXPECT_EQ(ask(R"(select event||'|'||total_waits||'|'||total_timeouts||'|'||time_waited_micro||'|'||dbid
                   from "stats$bg_event_summary")"),
            (Texts{"log file sync|0|0|0|7", "latch free|40|15|4000|7"}));
}

TEST_F(ImporterTest, aFileOfBackgroundEventsIsTakenAsItIs) {
  put("stats$system_event.csv", "SNAP_ID,EVENT,TOTAL_WAITS,TOTAL_WAITS_FG\n1,x,10,4\n");
  put("stats$bg_event_summary.csv", "SNAP_ID,EVENT,TOTAL_WAITS\n1,x,99\n");
  run();
  EXPECT_EQ(ask(R"(select total_waits from "stats$bg_event_summary")"), (Texts{"99"}));
}

TEST_F(ImporterTest, withoutForegroundColumnsNoBackgroundEventsAreMade) {
  put("stats$system_event.csv", "SNAP_ID,EVENT,TOTAL_WAITS\n1,x,10\n");
  EXPECT_EQ(run().size(), 1u);
}

TEST_F(ImporterTest, anImportThatIsToldToEndLeavesNothingBehind) {
  put("stats$sysstat.csv", "VALUE\n1\n");
  // Six bytes and two more: told once they are read, and again once the file is whole.
  for (const int goodAnswers : {0, 1}) {
    std::vector<std::int64_t> told;
    testing_support::AnsweringProgress progress([&](std::int64_t done, std::int64_t all) {
      told.push_back(all);
      EXPECT_EQ(done, all);
      return static_cast<int>(told.size()) <= goodAnswers;
    });
    EXPECT_THROW(importFolder(folder_ / "csv", path_, {}, progress), Cancelled);
    EXPECT_EQ(told.front(), 8);
    EXPECT_EQ(static_cast<int>(told.size()), goodAnswers + 1);
    EXPECT_EQ(folder_.files(), 1) << "the folder of the source";
  }
}

}  // namespace
}  // namespace kestrelix::importing
