// The program on a server that is no Oracle: what it must take, and what it must refuse and live on.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <memory>

#include "navigation/version_gate.h"
#include "odbc/odbc_session.h"
#include "odbc/postgres_cluster.h"
#include "platform/cancelled.h"
#include "sections/SectionList.h"
#include "shell/ModuleDispCommon.h"
#include "shell/ModuleLoadCommon.h"
#include "shell/ModuleRangeCommon.h"
#include "support/recording_boxes.h"

namespace kestrelix {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing_support::PostgresCluster;

class Server : public testing::Test {
 protected:
  void SetUp() override {
    server = PostgresCluster::instance();
    if (server == nullptr) GTEST_SKIP() << PostgresCluster::whyNot();
  }
  std::unique_ptr<odbc::OdbcDatabase> open() {
    return odbc::openOdbc("KESTREL_PG", server->user() + "/" + server->password());
  }
  static std::string one(Database& database, const std::string& sql) {
    const auto rows = database.DbCreateDynaset(sql, kDynasetOptions);
    return rows->Fields(rows->columns().at(0)).value();
  }
  PostgresCluster* server = nullptr;
};

TEST_F(Server, aNameOfNoDataSourceSaysWhatIsMissing) {
  try {
    odbc::openOdbc("NO_SUCH_NAME", "u/p");
    FAIL() << "opened";
  } catch (const DatabaseError& error) {
    EXPECT_EQ(error.nativeCode(), 12154);
    EXPECT_THAT(error.what(), HasSubstr("NO_SUCH_NAME"));
  }
  EXPECT_EQ(odbc::leadsTo("NO_SUCH_NAME"), "");
  EXPECT_EQ(odbc::leadsTo("kestrel_pg"), "the ODBC data source KESTREL_PG");
}

TEST_F(Server, anErrorNeverTellsThePassword) {
  try {
    odbc::openOdbc("KESTREL_PG", server->user() + "/geheim;{x}");
    FAIL() << "opened";
  } catch (const DatabaseError& error) {
    EXPECT_THAT(std::string(error.what()), testing::Not(HasSubstr("geheim")));
  }
}

TEST_F(Server, aTextOfTwoMegabytesComesWhole) {
  const auto database = open();
  const std::string text = one(*database, "select repeat('表a', 700000) as x from (select 1 as one) t");
  EXPECT_EQ(text.size(), 700000u * 4);
  EXPECT_EQ(text.substr(0, 8), "表a表a");
  EXPECT_EQ(text.substr(text.size() - 4), "表a");
}

TEST_F(Server, aHundredThousandRowsComeInOrder) {
  const auto database = open();
  long rows = 0;
  bool inOrder = true;
  database->stream("select i, i / 4.0 as q from generate_series(1, 100000) as t(i) order by i",
                   [&](const auto&, const odbc::RowStream::Row& row) {
                     inOrder = inOrder && row[0] == std::to_string(++rows);
                   });
  EXPECT_EQ(rows, 100000);
  EXPECT_TRUE(inOrder);
}

TEST_F(Server, aCancelBetweenTwoRowsEndsTheRowsAtTheNextBlock) {
  const auto database = open();
  long rows = 0;
  EXPECT_THROW(database->stream("select i from generate_series(1, 100000) as t(i)",
                                [&](const auto&, const odbc::RowStream::Row&) {
                                  if (++rows == 3) database->cancel();
                                }),
               Cancelled);
  EXPECT_LE(rows, 256);
  EXPECT_EQ(one(*database, "select 7 as x"), "7");
}

TEST_F(Server, numbersOfAllKindsArePlainText) {
  const auto database = open();
  EXPECT_EQ(one(*database, "select cast(12345678901234567890123456789012345678 as numeric(38)) as x"),
            "12345678901234567890123456789012345678");
  EXPECT_EQ(one(*database, "select cast(1200 as numeric(6,-2)) as x"), "1200");
  EXPECT_EQ(one(*database, "select cast(0.000001 as numeric) as x"), "0.000001");
  EXPECT_EQ(one(*database, "select cast(1e-7 as float8) as x"), "0.0000001");
  EXPECT_EQ(one(*database, "select cast(-0.50 as numeric(5,2)) as x"), "-0.5");
}

TEST_F(Server, datesBefore1970AndJapaneseColumnsComeAsTheyAre) {
  const auto database = open();
  EXPECT_EQ(one(*database, "select timestamp '1899-12-31 23:59:59' as x"), "1899-12-31 23:59:59");
  const auto rows = database->DbCreateDynaset(
      "select 1 as \"列\", '' as empty, cast(null as text) as nothing", kDynasetOptions);
  EXPECT_EQ(rows->columns().at(0), "列");
  EXPECT_TRUE(rows->Fields("empty").isNull());
  EXPECT_TRUE(rows->Fields("nothing").isNull());
}

TEST_F(Server, aStatementIsPreparedOnceAndFiveHundredRowsTakeFewRoundTrips) {
  const auto database = open();
  database->parameters().Add("B1", 0, 1);
  const std::string sql = "select i from generate_series(1, 500) as t(i) where i > :B1";
  long before = database->roundTrips();
  EXPECT_EQ(database->DbCreateDynaset(sql, kDynasetOptions)->RecordCount(), 500);
  EXPECT_LE(database->roundTrips() - before, 5) << "prepare, execute, two blocks of rows, and the end";
  before = database->roundTrips();
  EXPECT_EQ(database->DbCreateDynaset(sql, kDynasetOptions)->RecordCount(), 500);
  EXPECT_LE(database->roundTrips() - before, 4);
}

const char* const kRepository = R"sql(
drop table if exists stats$database_instance; drop table if exists stats$snapshot; drop table if exists stats$sysstat;
create table stats$database_instance(dbid numeric, db_name varchar(9), version varchar(17), instance_number numeric,
  instance_name varchar(16), host_name varchar(64), parallel varchar(3));
insert into stats$database_instance values (9, 'OLD', '8.1.7.0.0', 1, 'old', '古い', 'NO'),
  (7, 'PG', '10.2.0.5.0', 1, 'pg1', 'host''1', 'NO');
create table stats$snapshot(snap_id numeric, dbid numeric, instance_number numeric, snap_time timestamp(0),
  startup_time timestamp(0), snap_level numeric, ucomment varchar(160));
insert into stats$snapshot values
  (1, 7, 1, '2026-01-05 10:00:00', '2026-01-01 00:00:00', 7, null),
  (2, 7, 1, '2026-01-05 11:00:00', '2026-01-01 00:00:00', 7, null),
  (3, 7, 1, '2026-01-05 12:00:00', '2026-01-01 00:00:00', 5, null),
  (4, 7, 1, '2026-01-05 13:00:00', '2026-01-05 12:30:00', 5, 'コメント');
create table stats$sysstat(snap_id numeric, dbid numeric, instance_number numeric, statistic# numeric, name varchar(64), value numeric);
)sql";

class Program : public Server {
 protected:
  void SetUp() override {
    Server::SetUp();
    if (IsSkipped()) return;
    // PostgreSQL takes no "#" in a plain name.
    std::string script = kRepository;
    script.erase(script.find("statistic# numeric, "), std::string("statistic# numeric, ").size());
    ASSERT_TRUE(server->run(script));
    for (const char* key : {"GRID", "SQL", "PLAN"}) workspace.controls.ToolbarTop.Add(key, key, "");
    workspace.repository.gOraDatabase = open();
    ASSERT_TRUE(gDispDbInstance_Load(workspace));
  }
  std::string pair(int i) { return workspace.controls.ListSnapId.List(i); }

