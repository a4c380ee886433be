// Repositories that are broken, foreign or lack what a report starts from: each is told in its boxes.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <fstream>

#include "support/run_program.h"
#include "support/test_folder.h"

namespace kestrelix::testing_support {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

constexpr const char* kRefused = "[Critical] (ModuleCommon){OPEN_Conect} Error\n";
constexpr const char* kNotConnected = "[Critical] データベースの接続に失敗しました\n";

class BadRepository : public testing::Test {
 protected:
  BadRepository() { std::filesystem::copy(KESTRELIX_SOURCE_DIR "/tests/data/three_snapshots", csv_); }

  void import(const std::string& options = {}) const {
    const Outcome outcome = runProgram(
        "kestrelix-repository", "import " + csv_.string() + " " + file_.string() + " " + options, folder_);
    ASSERT_EQ(outcome.status, 0) << outcome.errors;
  }
  void put(const std::filesystem::path& path, const std::string& text) const {
    std::ofstream(path, std::ios::binary) << text;
  }
  Outcome report(const std::string& arguments) const {
    return runProgram("kestrelix-report", "--repository " + file_.string() + " " + arguments, folder_);
  }
  /// The boxes of a report that is refused whole.
  std::string boxes(const std::string& arguments) const {
    const Outcome outcome = report(arguments);
    EXPECT_EQ(outcome.status, 1) << arguments;
    EXPECT_EQ(outcome.output, "") << arguments;
    return outcome.errors;
  }
  void expectRefused(const std::string& why) const {
    EXPECT_EQ(boxes("instances"), kRefused + file_.string() + ": " + why + "\n" + kNotConnected);
    const Outcome query =
        runProgram("kestrelix-repository", "query " + file_.string() + " 'select 1 from dual'", folder_);
    EXPECT_EQ(query.status, 1);
    EXPECT_EQ(query.errors, "kestrelix-repository: " + file_.string() + ": " + why + "\n");
  }

  TestFolder folder_;
  const std::filesystem::path csv_ = folder_ / "csv";
  const std::filesystem::path file_ = folder_ / "made.sqlite";
};

TEST_F(BadRepository, aCutFileIsRefusedWhereverItIsCut) {
  import();
  const auto whole = std::filesystem::file_size(file_);
  for (const std::uintmax_t size : {whole - 1, whole / 2, std::uintmax_t{4096}, std::uintmax_t{100}}) {
    std::filesystem::resize_file(file_, size);
    expectRefused("is cut off: " + std::to_string(size) + " of " + std::to_string(whole) + " bytes");
  }
  for (const std::uintmax_t size : {99, 16, 1}) {
    std::filesystem::resize_file(file_, size);
    expectRefused("is not a repository");
  }
  std::filesystem::resize_file(file_, 0);
  expectRefused("is empty, not a repository");
}

// The head stays whole, so the file is opened; what lies behind it no longer makes sense.
TEST_F(BadRepository, overwrittenPagesAreErrorsAndNoCrash) {
  import();
  const auto whole = std::filesystem::file_size(file_);
  for (const char filler : {'\0', '\xFF', 'x'}) {
    std::fstream file(file_, std::ios::binary | std::ios::in | std::ios::out);
    file.seekp(4096);
    file << std::string(whole - 4096, filler);
    file.close();
    const Outcome outcome = report("instances");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.errors, StartsWith("[Critical] "));
  }
}

TEST_F(BadRepository, whatIsNoRepositoryIsRefused) {
  expectRefused("cannot be opened: No such file or directory");
  put(file_, std::string(200, 'x'));
  expectRefused("is not a repository");
  std::filesystem::remove(file_);
  std::filesystem::create_directory(file_);
  expectRefused("is a directory, not a repository");
  std::filesystem::remove(file_);
  sqlite3* foreign = nullptr;
  ASSERT_EQ(sqlite3_open(file_.c_str(), &foreign), SQLITE_OK);
  sqlite3_exec(foreign, "CREATE TABLE t (a)", nullptr, nullptr, nullptr);
  sqlite3_close(foreign);
  expectRefused("is not a repository of this program");
}

TEST_F(BadRepository, aNameThatLeadsNowhereIsOneLine) {
  const auto check = [&](const std::string& name) {
    const Outcome outcome = runProgram("kestrelix-report", "check --tns '" + name + "'", folder_);
    EXPECT_EQ(outcome.status, 1) << name;
    return outcome.errors;
  };
  for (const std::string& name : {std::string("../X"), std::string("/ETC/PASSWD"), std::string("日本"),
                                  std::string("{A};DRIVER=X}"), std::string(5000, 'X')})
    EXPECT_EQ(check(name),
              "kestrelix-report: name: there is no local file, no ODBC data source and no Oracle "
              "driver for " +
                  name + "\n");
}

TEST_F(BadRepository, wrongUsageIsOneLine) {
  import();
  for (const char* usage : {"",
                            "nonsense",
                            "-x",
                            "--nonsense",
                            "section",
                            "section Snapshot",
                            "section Snapshot --instance x --pair 0",
                            "section Snapshot --instance 2 --pair 0",
                            "section Snapshot --instance 0 --pair 2",
                            "section Snapshot --instance 0 --pair 0 --row 99",
                            "section Snapshot --instance 0 --pair -1",
                            "section 表 --instance 0 --pair 0",
                            "pairs",
                            "pairs --instance",
                            "pairs --instance 99999999999",
                            "section Snapshot --instance 0 --pair 0 word",
                            "instances --format html",
                            "instances --tns X",
                            "instances --password-file /nowhere",
                            "instances --password-stdin < /dev/null",
                            "instances --password-stdin --password-file /nowhere",
                            "instances --user SCOTT --user SCOTT",
                            "instances --tns",
                            "statements --version 12"}) {
    const Outcome outcome = report(usage);
    EXPECT_EQ(outcome.status, 2) << usage;
    EXPECT_EQ(outcome.output, "") << usage;
    EXPECT_THAT(outcome.errors, testing::MatchesRegex("kestrelix-report: [^\n]+; --help tells the usage\n"))
        << usage;
  }
}

