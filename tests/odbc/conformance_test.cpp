#include "conformance/database_conformance.h"
#include "odbc/postgres_cluster.h"
#include "platform/odbc/odbc_session.h"

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

std::shared_ptr<BackEnd> postgres() { return std::make_shared<PostgresBackEnd>(); }

/// Says once why the server's cases are skipped.
class Servers : public testing::Environment {
 public:
  void SetUp() override {
    if (PostgresCluster::instance() == nullptr)
      std::cout << "skipped: every case on PostgreSQL, " << PostgresCluster::whyNot() << std::endl;
  }
};
const testing::Environment* const kServers = testing::AddGlobalTestEnvironment(new Servers);

/// Nothing to instantiate where there is no server.
std::vector<std::shared_ptr<BackEnd> (*)()> servers() {
  if (PostgresCluster::instance() == nullptr) return {};
  return {&postgres};
}

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(DatabaseConformance);
INSTANTIATE_TEST_SUITE_P(Postgres, DatabaseConformance, testing::ValuesIn(servers()));

}  // namespace
}  // namespace kestrelix::conformance
