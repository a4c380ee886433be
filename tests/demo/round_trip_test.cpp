// Exporting a repository to CSV and importing it again gives the same rows.
#include <gtest/gtest.h>
#include <sqlite3.h>
#include <unistd.h>

#include <cstdint>
#include <fstream>
#include <span>

#include "demo/demo.h"
#include "import/importer.h"
#include "oracle_sql/date/date.h"
#include "oracle_sql/number/number.h"
#include "platform/ascii.h"
#include "support/sqlite_reading.h"

namespace kestrelix::demo {

using repository_file::readTexts;
using repository_file::Texts;
namespace {

std::string two(int value) { return (value < 10 ? "0" : "") + std::to_string(value); }

std::string dateText(std::int64_t seconds) {
  const oracle_sql::DateFields f = oracle_sql::Date{seconds}.fields();
  return std::to_string(f.year) + "-" + two(f.month) + "-" + two(f.day) + " " + two(f.hour) + ":" +
         two(f.minute) + ":" + two(f.second);
}

std::string fieldOf(sqlite3_stmt* row, int column, const std::string& type) {
  const auto* bytes = static_cast<const unsigned char*>(sqlite3_column_blob(row, column));
  const std::span<const std::uint8_t> all(bytes, static_cast<std::size_t>(sqlite3_column_bytes(row, column)));
  if (sqlite3_column_type(row, column) == SQLITE_NULL) return "";
  if (type == "DATE") return dateText(sqlite3_column_int64(row, column));
  if (type == "NUMBER" && sqlite3_column_type(row, column) == SQLITE_BLOB)
    return oracle_sql::Number::fromBytes(all)->toText();
  std::string text;
  if (type == "RAW") {
    for (const std::uint8_t byte : all) {
      text += "0123456789ABCDEF"[byte >> 4];
      text += "0123456789ABCDEF"[byte & 15];
    }
    return text;
  }
  if (type == "NUMBER") return std::to_string(sqlite3_column_int64(row, column));
  text = "\"";
  for (const std::uint8_t byte : all)
    text += byte == '"' ? std::string("\"\"") : std::string(1, static_cast<char>(byte));
  return text + "\"";
}

void exportTable(const std::filesystem::path& repository, const std::string& table,
                 const std::filesystem::path& file) {
  sqlite3* connection = nullptr;
  sqlite3_stmt* row = nullptr;
  ASSERT_EQ(sqlite3_open_v2(repository.c_str(), &connection, SQLITE_OPEN_READONLY, nullptr), SQLITE_OK);
  const Texts types =
      readTexts(repository, "select oracle_type from \"kestrelix$column\" where table_name = '" + table +
                                "' order by position");
  ASSERT_EQ(sqlite3_prepare_v2(connection, ("select * from \"" + table + "\"").c_str(), -1, &row, nullptr),
            SQLITE_OK);
  std::ofstream out(file, std::ios::binary);
  for (int i = 0; i < sqlite3_column_count(row); ++i)
    out << (i == 0 ? "" : ",") << asciiUpper(sqlite3_column_name(row, i));
  out << "\r\n";
  while (sqlite3_step(row) == SQLITE_ROW) {
    for (int i = 0; i < sqlite3_column_count(row); ++i)
      out << (i == 0 ? "" : ",") << fieldOf(row, i, types[static_cast<std::size_t>(i)]);
    out << "\r\n";
  }
  sqlite3_finalize(row);
  sqlite3_close(connection);
}

TEST(RoundTrip, anExportedRepositoryComesBackRowByRow) {
  const auto folder =
      std::filesystem::temp_directory_path() / ("kestrelix-round-" + std::to_string(::getpid()));
  std::filesystem::create_directories(folder / "csv");
  const auto original = folder / "original.sqlite";
  const auto copy = folder / "copy.sqlite";
  makeDemo(original, {.snapshots = 3});
  const Texts tables = readTexts(original, "select distinct table_name from \"kestrelix$column\" order by 1");
  for (const std::string& table : tables)
    exportTable(original, table, folder / "csv" / (asciiUpper(table) + ".csv"));

  const auto imported = importing::importFolder(folder / "csv", copy, {});
  EXPECT_EQ(imported.size(), tables.size());
  EXPECT_EQ(readTexts(copy, "select distinct table_name from \"kestrelix$column\" order by 1"), tables);
  EXPECT_EQ(readTexts(copy,
                      "select table_name||column_name||position||oracle_type||integral from "
                      "\"kestrelix$column\" order by 1"),
            readTexts(original,
                      "select table_name||column_name||position||oracle_type||integral from "
                      "\"kestrelix$column\" order by 1"));
  for (const std::string& table : tables) {
    std::string columns;
    for (const std::string& name : readTexts(original,
                                             "select column_name from \"kestrelix$column\" where "
                                             "table_name = '" +
                                                 table + "' order by position"))
      columns += (columns.empty() ? "" : "||'|'||") +
                 ("coalesce(typeof(\"" + name + "\")||hex(\"" + name + "\"),'')");
    EXPECT_EQ(readTexts(copy, "select " + columns + " from \"" + table + "\""),
              readTexts(original, "select " + columns + " from \"" + table + "\""))
        << table;
  }
  std::filesystem::remove_all(folder);
}

}  // namespace
}  // namespace kestrelix::demo
