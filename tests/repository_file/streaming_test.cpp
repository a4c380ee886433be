// Rows handed over one by one, and sums that leave 64 bits on the way.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/cancelled.h"
#include "repository_file/local_database.h"
#include "support/fixture_repository.h"

namespace kestrelix::repository_file {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class Streaming : public testing::Test {
 protected:
  // 110 rows of "big", which joined with each other twice are 1331000, and a row of "small".
  Streaming() {
    fixture.common({{"dbid", "1"}, {"instance_number", "1"}, {"snap_id", "1"}});
    fixture.rows("stats$sysstat", {"name", "value"}, {{"small", "3"}});
    for (int i = 0; i < 110; ++i)
      fixture.rows("stats$sysstat", {"name", "value"}, {{"big", "9000000000000"}});
    database = std::make_unique<LocalDatabase>(fixture.write());
  }

  /// The lines that came, cells with "|" between them, and the error if there was one.
  std::vector<std::string> lines(const std::string& sql) {
    std::vector<std::string> all;
    try {
      database->stream(sql, [&](const auto& names, const auto row) {
        EXPECT_EQ(names.size(), row.size());
        std::string line;
        for (const auto& cell : row) line += (line.empty() ? "" : "|") + cell.value_or("-");
        all.push_back(line);
      });
    } catch (const DatabaseError& error) {
      all.push_back(error.what());
    }
    return all;
  }

  testing_support::FixtureRepository fixture;
  std::unique_ptr<LocalDatabase> database;
};

TEST_F(Streaming, givesTheNamesEvenWithoutARow) {
  EXPECT_THAT(database->stream("select name, value as v from stats$sysstat where 1 = 2",
                               [](const auto&, const auto) { FAIL() << "there is no row"; }),
              ElementsAre("NAME", "V"));
}

TEST_F(Streaming, anErrorComesBehindTheRowsBeforeIt) {
  const auto all =
      lines("select n, 1 / (2 - n) as x from (select 1 as n from dual union all select 2 from dual)");
  ASSERT_EQ(all.size(), 2u);
  EXPECT_EQ(all[0], "1|1");
  EXPECT_THAT(all[1], HasSubstr("ORA-01476: divisor is equal to zero\n  at line 1, column 13\n"));
}

TEST_F(Streaming, aCancelBetweenTwoRowsEndsThem) {
  int rows = 0;
  const auto cancelAtTheThird = [&](const auto&, const auto) {
    if (++rows == 3) database->cancel();
  };
  EXPECT_THROW(database->stream("select name from stats$sysstat", cancelAtTheThird), Cancelled);
  EXPECT_EQ(rows, 3);
  EXPECT_THAT(lines("select name from stats$sysstat where value = 3"), ElementsAre("small"));
}

// 1331000 times 9E12 is 1.1979E19, and 64 bits hold 9.22E18.
const std::string kLargeSum =
    "select a.name as n, sum(a.value) as v from stats$sysstat a, stats$sysstat b, stats$sysstat c "
    "where a.name = b.name and b.name = c.name group by a.name order by a.name desc";

TEST_F(Streaming, aSumThatLeaves64BitsIsMadeInNumber) {
  EXPECT_THAT(lines(kLargeSum), ElementsAre("small|3", "big|11979000000000000000"));
  const auto rows = database->run(kLargeSum);
  ASSERT_EQ(rows->RecordCount(), 2);
  rows->MoveNext();
  EXPECT_EQ(rows->Fields("V").value(), "11979000000000000000");
}

TEST_F(Streaming, anErrorBehindSuchASumHasItsPlaceToo) {
  const std::string sql =
      "select v / (v - 11979000000000000000) as x from (" + kLargeSum + ") where n = 'big'";
  EXPECT_THAT(lines(sql),
              ElementsAre(HasSubstr("ORA-01476: divisor is equal to zero\n  at line 1, column 10\n")));
  try {
    database->run(sql);
    FAIL() << "a division by zero was no error";
  } catch (const DatabaseError& error) {
    EXPECT_EQ(error.nativeCode(), 1476);
  }
}

}  // namespace
}  // namespace kestrelix::repository_file
