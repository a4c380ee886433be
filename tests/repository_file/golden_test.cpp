// What each case of tests/oracle_sql/golden becomes for SQLite, which must be able to prepare it.
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <algorithm>
#include <filesystem>

#include "oracle_sql/syntax/parser.h"
#include "repository_file/functions.h"
#include "repository_file/lowering/lowering.h"
#include "repository_file/sqlite_handle.h"
#include "support/golden_file.h"
#include "support/small_catalogue.h"

namespace kestrelix::repository_file {
namespace {

const std::string kFolder = KESTRELIX_SOURCE_DIR "/tests/oracle_sql/golden/";

std::vector<std::string> goldenFiles() {
  std::vector<std::string> files;
  for (const auto& entry : std::filesystem::directory_iterator(kFolder))
    if (entry.path().extension() == ".test") files.push_back(entry.path().stem().string());
  std::sort(files.begin(), files.end());
  return files;
}

/// An empty database with the tables of the small catalogue.
class EmptyDatabase {
 public:
  EmptyDatabase() {
    sqlite3* raw = nullptr;
    sqlite3_open(":memory:", &raw);
    connection_.reset(raw);
    registerFunctions(raw, evaluation_);
    for (const char* name : {"EMP", "DEPT", "STATS$SNAPSHOT", "STATS$SYSSTAT", "STATS$SQL_SUMMARY"}) {
      std::string columns;
      for (const auto& column : catalogue_.table("", name)->columns)
        columns += (columns.empty() ? "\"" : ", \"") + column.name + "\"";
      step(prepare(raw, "CREATE TABLE \"" + std::string(name) + "\" (" + columns + ")").get());
    }
  }

  /// "sqlite" and the lowered text, or "refused" and the error; nothing where the language refuses the
  /// statement.
  std::pair<std::string, std::string> outcome(const std::string& statement) {
    sql::Tree tree{""};
    try {
      tree = sql::parse(statement);
      sql::resolve(tree, catalogue_, &testing_support::SmallCatalogue::bind);
    } catch (const sql::SqlError&) {
      return {};
    }
    // Whole numbers of the small catalogue are known to be small, those of binds to be whole.
    const LoweringFacts facts{[](const sql::CatalogueTable& table, int index) {
                                const bool whole =
                                    table.columns[static_cast<std::size_t>(index)].type.integral;
                                return whole ? NumberFacts{true, 1e12} : NumberFacts{};
                              },
                              [](std::string_view) {
                                return NumberFacts{true, 2147483648.0};
                              }};
    try {
      const auto lowered = lower(tree, facts);
      for (const auto& use : lowered.functions) registerFunction(connection_.get(), use, evaluation_);
      prepare(connection_.get(), lowered.text);
      return {"sqlite", lowered.text + "\n"};
    } catch (const sql::SqlError& error) {
      EXPECT_EQ(error.kind(), sql::ErrorKind::Unsupported) << error.render(statement);
      return {"refused", error.render(statement) + "\n"};
    }
  }

 private:
  Evaluation evaluation_;
  ConnectionHandle connection_;
  testing_support::SmallCatalogue catalogue_;
};

class LoweredGolden : public testing::TestWithParam<std::string> {};

TEST_P(LoweredGolden, textsForSqliteAreAsApproved) {
  const std::string path = kFolder + GetParam() + ".test";
  golden::File file = golden::read(path);
  ASSERT_FALSE(file.cases.empty());
  EmptyDatabase database;
  bool changed = false;
  for (golden::Case& c : file.cases) {
    SCOPED_TRACE(c.name);
    ASSERT_FALSE(c.sections.empty());
    std::string statement = c.sections.front().second;
    statement.pop_back();
    const auto [title, text] = database.outcome(statement);
    if (golden::updating()) {
      const golden::Case before = c;
      for (const char* old : {"sqlite", "refused"})
        if (title != old) c.drop(old);
      if (!title.empty()) c.set(title, text);
      changed = changed || before.sections != c.sections;
      continue;
    }
    if (title.empty()) continue;
    const std::string* approved = c.section(title);
    ASSERT_NE(approved, nullptr) << "not approved yet:\n" << text;
    EXPECT_EQ(*approved, text) << statement;
  }
  if (changed) golden::write(path, file);
}

INSTANTIATE_TEST_SUITE_P(Files, LoweredGolden, testing::ValuesIn(goldenFiles()),
                         [](const auto& file) { return file.param; });

}  // namespace
}  // namespace kestrelix::repository_file
