#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "conformance/database_conformance.h"
#include "odbc/data_sources.h"
#include "odbc/odbc_session.h"
#include "odbc/postgres_cluster.h"

namespace kestrelix::conformance {
namespace {

using testing_support::PostgresCluster;

std::string sqlText(const std::optional<std::string>& cell) {
  if (!cell) return "null";
  std::string text = "'";
  for (const char c : *cell) text += c == '\'' ? std::string("''") : std::string(1, c);
  return text + "'";
}

/// A server whose own SQL is near enough to the standard for what doesn't need Oracle.
class PostgresBackEnd : public BackEnd {
 public:
  void createTables(const std::vector<TestTable>& tables) override {
    std::string script =
        "drop table if exists dual; create table dual(dummy varchar(1)); insert into dual values ('X');\n";
    for (const TestTable& table : tables) {
      script += "drop table if exists " + table.name + "; create table " + table.name + "(";
      for (std::size_t i = 0; i < table.columns.size(); ++i)
        script += (i == 0 ? "" : ", ") + table.columns[i].name + " " + typeOf(table.columns[i].type);
      script += ");\n";
      for (const TestRow& row : table.rows) {
        script += "insert into " + table.name + " values (";
        for (std::size_t i = 0; i < row.size(); ++i) {
          const bool raw = table.columns[i].type == "RAW" && row[i];
          script += (i == 0 ? "" : ", ") + (raw ? "decode(" + sqlText(row[i]) + ", 'hex')" : sqlText(row[i]));
        }
        script += ");\n";
      }
    }
    ASSERT_TRUE(PostgresCluster::instance()->run(script));
  }
  Session& session() override { return session_; }
  std::string databaseName() const override { return "KESTREL_PG"; }
  std::string user() const override { return PostgresCluster::instance()->user(); }
  std::string password() const override { return PostgresCluster::instance()->password(); }
  bool speaksOracle() const override { return false; }

 private:
  static std::string typeOf(const std::string& oracle) {
    if (oracle == "NUMBER") return "numeric";
    if (oracle == "DATE") return "timestamp(0)";
    if (oracle == "RAW") return "bytea";
    return "varchar(200)";
  }
  odbc::OdbcSession session_;
};

/// A driver of binary numbers and columns without types, on a file without accounts.
class SqliteBackEnd : public BackEnd {
 public:
  SqliteBackEnd()
      : file_(std::filesystem::temp_directory_path() /
              ("kestrelix-odbc-" + std::to_string(getpid()) + ".db")) {
    static const bool named = [this] {
      testing_support::addDataSource("KESTREL_LITE",
                                     "Driver = " + testing_support::odbcDriver("libsqlite3odbc.so").string() +
                                         "\nDatabase = " + file_.string() + "\n");
      return true;
    }();
    (void)named;
  }
  ~SqliteBackEnd() override {
    std::error_code ignored;
    std::filesystem::remove(file_, ignored);
  }

  void createTables(const std::vector<TestTable>& tables) override {
    std::string script = "create table dual(dummy varchar(1)); insert into dual values ('X');\n";
    for (const TestTable& table : tables) {
      script += "create table " + table.name + "(";
      for (std::size_t i = 0; i < table.columns.size(); ++i)
        script += (i == 0 ? "" : ", ") + table.columns[i].name + " " + typeOf(table.columns[i].type);
      script += ");\n";
      for (const TestRow& row : table.rows) {
        script += "insert into " + table.name + " values (";
        for (std::size_t i = 0; i < row.size(); ++i) {
          const bool raw = table.columns[i].type == "RAW" && row[i];
          script += (i == 0 ? "" : ", ") + (raw ? "x" + sqlText(row[i]) : sqlText(row[i]));
        }
        script += ");\n";
      }
    }
    std::filesystem::remove(file_);
    const std::string sql = file_.string() + ".sql";
    std::ofstream(sql) << script;
    ASSERT_EQ(std::system(("sqlite3 " + file_.string() + " < " + sql).c_str()), 0);
    std::filesystem::remove(sql);
  }
  Session& session() override { return session_; }
  std::string databaseName() const override { return "KESTREL_LITE"; }
  std::string user() const override { return "nobody"; }
  std::string password() const override { return ""; }
  bool speaksOracle() const override { return false; }
  bool hasToChar() const override { return false; }
  bool checksAccounts() const override { return false; }
  bool keepsNumbers() const override { return false; }

 private:
  static std::string typeOf(const std::string& oracle) {
    if (oracle == "NUMBER") return "numeric";
    if (oracle == "RAW") return "blob";
    return "varchar(200)";
  }
  std::filesystem::path file_;
  odbc::OdbcSession session_;
};

std::shared_ptr<BackEnd> postgres() { return std::make_shared<PostgresBackEnd>(); }

/// Says once why the server's cases are skipped.
class Servers : public testing::Environment {
 public:
  void SetUp() override {
    if (PostgresCluster::instance() == nullptr)
      std::cout << "skipped: every case on PostgreSQL, " << PostgresCluster::whyNot() << std::endl;
    if (testing_support::odbcDriver("libsqlite3odbc.so").empty())
      std::cout << "skipped: every case on the SQLite driver, it is not installed" << std::endl;
  }
};
const testing::Environment* const kServers = testing::AddGlobalTestEnvironment(new Servers);

/// Nothing to instantiate where there is no server.
std::vector<std::shared_ptr<BackEnd> (*)()> servers() {
  if (PostgresCluster::instance() == nullptr) return {};
  return {&postgres};
}

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(DatabaseConformance);
std::shared_ptr<BackEnd> sqlite() { return std::make_shared<SqliteBackEnd>(); }

std::vector<std::shared_ptr<BackEnd> (*)()> sqliteDrivers() {
  if (testing_support::odbcDriver("libsqlite3odbc.so").empty()) return {};
  return {&sqlite};
}

INSTANTIATE_TEST_SUITE_P(SqliteDriver, DatabaseConformance, testing::ValuesIn(sqliteDrivers()));
INSTANTIATE_TEST_SUITE_P(Postgres, DatabaseConformance, testing::ValuesIn(servers()));

}  // namespace
}  // namespace kestrelix::conformance
