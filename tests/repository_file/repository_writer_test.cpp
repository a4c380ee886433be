#include "repository_file/writing/repository_writer.h"

#include <gtest/gtest.h>
#include <sodium.h>
#include <sqlite3.h>

#include <chrono>
#include <fstream>

#include "repository_file/writing/password_hash.h"
#include "support/answering_progress.h"
#include "support/fixture_repository.h"
#include "support/sqlite_reading.h"
#include "support/test_folder.h"

namespace kestrelix::repository_file {
namespace {

using statspack::Type;
using testing_support::FixtureRepository;

class RepositoryWriterTest : public ::testing::Test {
 protected:
  std::ptrdiff_t filesInFolder() const { return folder_.files(); }

  testing_support::TestFolder folder_;
  const std::filesystem::path path_ = folder_ / "new.sqlite";
};

TEST_F(RepositoryWriterTest, aFolderThatIsMissingIsNamed) {
  try {
    RepositoryWriter writer(folder_ / "missing/new.sqlite", {}, "a test");
    FAIL();
  } catch (const RepositoryError& error) {
    EXPECT_NE(std::string(error.what()).find("missing/new.sqlite"), std::string::npos) << error.what();
  }
}

TEST_F(RepositoryWriterTest, anUnfinishedFileLeavesNothingBehind) {
  {
    RepositoryWriter writer(path_, {}, "a test");
    writer.addTable("t", {{"a"}}).insert(std::array<Cell, 1>{1});
    EXPECT_FALSE(std::filesystem::exists(path_));
  }
  EXPECT_EQ(filesInFolder(), 0);
}

TEST_F(RepositoryWriterTest, anEarlierFileStaysUntilTheNewOneIsWhole) {
  std::ofstream(path_) << "earlier";
  { RepositoryWriter writer(path_, {}, "a test"); }
  EXPECT_EQ(std::filesystem::file_size(path_), 7u);
  RepositoryWriter writer(path_, {}, "a test");
  writer.finish();
  EXPECT_GT(std::filesystem::file_size(path_), 512u);
  EXPECT_EQ(filesInFolder(), 1);
}

TEST_F(RepositoryWriterTest, aFileThatCameMeanwhileIsKeptOnRequest) {
  RepositoryWriter writer(path_, {}, "a test", Existing::Keep);
  std::ofstream(path_) << "other";
  try {
    writer.finish();
    FAIL();
  } catch (const RepositoryError& error) {
    EXPECT_EQ(error.what(), path_.string() + ": is there already");
  }
  EXPECT_EQ(std::filesystem::file_size(path_), 5u);
}

TEST_F(RepositoryWriterTest, whoWatchesTheFinishCanStopIt) {
  {
    RepositoryWriter writer(path_, {}, "a test");
    TableWriter& table = writer.addTable("t", {{"dbid"}});
    for (int i = 0; i < 100000; ++i) table.insert(std::array<Cell, 1>{i});
    int calls = 0;
    testing_support::AnsweringProgress progress([&](std::int64_t done, std::int64_t all) {
      EXPECT_EQ(done, all);
      return ++calls < 5;
    });
    EXPECT_THROW(writer.finish(progress), Cancelled);
    EXPECT_EQ(calls, 5) << "not only once it is done";
    EXPECT_FALSE(std::filesystem::exists(path_));
  }
  EXPECT_EQ(filesInFolder(), 0);
}

TEST_F(RepositoryWriterTest, aFailureNamesTheFileAndTheTable) {
  RepositoryWriter writer(path_, {}, "a test");
  try {
    writer.addTable("t", {{"a"}, {"a"}});
    FAIL();
  } catch (const RepositoryError& error) {
    EXPECT_EQ(error.what(), path_.string() + ": cannot be written: table t: duplicate column name: a");
  }
}

TEST_F(RepositoryWriterTest, aTableTwiceAndARowTooLongFail) {
  RepositoryWriter writer(path_, {}, "a test");
  TableWriter& table = writer.addTable("T", {{"a"}});
  EXPECT_THROW(writer.addTable("t", {{"b"}}), RepositoryError);
  EXPECT_THROW(table.insert(std::array<Cell, 2>{1, 2}), RepositoryError);
}

TEST_F(RepositoryWriterTest, namesAreInLowerCaseAndValuesInTheirForm) {
  RepositoryWriter writer(path_, {}, "a test");
  TableWriter& table =
      writer.addTable("STATS$T", {{"N#"}, {"S", Type::Varchar2}, {"D", Type::Date}, {"R", Type::Raw}});
  table.insert(std::array<Cell, 4>{7, "x", 0, Cell::raw("\x01\x02")});
  table.insert(std::array<Cell, 1>{8});
  writer.finish();
  EXPECT_EQ(readTexts(path_, R"(select typeof("n#")||typeof(s)||typeof(d)||typeof(r) from "stats$t")"),
            (Texts{"integertextintegerblob", "integernullnullnull"}));
  EXPECT_EQ(
      readTexts(path_, R"(select position||column_name||oracle_type||integral from "kestrelix$column")"),
      (Texts{"1n#NUMBER1", "2sVARCHAR20", "3dDATE0", "4rRAW0"}));
}

TEST_F(RepositoryWriterTest, theAccountIsKeptWithASaltedHash) {
  RepositoryWriter writer(path_, {"scott", "tiger", {}}, "a test");
  writer.finish();
  const auto setting = [&](const std::string& name) {
    return readTexts(path_, "select value from \"kestrelix$setting\" where name = '" + name + "'").at(0);
  };
  EXPECT_EQ(setting("user_name"), "SCOTT");
  EXPECT_EQ(setting("created_by"), "a test");
  const std::string hash = setting("password_hash");
  EXPECT_EQ(crypto_pwhash_str_verify(hash.c_str(), "tiger", 5), 0);
  EXPECT_NE(crypto_pwhash_str_verify(hash.c_str(), "Tiger", 5), 0);
}

TEST(PasswordHash, isSaltedAtRandomUnlessTold) {
  EXPECT_NE(saltedHash("tiger", {}), saltedHash("tiger", {}));
  const PasswordSalt salt{1, 2, 3};
  EXPECT_EQ(saltedHash("tiger", salt), saltedHash("tiger", salt));
  EXPECT_EQ(crypto_pwhash_str_verify(saltedHash("tiger", salt).c_str(), "tiger", 5), 0);
}

TEST(PasswordHash, isVerifiedWithinFiftyMilliseconds) {
  const std::string hash = saltedHash("tiger", {});
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(crypto_pwhash_str_verify(hash.c_str(), "tiger", 5), 0);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(50));
}

TEST(Fixture, unknownTablesAndColumnsAreRefused) {
  FixtureRepository fixture("9");
  EXPECT_THROW(fixture.row("stats$osstat", {{"value", "1"}}), std::logic_error);
  EXPECT_THROW(fixture.row("stats$sysstat", {{"worth", "1"}}), std::logic_error);
  EXPECT_THROW(fixture.rows("stats$sysstat", {"name", "value"}, {{"x"}}), std::logic_error);
}

TEST(Fixture, aSnapshotIsFoundByTheIndexOfItsKey) {
  FixtureRepository fixture("10");
  fixture.common({{"dbid", "1"}, {"instance_number", "2"}});
  fixture.snapshot("5", "1970-01-01 01:00:00").snapshot("6", "1970-01-01 02:00:00");
  fixture.rows("stats$sysstat", {"snap_id", "name", "value"}, {{"5", "redo size", "100"}});
  fixture.without("stats$thread");
  const auto path = fixture.write();
  EXPECT_EQ(
      readTexts(path,
                R"(select dbid||instance_number||snap_id||snap_time||snap_level from "stats$snapshot")"),
      (Texts{"12536007", "12672007"}));
  EXPECT_EQ(readTexts(path, R"(select name||value from "stats$sysstat")"), (Texts{"redo size100"}));
  EXPECT_EQ(readTexts(path, R"(select 1 from "stats$thread")"), (Texts{"no such table: stats$thread"}));
  EXPECT_EQ(readTexts(path, "select 1 from pragma_table_list where name = 'stats$osstat'"), (Texts{"1"}));
}

// Every table of every release that has the three columns is searched and not scanned by them.
TEST(Fixture, aLookUpByTheSnapshotKeyNeverScansATable) {
  FixtureRepository fixture;
  const auto path = fixture.write();
  int looked = 0;
  for (const statspack::Table& table : statspack::everyRelease().tables()) {
    if (!table.column("dbid") || !table.column("instance_number") || !table.column("snap_id")) continue;
    ++looked;
    sqlite3* connection = nullptr;
    sqlite3_stmt* statement = nullptr;
    sqlite3_open_v2(path.c_str(), &connection, SQLITE_OPEN_READONLY, nullptr);
    const std::string sql = "explain query plan select * from \"" + table.name +
                            "\" where dbid = ?1 and instance_number = ?2 and snap_id = ?3";
    ASSERT_EQ(sqlite3_prepare_v2(connection, sql.c_str(), -1, &statement, nullptr), SQLITE_OK) << sql;
    ASSERT_EQ(sqlite3_step(statement), SQLITE_ROW);
    const std::string detail = reinterpret_cast<const char*>(sqlite3_column_text(statement, 3));
    EXPECT_EQ(detail.rfind("SEARCH", 0), 0u) << table.name << ": " << detail;
    sqlite3_finalize(statement);
    sqlite3_close(connection);
  }
  EXPECT_GT(looked, 50);
}

}  // namespace
}  // namespace kestrelix::repository_file
