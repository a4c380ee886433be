// A copy from a server that stops, or is stopped, in the middle of its tables.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <fstream>
#include <thread>

#include "odbc/odbc_session.h"
#include "odbc/postgres_cluster.h"
#include "support/run_program.h"

namespace kestrelix {
namespace {

using testing::HasSubstr;
using testing_support::PostgresCluster;

const char* const kRepository = R"sql(
drop table if exists stats$database_instance; drop table if exists stats$sysstat; drop table if exists stats$thread;
create table stats$database_instance(dbid numeric, instance_number numeric);
insert into stats$database_instance values (7, 1);
create table stats$sysstat(snap_id numeric, dbid numeric, instance_number numeric, name varchar(64), value numeric);
insert into stats$sysstat values (1, 7, 1, 'redo size', 1);
create table stats$thread(snap_id numeric);
)sql";

const char* const kWaits = "query like '%stats$sysstat%' and wait_event_type = 'Lock'";

/// The copy stands still before stats$sysstat, which a session of the test's own has locked.
class InterruptedCopy : public testing::Test {
 protected:
  void SetUp() override {
    server_ = PostgresCluster::instance();
    if (server_ == nullptr) GTEST_SKIP() << PostgresCluster::whyNot();
    folder_ = server_->folder() / "interrupted";
    std::filesystem::create_directory(folder_);
    std::ofstream(folder_ / "copy.sqlite") << "mine";
    ASSERT_TRUE(server_->run(kRepository));
    lock_ = std::thread([this] { server_->run("begin; lock table stats$sysstat; select pg_sleep(3600);"); });
    waitFor("query like '%pg_sleep(3600)%' and wait_event = 'PgSleep'");
    copy_ = std::thread([this] {
      outcome_ = testing_support::runProgram(
          "kestrelix-repository",
          "copy --tns KESTREL_PG --user perfstat --force " + (folder_ / "copy.sqlite").string(), folder_,
          "echo $$ > " + pidFile() + "; export KESTRELIX_PASSWORD=\"$(cat " +
              (server_->folder() / "password").string() + ")\"; exec");
    });
    waiting_ = waitFor(kWaits);
    ASSERT_EQ(files(), 2) << "the earlier file and the unfinished one";
  }
  void TearDown() override {
    if (server_ == nullptr) return;
    if (stopped_) ::kill(waiting_, SIGCONT);
    unlock();
    if (copy_.joinable()) copy_.join();
    server_->run("drop table stats$thread");
    std::filesystem::remove_all(folder_);
    std::filesystem::remove(pidFile());
  }

  /// The processes of the server whose sessions are as the condition on pg_stat_activity tells.
  std::vector<pid_t> sessions(const std::string& condition) {
    const auto database = odbc::openOdbc("KESTREL_PG", server_->user() + "/" + server_->password());
    const auto rows = database->DbCreateDynaset(
        "select pid from pg_stat_activity where pid != pg_backend_pid() and " + condition, kDynasetOptions);
    std::vector<pid_t> found;
    for (; !rows->Eof(); rows->MoveNext()) found.push_back(std::stoi(rows->Fields("pid").value()));
    return found;
  }
  /// The first of them, once there is one; a minute at most, 0 then.
  pid_t waitFor(const std::string& condition) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::minutes(1);
    while (std::chrono::steady_clock::now() < deadline) {
      if (const auto found = sessions(condition); !found.empty()) return found.front();
      std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    ADD_FAILURE() << condition;
    return 0;
  }
  /// From here on the server takes no notice, not even of a cancel.
  void silenceServer() {
    ASSERT_GT(waiting_, 0);
    stopped_ = ::kill(waiting_, SIGSTOP) == 0;
    ASSERT_TRUE(stopped_);
  }
  void unlock() {
    if (!lock_.joinable()) return;
    server_->run(
        "select pg_terminate_backend(pid) from pg_stat_activity where pid != pg_backend_pid() and "
        "query like '%pg_sleep(3600)%'");
    lock_.join();
  }
  /// Not SIGINT, which system() has this program and the copy under it ignore while the lock is held.
  void signal(int number) const {
    pid_t process = 0;
    std::ifstream(pidFile()) >> process;
    ASSERT_GT(process, 0);
    ::kill(process, number);
  }
  std::string pidFile() const { return folder_.string() + ".pid"; }
  std::ptrdiff_t files() const { return std::distance(std::filesystem::directory_iterator(folder_), {}); }
  /// Less than a second after a signal, with room for a machine that has much else to do.
  void expectNothingMade() {
    const auto begun = std::chrono::steady_clock::now();
    copy_.join();
    EXPECT_LT(std::chrono::steady_clock::now() - begun, std::chrono::seconds(5));
    EXPECT_EQ(files(), 1) << outcome_.errors;
    EXPECT_EQ(std::filesystem::file_size(folder_ / "copy.sqlite"), 4u) << "the earlier file";
  }

  PostgresCluster* server_ = nullptr;
  std::filesystem::path folder_;
  std::thread lock_;
  std::thread copy_;
  pid_t waiting_ = 0;  // the server's process that the copy waits for
  bool stopped_ = false;
  testing_support::Outcome outcome_;
};

TEST_F(InterruptedCopy, aSignalCancelsTheStatementThatRuns) {
  signal(SIGTERM);
  expectNothingMade();
  EXPECT_EQ(outcome_.status, 1);
  EXPECT_THAT(outcome_.errors, testing::EndsWith("interrupted; nothing was made\n"));
  EXPECT_TRUE(sessions(kWaits).empty()) << "the server's too";
}

TEST_F(InterruptedCopy, aServerThatDoesNotAnswerACancelIsGivenUp) {
  silenceServer();
  signal(SIGHUP);
  expectNothingMade();
  EXPECT_EQ(outcome_.status, 1);
  EXPECT_THAT(outcome_.errors, testing::EndsWith("interrupted; nothing was made\n"));
}

TEST_F(InterruptedCopy, theSecondSignalEndsTheProgramAtOnce) {
  silenceServer();
  // The system hands over the lower number first, and never loses one of two that differ.
  signal(SIGHUP);
  signal(SIGTERM);
  expectNothingMade();
  EXPECT_EQ(outcome_.status, 128 + SIGTERM);
}

TEST_F(InterruptedCopy, aServerThatStopsIsAFailureAndNoServerWithoutTables) {
  server_->stop();
  lock_.join();
  expectNothingMade();
  EXPECT_EQ(outcome_.status, 1);
  EXPECT_THAT(outcome_.errors, testing::Not(HasSubstr("stats$thread: skipped")));
  server_->start();
}

}  // namespace
}  // namespace kestrelix