TEST_F(BadRepository, withoutSnapshotsThePairsFail) {
  std::filesystem::remove(csv_ / "stats$snapshot.csv");
  import();
  EXPECT_EQ(report("instances").status, 0);
  EXPECT_THAT(
      boxes("pairs --instance 0"),
      StartsWith("[Critical] (clsSnapId){getSNAP_ID} Error\nORA-00942: table or view does not exist\n"));
}

TEST_F(BadRepository, withoutInstancesTheListFails) {
  std::filesystem::remove(csv_ / "STATS$DATABASE_INSTANCE.CSV");
  import();
  const std::string said = boxes("instances");
  EXPECT_THAT(said, StartsWith("[Critical] (clsDbInstance){getDB_INSTANCE} Error\nORA-00942"));
  EXPECT_THAT(said, HasSubstr("[Critical] DB_INSTANCEの取得に失敗しました\n"));
}

TEST_F(BadRepository, anEmptyInstanceTableIsItsBox) {
  put(csv_ / "STATS$DATABASE_INSTANCE.CSV",
      "DBID,INSTANCE_NUMBER,PARALLEL,VERSION,DB_NAME,INSTANCE_NAME,HOST_NAME\n");
  import();
  EXPECT_EQ(boxes("instances"), "[Critical] 有効なDB_INSTANCE情報が存在しませんでした\n");
  EXPECT_EQ(report("check").status, 1);
  EXPECT_THAT(report("check").errors, HasSubstr("tells of no Oracle 9, 10 or 11 instance"));
}

TEST_F(BadRepository, anInstanceWithoutAVersionIsSaidByTheCheck) {
  put(csv_ / "STATS$DATABASE_INSTANCE.CSV",
      "DBID,INSTANCE_NUMBER,PARALLEL,VERSION,DB_NAME,INSTANCE_NAME,HOST_NAME\n42,1,NO,,HAND,hand1,desk\n");
  import();
  EXPECT_EQ(report("check").errors,
            "kestrelix-report: table stats$database_instance: the column VERSION is null\n");
}

TEST_F(BadRepository, oneSnapshotMakesNoPair) {
  put(csv_ / "stats$snapshot.csv",
      "SNAP_ID,DBID,INSTANCE_NUMBER,SNAP_TIME,STARTUP_TIME,SNAP_LEVEL,UCOMMENT\n"
      "11,42,1,2026-01-05 10:00:00,2026-01-01 08:00:00,7,\n");
  import();
  for (const char* command :
       {"pairs --instance 0", "sections --instance 0", "section Snapshot --instance 0 --pair 0"})
    EXPECT_EQ(boxes(command), "[Critical] SNAP_IDが2件未満でした\n") << command;
}

TEST_F(BadRepository, anotherReleaseIsRefusedAndNotCheckedGood) {
  put(csv_ / "STATS$DATABASE_INSTANCE.CSV",
      "DBID,INSTANCE_NUMBER,STARTUP_TIME,SNAP_ID,PARALLEL,VERSION,DB_NAME,INSTANCE_NAME,HOST_NAME\n"
      "42,1,2026-01-01 08:00:00,11,NO,12.1.0.2.0,HAND,hand1,desk\n");
  import();
  const std::string box =
      "[Critical] 未対応のＤＢが選択されました。[対応データベース：Oracle9,Oracle10,Oracle11]\n";
  EXPECT_EQ(boxes("section Snapshot --instance 0 --pair 0"), box);
  const Outcome check = report("check");
  EXPECT_EQ(check.status, 1);
  EXPECT_THAT(check.output, testing::Not(HasSubstr("all of them can be read")));
  EXPECT_THAT(check.errors, StartsWith(box));
}

TEST_F(BadRepository, oddPasswordsOpenTheFileTheyWereGivenFor) {
  const std::filesystem::path words = folder_ / "password";
  for (const char* password : {"a,b", "a/b/", "q'\"x", "日本語", " a b ", "a;b{}=", "%s%n", "\\", "-"}) {
    put(words, std::string(password) + "\n");
    const std::vector<std::string> ways{" --password-stdin < " + words.string(),
                                        " --password-file " + words.string()};
    for (const std::string& made : ways) {
      put(words, std::string(password) + "\r\n");
      import("--force --user scott" + made);
      for (const std::string& opened : ways)
        EXPECT_EQ(report("instances --user Scott" + opened).status, 0) << password << made << opened;
      put(words, std::string(password) + "x\n");
      for (const std::string& opened : ways)
        EXPECT_THAT(boxes("instances --user Scott" + opened), HasSubstr("ORA-01017")) << password << made;
    }
  }
}

TEST_F(BadRepository, theVariableIsThePasswordForBothPrograms) {
  const std::string variable = "KESTRELIX_PASSWORD=secret";
  ASSERT_EQ(
      runProgram("kestrelix-repository", "import " + csv_.string() + " " + file_.string(), folder_, variable)
          .status,
      0);
  const std::string instances = "--repository " + file_.string() + " instances";
  EXPECT_EQ(runProgram("kestrelix-report", instances, folder_, variable).status, 0);
  EXPECT_THAT(boxes("instances"), HasSubstr("ORA-01017"));
}

}  // namespace
}  // namespace kestrelix::testing_support
