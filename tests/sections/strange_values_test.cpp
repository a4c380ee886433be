// Every view of every Section on repositories whose values nobody expects: a box tells of it, and no view
// ends the program or keeps the next one from working.
#include <gtest/gtest.h>
#include <sqlite3.h>
#include <unistd.h>

#include <filesystem>
#include <set>

#include "demo/demo.h"
#include "support/report_fixture.h"

namespace kestrelix {
namespace {

namespace fs = std::filesystem;
using testing_support::ReportFixture;

/// A change of one column of one table, "" for none.
using Change = std::string (*)(const std::string& table, const std::string& column, const std::string& type);

std::string set(const std::string& table, const std::string& column, const std::string& value,
                const std::string& rows = "1") {
  return "UPDATE \"" + table + "\" SET \"" + column + "\" = " + value + " WHERE " + rows + ";";
}

std::string nulls(const std::string& table, const std::string& column, const std::string&) {
  return set(table, column, "NULL");
}

std::string someNulls(const std::string& table, const std::string& column, const std::string&) {
  return set(table, column, "NULL", "rowid % 3 = 0");
}

std::string zeros(const std::string& table, const std::string& column, const std::string& type) {
  return type == "NUMBER" ? set(table, column, "0") : "";
}

std::string textsForNumbers(const std::string& table, const std::string& column, const std::string& type) {
  return type == "NUMBER" ? set(table, column, "'表'", "rowid % 3 = 0") : "";
}

std::string largestNumbers(const std::string& table, const std::string& column, const std::string& type) {
  return type == "NUMBER"
             ? set(table, column,
                   "CASE rowid % 2 WHEN 0 THEN -9223372036854775808 ELSE 9223372036854775807 END")
             : "";
}

std::string foreignBytes(const std::string& table, const std::string& column, const std::string& type) {
  return type == "NUMBER" ? set(table, column, "randomblob(abs(random()) % 40)", "rowid % 3 = 0") : "";
}

std::string datesOutOfTime(const std::string& table, const std::string& column, const std::string& type) {
  return type == "DATE" ? set(table, column, "9223372036854775807", "rowid % 2 = 0") : "";
}

std::string japaneseAndQuotes(const std::string& table, const std::string& column, const std::string& type) {
  return type == "VARCHAR2"
             ? set(table, column, "'表''\";,:B1--/*' || char(13, 10, 9) || 'ｶﾅ😀' || \"" + column + "\"")
             : "";
}

std::string bytesThatAreNoText(const std::string& table, const std::string& column, const std::string& type) {
  return type == "VARCHAR2" ? set(table, column, "CAST(x'FF83E381FE' AS TEXT) || \"" + column + "\"") : "";
}

std::string noRows(const std::string& table, const std::string&, const std::string&) {
  return table == "stats$snapshot" || table == "stats$database_instance" ? ""
                                                                         : "DELETE FROM \"" + table + "\";";
}

/// What is needed to come to the Sections at all stays as it is.
bool isKept(const std::string& table, const std::string& column) {
  static const std::set<std::string> keys{"snap_id", "dbid", "instance_number", "name", "statistic#"};
  return table == "stats$database_instance" || table == "stats$snapshot" || keys.contains(column);
}

class StrangeValues : public testing::TestWithParam<std::pair<const char*, Change>> {
 protected:
  static void SetUpTestSuite() {
    folder_ = fs::temp_directory_path() / ("kestrelix-strange-" + std::to_string(::getpid()));
    fs::create_directories(folder_);
    demo::makeDemo(folder_ / "demo.sqlite", {.snapshots = 4});
  }
  static void TearDownTestSuite() { fs::remove_all(folder_); }

  static fs::path changed(Change change) {
    const fs::path file = folder_ / "changed.sqlite";
    fs::copy_file(folder_ / "demo.sqlite", file, fs::copy_options::overwrite_existing);
    sqlite3* connection = nullptr;
    sqlite3_open(file.c_str(), &connection);
    std::string script = "PRAGMA synchronous = OFF; BEGIN;";
    const auto add = [&](const std::string& table, const std::string& column, const std::string& type) {
      if (change == noRows ? table != "stats$snapshot" && table != "stats$database_instance"
                           : !isKept(table, column))
        script += change(table, column, type);
    };
    sqlite3_stmt* columns = nullptr;
    sqlite3_prepare_v2(connection, "SELECT table_name, column_name, oracle_type FROM \"kestrelix$column\"",
                       -1, &columns, nullptr);
    const auto text = [&](int i) { return reinterpret_cast<const char*>(sqlite3_column_text(columns, i)); };
    while (sqlite3_step(columns) == SQLITE_ROW) add(text(0), text(1), text(2));
    sqlite3_finalize(columns);
    EXPECT_EQ(sqlite3_exec(connection, (script + "COMMIT").c_str(), nullptr, nullptr, nullptr), SQLITE_OK)
        << sqlite3_errmsg(connection);
    sqlite3_close(connection);
    return file;
  }

  static inline fs::path folder_;
};

TEST_P(StrangeValues, endInBoxesOrInAView) {
  ReportFixture report(changed(GetParam().second).string());
  int views = 0;
  for (const int instance : {0, 1, 3}) {  // releases 9, 10 and 11, the last two of a cluster
    report.open(instance);
    for (const std::string& section : report.sections()) {
      report.all(section, 1);
      ++views;
      if (report.grid().Rows() < 2) continue;
      report.col(report.grid().Rows() - 1);
      ++views;
    }
  }
  EXPECT_GT(views, 200);
  // A member that failed has the error behind it, and none is a fault of our own.
  std::size_t failures = 0;
  for (const std::string& box : report.boxes()) failures += box.starts_with("[Critical] (") ? 1 : 0;
  EXPECT_EQ(report.errors().size(), failures);
  for (const std::string& error : report.errors())
    EXPECT_EQ(error.find("internal fault"), std::string::npos) << error;
}

using Case = std::pair<const char*, Change>;
INSTANTIATE_TEST_SUITE_P(
    , StrangeValues,
    testing::Values(Case{"nulls", nulls}, Case{"someNulls", someNulls}, Case{"zeros", zeros},
                    Case{"textsForNumbers", textsForNumbers}, Case{"largestNumbers", largestNumbers},
                    Case{"foreignBytes", foreignBytes}, Case{"datesOutOfTime", datesOutOfTime},
                    Case{"japaneseAndQuotes", japaneseAndQuotes},
                    Case{"bytesThatAreNoText", bytesThatAreNoText}, Case{"noRows", noRows}),
    [](const auto& of) { return std::string(of.param.first); });

}  // namespace
}  // namespace kestrelix
