// The promises of platform/database.h, run against each back end. A back end includes this file in one of its
// test sources and instantiates DatabaseConformance with a function that makes its BackEnd.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <future>
#include <thread>

#include "conformance/back_end.h"
#include "platform/cancelled.h"

namespace kestrelix::conformance {

class DatabaseConformance : public testing::TestWithParam<std::shared_ptr<BackEnd> (*)()> {
 protected:
  void SetUp() override {
    backEnd_ = GetParam()();
    backEnd_->createTables({
        {"stats$sample",
         {{"SNAP_ID", "NUMBER"},
          {"NAME", "VARCHAR2"},
          {"VALUE", "NUMBER"},
          {"TAKEN", "DATE"},
          {"ADDRESS", "RAW"}},
         {{"1", "first", "10", "2020-01-31 23:59:59", "0AFF"},
          {"2", "second", "0.5", "2020-02-29 00:00:00", "00"},
          {"3", std::nullopt, "-1234567890123456789012345678901234567.5", std::nullopt, std::nullopt},
          {"4", "a:B1 'quoted'", std::nullopt, "1969-12-31 12:00:00", "FF"}}},
    });
    database_ = backEnd_->session().OpenDatabase(
        backEnd_->databaseName(), backEnd_->user() + "/" + backEnd_->password(), kDatabaseOptions);
  }

  std::unique_ptr<Dynaset> run(const std::string& sql) {
    return database_->DbCreateDynaset(sql, kDynasetOptions);
  }

  /// The only field of the only row.
  std::string one(const std::string& sql) {
    const auto rows = run(sql);
    EXPECT_EQ(rows->RecordCount(), 1) << sql;
    return rows->Fields(rows->columns().at(0)).value();
  }

  void bind(const std::string& name, ServerType type, const std::string& value) {
    database_->parameters().Add(name, 0, 1);
    database_->parameters()(name).serverType(type);
    database_->parameters()(name).value(value);
  }

  /// Four rows joined with themselves so often that no machine comes to the end of them.
  static std::string endless() {
    std::string text = "stats$sample s1";
    for (int i = 2; i <= 24; ++i) text += ", stats$sample s" + std::to_string(i);
    return text;
  }

  /// Runs the statement on a thread of its own and cancels it until it has ended.
  void expectCancelled(const std::string& sql) {
    using namespace std::chrono_literals;
    auto state = std::async(std::launch::async, [&] {
      try {
        run(sql);
      } catch (const Cancelled& error) {
        EXPECT_EQ(error.statement(), sql);
        return error.sqlState();
      } catch (const DatabaseError& error) {
        return std::string("no cancellation: ") + error.what();
      }
      return std::string("a result");
    });
    EXPECT_EQ(state.wait_for(50ms), std::future_status::timeout) << "the statement isn't endless";
    const auto begun = std::chrono::steady_clock::now();
    do database_->cancel();
    while (state.wait_for(10ms) == std::future_status::timeout);
    // Far less than a second, with room for a machine that has much else to do.
    EXPECT_LT(std::chrono::steady_clock::now() - begun, 5s);
    EXPECT_EQ(state.get(), "HY008") << sql;
  }

