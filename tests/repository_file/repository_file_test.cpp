#include "repository_file/repository_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <fstream>

#include "repository_file/local_database.h"
#include "repository_file/local_session.h"
#include "repository_file/test_repository.h"

namespace kestrelix::repository_file {
namespace {

using testing::HasSubstr;

std::string refusal(const std::filesystem::path& path) {
  try {
    openRepositoryFile(path);
  } catch (const DatabaseError& error) {
    return error.what();
  }
  return "it was opened";
}

std::string bytesOf(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

void write(const std::filesystem::path& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

class RepositoryFile : public testing::Test {
 protected:
  RepositoryFile() { writeRepository(file_, {{"stats$snapshot", {{"SNAP_ID", "NUMBER"}}, {{"1"}, {"2"}}}}); }
  TestFolder folder_;
  std::filesystem::path file_ = folder_ / "a repository %41.sqlite";
};

TEST_F(RepositoryFile, missingFileIsRefused) {
  EXPECT_THAT(refusal(folder_ / "none.sqlite"), HasSubstr("none.sqlite: cannot be opened"));
}

TEST_F(RepositoryFile, directoryIsRefused) {
  EXPECT_THAT(refusal(folder_.path()), HasSubstr("is a directory"));
}

TEST_F(RepositoryFile, deviceIsRefused) { EXPECT_THAT(refusal("/dev/null"), HasSubstr("no plain file")); }

TEST_F(RepositoryFile, emptyFileIsRefused) {
  write(folder_ / "empty", "");
  EXPECT_THAT(refusal(folder_ / "empty"), HasSubstr("is empty"));
}

TEST_F(RepositoryFile, foreignFileIsRefused) {
  write(folder_ / "foreign", std::string(5000, 'x'));
  EXPECT_THAT(refusal(folder_ / "foreign"), HasSubstr("is not a repository"));
}

TEST_F(RepositoryFile, otherDatabaseIsRefused) {
  sqlite3* other = nullptr;
  ASSERT_EQ(sqlite3_open((folder_ / "other").c_str(), &other), SQLITE_OK);
  sqlite3_exec(other, "CREATE TABLE a(b)", nullptr, nullptr, nullptr);
  sqlite3_close(other);
  EXPECT_THAT(refusal(folder_ / "other"), HasSubstr("not a repository of this program"));
}

TEST_F(RepositoryFile, otherLayoutIsRefused) {
  std::string bytes = bytesOf(file_);
  bytes[63] = 9;  // the user version stands at offset 60, big-endian
  write(folder_ / "later", bytes);
  EXPECT_THAT(refusal(folder_ / "later"), HasSubstr("has the layout 9, and this program reads 1"));
}

TEST_F(RepositoryFile, cutFileIsRefused) {
  const std::string bytes = bytesOf(file_);
  for (const std::size_t length : {std::size_t{1}, std::size_t{50}, std::size_t{4096}, bytes.size() - 1}) {
    write(folder_ / "cut", bytes.substr(0, length));
    EXPECT_THAT(refusal(folder_ / "cut"), testing::Not(HasSubstr("it was opened"))) << length;
  }
  EXPECT_THAT(refusal(folder_ / "cut"), HasSubstr("is cut off"));
}

TEST_F(RepositoryFile, fileWithoutReadRightIsRefused) {
  if (geteuid() == 0) GTEST_SKIP() << "root may read everything";
  chmod(file_.c_str(), 0);
  EXPECT_THAT(refusal(file_), HasSubstr("cannot be opened: Permission denied"));
}

TEST_F(RepositoryFile, damagedPagesAreAnErrorAndNoCrash) {
  std::string bytes = bytesOf(file_);
  for (std::size_t i = 4096; i < bytes.size(); ++i) bytes[i] = static_cast<char>(i * 31);
  write(folder_ / "damaged", bytes);
  EXPECT_THAT(refusal(folder_ / "damaged"), HasSubstr("is damaged"));
}

TEST_F(RepositoryFile, fileThatLostATableOrAColumnIsRefused) {
  const std::string sound = bytesOf(file_);
  for (const char* change :
       {"ALTER TABLE \"stats$snapshot\" RENAME COLUMN snap_id TO snap",
        "ALTER TABLE \"stats$snapshot\" RENAME TO other", "DROP TABLE \"stats$snapshot\""}) {
    write(folder_ / "changed", sound);
    sqlite3* changed = nullptr;
    ASSERT_EQ(sqlite3_open((folder_ / "changed").c_str(), &changed), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(changed, change, nullptr, nullptr, nullptr), SQLITE_OK) << change;
    sqlite3_close(changed);
    EXPECT_THAT(refusal(folder_ / "changed"),
                HasSubstr("is damaged: it has no column STATS$SNAPSHOT.SNAP_ID"));
  }
}

TEST_F(RepositoryFile, readingLeavesFileAndFolderAsTheyWere) {
  const std::string before = bytesOf(file_);
  {
    LocalDatabase database(file_);
    EXPECT_EQ(database.run("select count(*) as n from stats$snapshot")->Fields("n").value(), "2");
  }
  EXPECT_EQ(bytesOf(file_), before);
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder_.path()), {}), 1);
}

TEST_F(RepositoryFile, accountIsAskedForAsByAServer) {
  LocalFileSession session(file_);
  EXPECT_NO_THROW(session.OpenDatabase("ANY", "perfstat/perfstat", 1));
  EXPECT_NO_THROW(session.OpenDatabase("ANY", "PERFSTAT/perfstat", 1));
  try {
    session.OpenDatabase("ANY", "PERFSTAT/PERFSTAT", 1);
    FAIL() << "a password in other letters was taken";
  } catch (const DatabaseError& error) {
    EXPECT_EQ(error.nativeCode(), 1017);
    EXPECT_STREQ(error.what(), "ORA-01017: invalid username/password; logon denied");
  }
}

// The cost stands in the hash: a file from elsewhere must not make a login take hours and gigabytes.
TEST_F(RepositoryFile, aHashOfAnotherCostIsRefusedAtOnce) {
  const std::string sound = bytesOf(file_);
  const std::string end = ",p=1$c29tZXNhbHRzb21lc2FsdA$RdescudvJCsgt3ub+b4ds5J2J7S1fNVbHTbUj6oCoe8";
  for (const std::string& hash :
       {"$argon2id$v=19$m=4194304,t=1000" + end, "$argon2id$v=19$m=64,t=2" + end,
        "$argon2id$v=19$m=65,t=1" + end, std::string("perfstat"), std::string(500, 'x'), std::string()}) {
    write(folder_ / "changed", sound);
    sqlite3* changed = nullptr;
    ASSERT_EQ(sqlite3_open((folder_ / "changed").c_str(), &changed), SQLITE_OK);
    const std::string change =
        "UPDATE \"kestrelix$setting\" SET value = '" + hash + "' WHERE name = 'password_hash'";
    ASSERT_EQ(sqlite3_exec(changed, change.c_str(), nullptr, nullptr, nullptr), SQLITE_OK);
    sqlite3_close(changed);
    try {
      LocalFileSession(folder_ / "changed").OpenDatabase("ANY", "PERFSTAT/perfstat", 1);
      FAIL() << hash;
    } catch (const DatabaseError& error) {
      EXPECT_STREQ(error.what(), "the repository's password hash is not of this program's form") << hash;
    }
  }
}

}  // namespace
}  // namespace kestrelix::repository_file
