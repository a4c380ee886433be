// Published behaviour of Oracle, statement by statement: tests/oracle_sql/vectors.jsonl.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iostream>
#include <set>

#include "oracle_sql/number/number.h"
#include "repository_file/local_database.h"
#include "repository_file/names.h"
#include "repository_file/test_repository.h"
#include "support/json.h"

namespace kestrelix::repository_file {
namespace {

using testing_support::Json;

const std::string kVectors = KESTRELIX_SOURCE_DIR "/tests/oracle_sql/vectors.jsonl";
const std::string kDeviations = KESTRELIX_SOURCE_DIR "/tests/repository_file/known_deviations";

/// What of Oracle's published rows is asked for at least.
constexpr double kLeastShare = 0.95;

std::set<std::string> knownDeviations() {
  std::set<std::string> names;
  std::ifstream in(kDeviations);
  for (std::string line; std::getline(in, line);)
    if (!line.empty() && line.front() != '#') names.insert(line.substr(0, line.find(' ')));
  return names;
}

/// A cell as it is compared: a number in its one plain form, a text as it is, NULL apart from every text.
std::string comparable(char type, const std::optional<std::string>& cell) {
  if (!cell) return "NULL";
  if (type != 'N') return "'" + *cell + "'";
  const auto number = values::Number::parse(*cell);
  return number ? number->toPlainText() : "no number: " + *cell;
}

using Rows = std::vector<std::string>;

Rows expectedRows(const Json& vector) {
  Rows rows;
  for (const Json& row : vector["expect"].items) {
    std::string line;
    for (std::size_t i = 0; i < row.items.size(); ++i) {
      const Json& cell = row.items[i];
      line += comparable(vector["types"].text[i],
                         cell.kind == Json::Kind::Null ? std::nullopt : std::optional(cell.text)) +
              " | ";
    }
    rows.push_back(line);
  }
  return rows;
}

Rows actualRows(ResultRows& result, const std::string& types) {
  Rows rows;
  for (; !result.Eof(); result.MoveNext()) {
    std::string line;
    for (std::size_t i = 0; i < result.columns().size(); ++i) {
      const Field field = result.field(i);
      line += comparable(i < types.size() ? types[i] : 'S',
                         field.isNull() ? std::nullopt : std::optional(field.value())) +
              " | ";
    }
    rows.push_back(line);
  }
  return rows;
}

TEST(Vectors, givePublishedRowsOrAreRefusedByName) {
  TestFolder folder;
  writeRepository(folder / "dual.sqlite", {});
  LocalDatabase database(folder / "dual.sqlite");
  const auto deviations = knownDeviations();

  std::ifstream in(kVectors);
  ASSERT_TRUE(in) << kVectors;
  int all = 0;
  int passed = 0;
  for (std::string line; std::getline(in, line);) {
    if (line.empty()) continue;
    const Json vector = Json::parse(line);
    const std::string& id = vector["id"].text;
    ++all;
    try {
      const auto result = database.run(vector["sql"].text);
      Rows expected = expectedRows(vector);
      Rows actual = actualRows(*result, vector["types"].text);
      if (!vector["ordered"].truth) {
        std::sort(expected.begin(), expected.end());
        std::sort(actual.begin(), actual.end());
      }
      std::vector<std::string> names;
      if (vector.has("columns"))
        for (const Json& name : vector["columns"].items) names.push_back(name.text);
      const bool same = expected == actual && (names.empty() || names == result->columns());
      if (same && deviations.contains(id)) ADD_FAILURE() << id << " is no deviation any more";
      if (same) ++passed;
      if (same || deviations.contains(id)) continue;
      ADD_FAILURE() << id << ": " << vector["sql"].text << "\nexpected " << testing::PrintToString(expected)
                    << "\nactual   " << testing::PrintToString(actual) << "\ncolumns  "
                    << testing::PrintToString(result->columns());
    } catch (const DatabaseError& error) {
      if (error.sqlState() == "0A000") {
        std::cout << id << " is refused: " << std::string(error.what()).substr(0, 80) << "\n";
        continue;
      }
      if (!deviations.contains(id)) ADD_FAILURE() << id << ": " << vector["sql"].text << "\n" << error.what();
    }
  }
  std::cout << passed << " of " << all << " published statements give the published rows\n";
  EXPECT_GE(passed, kLeastShare * all);
}

}  // namespace
}  // namespace kestrelix::repository_file