  std::shared_ptr<BackEnd> backEnd_;
  std::unique_ptr<Database> database_;
};

TEST_P(DatabaseConformance, statementThatRunsIsCancelledFromAnotherThread) {
  const std::string counting = "select count(*) from " + endless();
  expectCancelled(counting);
  EXPECT_EQ(one("select name from stats$sample where snap_id = 1"), "first");
  expectCancelled(counting);
  EXPECT_EQ(one("select name from stats$sample where snap_id = 2"), "second");
}

TEST_P(DatabaseConformance, rowsWithoutEndAreCancelledFromAnotherThread) {
  expectCancelled("select s1.snap_id, s2.name from " + endless());
  EXPECT_EQ(one("select name from stats$sample where snap_id = 1"), "first");
}

TEST_P(DatabaseConformance, cancelWhereNoStatementRunsIsHarmless) {
  const std::string sql = "select name from stats$sample where snap_id = 1";
  database_->cancel();
  EXPECT_EQ(one(sql), "first");
  const auto rows = run("select snap_id from stats$sample order by snap_id");
  database_->cancel();
  rows->MoveNext();
  EXPECT_EQ(rows->Fields("snap_id").value(), "2");
  EXPECT_EQ(one(sql), "first");
}

TEST_P(DatabaseConformance, cancelAtAnyMomentLeavesTheNextStatementRight) {
  std::atomic<bool> enough = false;
  std::thread canceller([&] {
    while (!enough) {
      database_->cancel();
      std::this_thread::yield();
    }
  });
  for (int i = 0; i < 100; ++i) {
    try {
      EXPECT_EQ(one("select name from stats$sample where snap_id = 1"), "first");
    } catch (const Cancelled&) {  // as good an end as any
    }
  }
  enough = true;
  canceller.join();
  for (int i = 0; i < 5; ++i) EXPECT_EQ(one("select name from stats$sample where snap_id = 1"), "first");
}

TEST_P(DatabaseConformance, unknownNameOfADatabaseIsRefused) {
  try {
    backEnd_->session().OpenDatabase("NO_SUCH_ALIAS", backEnd_->user() + "/" + backEnd_->password(), 1);
    FAIL() << "a database of no name was opened";
  } catch (const DatabaseError& error) {
    if (backEnd_->namesUnknownAlias()) {
      EXPECT_EQ(error.nativeCode(), 12154);
    }
  }
}

TEST_P(DatabaseConformance, wrongUserOrPasswordIsRefused) {
  if (!backEnd_->checksAccounts()) GTEST_SKIP() << "the driver asks for no account";
  const std::vector<std::string> wrong = {backEnd_->user() + "/" + backEnd_->password() + "x",
                                          backEnd_->user() + "X/" + backEnd_->password(),
                                          backEnd_->user() + "/",
                                          "/" + backEnd_->password(),
                                          "",
                                          "/"};
  for (const std::string& connect : wrong)
    EXPECT_THROW(backEnd_->session().OpenDatabase(backEnd_->databaseName(), connect, 1), DatabaseError)
        << connect;
}

TEST_P(DatabaseConformance, statementThatIsNoQueryIsRefused) {
  for (const char* sql :
       {"delete from stats$sample", "update stats$sample set value = 1", "drop table stats$sample",
        "insert into stats$sample (snap_id) values (9)", "", "   "})
    EXPECT_THROW(run(sql), DatabaseError) << sql;
  EXPECT_EQ(one("select count(*) from stats$sample"), "4");
}

TEST_P(DatabaseConformance, wrongStatementFailsAndTheNextOneRuns) {
  EXPECT_THROW(run("select no_such_column from stats$sample"), DatabaseError);
  EXPECT_THROW(run("select snap_id from stats$no_such_table"), DatabaseError);
  EXPECT_THROW(run("select snap_id from"), DatabaseError);
  EXPECT_EQ(one("select name from stats$sample where snap_id = 1"), "first");
}

TEST_P(DatabaseConformance, failureAtRunTimeBearsItsOracleCode) {
  if (!backEnd_->speaksOracle()) GTEST_SKIP() << "the server has its own SQL";
  try {
    run("select 1 / (value - 10) from stats$sample where snap_id = 1");
    FAIL() << "a division by zero gave a result";
  } catch (const DatabaseError& error) {
    EXPECT_EQ(error.nativeCode(), 1476);
    EXPECT_THAT(error.what(), testing::HasSubstr("ORA-01476"));
  }
  EXPECT_EQ(one("select 1 / value from stats$sample where snap_id = 1"), "0.1");
}

TEST_P(DatabaseConformance, fieldsAreFoundWithoutRegardToCase) {
  const auto rows = run("select snap_id as Some_Alias, name from stats$sample where snap_id = 1");
  EXPECT_EQ(rows->Fields("SOME_ALIAS").value(), "1");
  EXPECT_EQ(rows->Fields("some_alias").value(), "1");
  EXPECT_EQ(rows->Fields("Name").value(), "first");
  EXPECT_THROW(rows->Fields("snap_id"), DatabaseError);
}

TEST_P(DatabaseConformance, columnsStandInTheOrderOfTheSelectListInUpperCase) {
  if (!backEnd_->speaksOracle()) GTEST_SKIP() << "the server has its own SQL";
  const auto rows = run("select name, value as b, snap_id \"Mixed\" from stats$sample");
  EXPECT_THAT(rows->columns(), testing::ElementsAre("NAME", "B", "Mixed"));
}

TEST_P(DatabaseConformance, cursorWalksEveryRowOnce) {
  const auto rows = run("select snap_id from stats$sample order by snap_id");
  EXPECT_EQ(rows->RecordCount(), 4);
  std::string seen;
  while (!rows->Eof()) {
    seen += rows->Fields("snap_id").value();
    rows->MoveNext();
  }
  EXPECT_EQ(seen, "1234");
  EXPECT_TRUE(rows->Eof());
  EXPECT_THROW(rows->Fields("snap_id").value(), DatabaseError);
  EXPECT_EQ(rows->RecordCount(), 4);
}

TEST_P(DatabaseConformance, emptyResultIsAtItsEndAtOnce) {
  const auto rows = run("select snap_id from stats$sample where snap_id = 99");
  EXPECT_TRUE(rows->Eof());
  EXPECT_EQ(rows->RecordCount(), 0);
  EXPECT_THROW(rows->Fields("snap_id").value(), DatabaseError);
}

TEST_P(DatabaseConformance, closedCursorHasNoRows) {
  const auto rows = run("select snap_id from stats$sample");
  rows->Close();
  EXPECT_TRUE(rows->Eof());
  EXPECT_THROW(rows->Fields("snap_id").value(), DatabaseError);
}

TEST_P(DatabaseConformance, numberColumnHasADigitBeforeThePoint) {
  EXPECT_EQ(one("select value from stats$sample where snap_id = 2"), "0.5");
  EXPECT_EQ(one("select -value from stats$sample where snap_id = 2"), "-0.5");
  EXPECT_EQ(one("select value * 20 from stats$sample where snap_id = 2"), "10");
}

TEST_P(DatabaseConformance, numberColumnKeepsAllItsDigits) {
  if (!backEnd_->keepsNumbers()) GTEST_SKIP() << "the driver has binary numbers and columns without a type";
  EXPECT_EQ(one("select value from stats$sample where snap_id = 3"),
            "-1234567890123456789012345678901234567.5");
}

TEST_P(DatabaseConformance, numberInACharacterColumnHasTheServersOwnForm) {
  if (!backEnd_->speaksOracle()) GTEST_SKIP() << "the server has its own SQL";
  EXPECT_EQ(one("select decode(value, 0, ' ', round(value, 2)) from stats$sample where snap_id = 2"), ".5");
  EXPECT_EQ(one("select value || '' from stats$sample where snap_id = 2"), ".5");
}

TEST_P(DatabaseConformance, nullFieldFailsWhenItIsConverted) {
  const auto rows = run("select name, value from stats$sample where snap_id = 3");
  EXPECT_TRUE(rows->Fields("name").isNull());
  EXPECT_THROW(rows->Fields("name").value(), DatabaseError);
  EXPECT_FALSE(rows->Fields("value").isNull());
}

TEST_P(DatabaseConformance, bindsAreNamedAndUsedAnyNumberOfTimes) {
  if (!backEnd_->keepsNumbers()) GTEST_SKIP() << "the driver has binary numbers and columns without a type";
  bind("b1", ServerType::Number, "2");
  EXPECT_EQ(one("select name from stats$sample where snap_id = :B1 and :b1 = 2"), "second");
  EXPECT_EQ(one("select snap_id + :B1 + :B1 from stats$sample where snap_id = 1"), "5");
}

TEST_P(DatabaseConformance, bindThatTheStatementDoesNotNameIsHarmless) {
  bind("B1", ServerType::Number, "1");
  bind("B9", ServerType::String, "unused");
  EXPECT_EQ(one("select name from stats$sample where snap_id = :B1"), "first");
}

TEST_P(DatabaseConformance, bindThatIsMissingFails) {
  EXPECT_THROW(run("select name from stats$sample where snap_id = :B1"), DatabaseError);
}

TEST_P(DatabaseConformance, secondAddOfABindFailsAndSoDoesRemovingNone) {
  bind("B1", ServerType::Number, "1");
  EXPECT_THROW(database_->parameters().Add("b1", 0, 1), DatabaseError);
  database_->parameters().Remove("B1");
  EXPECT_THROW(database_->parameters().Remove("B1"), DatabaseError);
  EXPECT_THROW(database_->parameters()("B1"), DatabaseError);
}

TEST_P(DatabaseConformance, addedBindIsTheNumberZero) {
  database_->parameters().Add("B1", 0, 1);
  EXPECT_EQ(one("select :B1 + 1 from dual"), "1");
}

TEST_P(DatabaseConformance, bindNameInATextOrACommentIsNoBind) {
  EXPECT_EQ(one("select snap_id from stats$sample where name = 'a:B1 ''quoted''' /* :B2 */"), "4");
}

TEST_P(DatabaseConformance, emptyTextBindsNull) {
  bind("T", ServerType::String, "");
  bind("N", ServerType::Number, "");
  EXPECT_EQ(one("select coalesce(:T, 'null') as x from dual"), "null");
  EXPECT_EQ(one("select coalesce(:N, 7) as x from dual"), "7");
  EXPECT_EQ(one("select count(*) from stats$sample where name = :T"), "0");
}

TEST_P(DatabaseConformance, textBindIsConvertedForAComparisonWithANumber) {
  if (!backEnd_->keepsNumbers()) GTEST_SKIP() << "the driver has binary numbers and columns without a type";
  bind("B3", ServerType::String, "2");
  bind("B4", ServerType::String, "3");
  EXPECT_EQ(one("select count(*) from stats$sample where snap_id >= :B3 and snap_id <= :B4"), "2");
}

TEST_P(DatabaseConformance, textBindKeepsItsBlanksAndBytes) {
  bind("T", ServerType::String, "  日本 'x' ");
  EXPECT_EQ(one("select '[' || :T || ']' from dual"), "[  日本 'x' ]");
}

TEST_P(DatabaseConformance, numberBindKeepsAllItsDigits) {
  if (!backEnd_->keepsNumbers()) GTEST_SKIP() << "the driver has binary numbers and columns without a type";
  bind("N", ServerType::Number, "12345678901234567890.25");
  EXPECT_EQ(one("select :N from dual"), "12345678901234567890.25");
}

TEST_P(DatabaseConformance, numberBindThatIsNoNumberFails) {
  EXPECT_THROW(bind("N", ServerType::Number, "abc"), DatabaseError);
}

TEST_P(DatabaseConformance, sameStatementRunsWithOtherBinds) {
  if (!backEnd_->keepsNumbers()) GTEST_SKIP() << "the driver has binary numbers and columns without a type";
  bind("B1", ServerType::Number, "1");
  const std::string sql = "select value from stats$sample where snap_id = :B1";
  EXPECT_EQ(one(sql), "10");
  database_->parameters()("B1").value("2");
  EXPECT_EQ(one(sql), "0.5");
  database_->parameters()("B1").serverType(ServerType::String);
  EXPECT_EQ(one(sql), "0.5");
  database_->parameters()("B1").value("1.5");
  EXPECT_EQ(run(sql)->RecordCount(), 0);
}

TEST_P(DatabaseConformance, twoCursorsOfOneStatementStandApart) {
  const std::string sql = "select snap_id from stats$sample order by snap_id";
  const auto first = run(sql);
  first->MoveNext();
  const auto second = run(sql);
  EXPECT_EQ(first->Fields("snap_id").value(), "2");
  EXPECT_EQ(second->Fields("snap_id").value(), "1");
}

TEST_P(DatabaseConformance, dateReadsAsItsFormatTells) {
  if (!backEnd_->hasToChar()) GTEST_SKIP() << "the server has no TO_CHAR";
  EXPECT_EQ(one("select to_char(taken, 'YYYY-MM-DD HH24:MI:SS') from stats$sample where snap_id = 1"),
            "2020-01-31 23:59:59");
  EXPECT_EQ(one("select to_char(taken, 'YYYY-MM-DD HH24:MI:SS') from stats$sample where snap_id = 4"),
            "1969-12-31 12:00:00");
  if (!backEnd_->speaksOracle()) return;
  EXPECT_EQ(one("select round((e.taken - b.taken) * 86400, 0) from stats$sample b, stats$sample e "
                "where b.snap_id = 1 and e.snap_id = 2"),
            "2419201");
}

TEST_P(DatabaseConformance, rawReadsAsUpperCaseHex) {
  if (backEnd_->speaksOracle()) {
    EXPECT_EQ(one("select rawtohex(address) from stats$sample where snap_id = 1"), "0AFF");
  }
  EXPECT_EQ(one("select address from stats$sample where snap_id = 1"), "0AFF");
}

TEST_P(DatabaseConformance, emptyLiteralIsNull) {
  if (!backEnd_->speaksOracle()) GTEST_SKIP() << "the server has its own SQL";
  EXPECT_EQ(one("select count(*) from dual where '' is null"), "1");
  EXPECT_TRUE(run("select '' as x from dual")->Fields("x").isNull());
}

TEST_P(DatabaseConformance, nullsSortLastAscendingAndFirstDescending) {
  if (!backEnd_->keepsNumbers()) GTEST_SKIP() << "the driver has binary numbers and columns without a type";
  const auto up = run("select snap_id from stats$sample order by value");
  EXPECT_EQ(up->Fields("snap_id").value(), "3");
  const auto down = run("select snap_id from stats$sample order by value desc");
  EXPECT_EQ(down->Fields("snap_id").value(), "4");
}

}  // namespace kestrelix::conformance