  testing_support::RecordingBoxes boxes;
  Workspace workspace{boxes};
};

TEST_F(Program, listsInstancesAndPairsWithTheirStatus) {
  EXPECT_EQ(workspace.repository.gDbInstance->rownum(), 2);
  EXPECT_EQ(workspace.repository.gDbInstance->HOST_NAME(0), "host'1");
  EXPECT_EQ(workspace.repository.gDbInstance->HOST_NAME(1), "古い");
  ASSERT_TRUE(gDispSnapId_Load(workspace, "7", "1", false));
  EXPECT_EQ(pair(0), " 2026-01-05 10:00:00    2026-01-05 11:00:00         1         2   OK             ");
  EXPECT_EQ(pair(1), " 2026-01-05 11:00:00    2026-01-05 12:00:00         2         3   SNAP_LEVEL NG  ");
  EXPECT_EQ(pair(2), " 2026-01-05 12:00:00    2026-01-05 13:00:00         3         4   DB RESTART     ");
}

TEST_F(Program, theVersionGateRefusesAnOldInstance) {
  EXPECT_THAT(versionGate(majorVersion(workspace.repository.gDbInstance->VERSION(1))), testing::SizeIs(1));
}

TEST_F(Program, theRangeNarrowsThePairs) {
  workspace.controls.ComboDbInstance.ListIndex(0);
  workspace.controls.ListSection.AddItem("ListSection");
  ASSERT_TRUE(gFrameRangeDataInit(workspace));
  workspace.controls.ListSnapId.ListIndex(1);
  ASSERT_TRUE(gFrameRangeSetStartId(workspace));
  EXPECT_EQ(workspace.repository.gSnapId->rownum(), 2);
  EXPECT_EQ(workspace.repository.gSnapRange.GET_START_ID(), "2");
  EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(Program, aSectionThatTheServerRefusesGivesItsBoxAndTheNextOneWorks) {
  ASSERT_TRUE(gDispSnapId_Load(workspace, "7", "1", false));
  gDispSectionList(workspace, sectionList(), "10", "NO");
  workspace.controls.ListSnapId.ListIndex(0);
  for (int round = 0; round < 2; ++round) gDispSectionAll(workspace, directReader(), sectionList(), "10");
  EXPECT_THAT(boxes.shown, ElementsAre("[Critical] (clsSnapshot){getSTART_SNAPSHOT} Error",
                                       "[Critical] (clsSnapshot){getSTART_SNAPSHOT} Error"));
  EXPECT_TRUE(gDispSnapId_Load(workspace, "7", "1", false));
}

TEST_F(Program, aServerThatStopsGivesTheMembersBoxAndTheWindowStays) {
  ASSERT_TRUE(gDispSnapId_Load(workspace, "7", "1", false));
  gDispSectionList(workspace, sectionList(), "10", "NO");
  workspace.controls.ListSnapId.ListIndex(0);
  server->stop();
  workspace.controls.MSFlexGridMain.Row(1);
  gDispSectionCol(workspace, directReader(), sectionList(), "10");
  EXPECT_THAT(boxes.shown, ElementsAre("[Critical] (clsSnapshot){getSTART_SNAPSHOT} Error"));
  gDispSectionAll(workspace, directReader(), sectionList(), "10");
  EXPECT_THAT(boxes.shown, testing::SizeIs(2));
  server->start();
}

std::pair<int, std::string> run(const std::string& command) {
  std::string text;
  FILE* pipe = popen((command + " 2>&1").c_str(), "r");
  std::array<char, 4096> buffer{};
  while (std::size_t got = fread(buffer.data(), 1, buffer.size(), pipe)) text.append(buffer.data(), got);
  const int status = pclose(pipe);
  return {WEXITSTATUS(status), text};
}

class Copy : public Program {
 protected:
  std::string program(const std::string& name) { return std::string(KESTRELIX_BIN_DIR) + "/" + name; }
  std::string copy(const std::string& more) {
    return "KESTRELIX_PASSWORD=\"$(cat " + (server->folder() / "password").string() + ")\" " +
           program("kestrelix-repository") + " copy --tns KESTREL_PG --user perfstat " + more;
  }
  std::string file() { return (server->folder() / "copy.sqlite").string(); }
};

TEST_F(Copy, aCopyEqualsTheImportOfTheSameTables) {
  auto [copied, said] = run(copy(file() + " --force"));
  ASSERT_EQ(copied, 0) << said;
  EXPECT_THAT(said, HasSubstr("stats$latch: skipped"));
  EXPECT_THAT(said, HasSubstr("3 tables, 6 rows"));

  const auto csv = server->folder() / "csv";
  std::filesystem::create_directory(csv);
  std::filesystem::permissions(csv, std::filesystem::perms::all);
  ASSERT_TRUE(server->run(
      "\\copy stats$database_instance to '" + (csv / "stats$database_instance.csv").string() +
      "' csv header\n\\copy stats$snapshot to '" + (csv / "stats$snapshot.csv").string() +
      "' csv header\n\\copy stats$sysstat to '" + (csv / "stats$sysstat.csv").string() + "' csv header\n"));
  const std::string imported = (server->folder() / "imported.sqlite").string();
  const auto [done, text] =
      run(program("kestrelix-repository") + " import " + csv.string() + " " + imported + " --force");
  ASSERT_EQ(done, 0) << text;
  for (const char* table : {"stats$database_instance", "stats$snapshot", "stats$sysstat"}) {
    const std::string query = std::string(" 'select * from ") + table + " order by 1, 2'";
    const auto fromCopy = run(program("kestrelix-repository") + " query " + file() + query);
    EXPECT_EQ(fromCopy, run(program("kestrelix-repository") + " query " + imported + query)) << table;
    EXPECT_EQ(fromCopy.first, 0) << fromCopy.second;
  }
}

TEST_F(Copy, aRangeOfOneInstanceIsCopied) {
  const auto [copied, said] = run(copy(file() + " --force --dbid 7 --instance 1 --from 2 --to 3"));
  ASSERT_EQ(copied, 0) << said;
  EXPECT_THAT(said, HasSubstr("3 rows")) << "one instance and two snapshots";
}

TEST_F(Copy, aFailedCopyLeavesNoFile) {
  const std::string other = (server->folder() / "never.sqlite").string();
  EXPECT_EQ(run("KESTRELIX_PASSWORD=x " + program("kestrelix-repository") +
                " copy --tns KESTREL_PG --user perfstat " + other)
                .first,
            1);
  ASSERT_TRUE(
      server->run("insert into stats$sysstat(snap_id, dbid, instance_number, name, value) values "
                  "(1, 7, 1, 'x', 'NaN')"));
  const auto [status, said] = run(copy(other));
  EXPECT_EQ(status, 1);
  EXPECT_THAT(said, HasSubstr("stats$sysstat, column value, value 'NaN'"));
  EXPECT_FALSE(std::filesystem::exists(other));
}

TEST_F(Copy, checkSaysWhatIsMissing) {
  const std::string checking = "KESTRELIX_PASSWORD=\"$(cat " + (server->folder() / "password").string() +
                               ")\" " + program("kestrelix-report") + " check --user perfstat --tns ";
  const auto [status, said] = run(checking + "KESTREL_PG");
  EXPECT_EQ(status, 1);
  EXPECT_THAT(said, HasSubstr("name: KESTREL_PG leads to the ODBC data source KESTREL_PG\n"));
  EXPECT_THAT(said, HasSubstr("login: PERFSTAT is connected\n"));
  EXPECT_THAT(said, HasSubstr("table stats$latch of release 10: "));
  EXPECT_THAT(run(checking + "NOWHERE").second, HasSubstr("name: there is no"));
  EXPECT_THAT(run("KESTRELIX_PASSWORD=x " + program("kestrelix-report") + " check --tns KESTREL_PG").second,
              HasSubstr("login: failed"));
}

}  // namespace
}  // namespace kestrelix
