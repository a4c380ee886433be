#include "platform/running_statement.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "platform/cancelled.h"

namespace kestrelix {
namespace {

using Call = RunningStatement::Call;

TEST(RunningStatement, aCancelBeforeTheStatementIsForgotten) {
  RunningStatement statement;
  statement.cancel();
  const RunningStatement::Run run(statement);
  EXPECT_FALSE(statement.cancelled());
  EXPECT_NO_THROW(statement.check("select"));
}

TEST(RunningStatement, aCancelBetweenTwoCallsEndsTheStatementAtTheNext) {
  RunningStatement statement;
  int stops = 0;
  const auto stop = [&] { ++stops; };
  const RunningStatement::Run run(statement);
  { const Call call(statement, stop, "select 1"); }
  statement.cancel();
  EXPECT_EQ(stops, 0) << "no call was there to be stopped";
  try {
    const Call call(statement, stop, "select 1");
    FAIL() << "a cancelled statement goes on";
  } catch (const Cancelled& error) {
    EXPECT_EQ(error.sqlState(), "HY008");
    EXPECT_EQ(error.statement(), "select 1");
  }
  EXPECT_THROW(statement.check("select 1"), Cancelled);
}

TEST(RunningStatement, aCancelDuringACallStopsItEachTime) {
  RunningStatement statement;
  int stops = 0;
  const RunningStatement::Run run(statement);
  const Call call(
      statement, [&] { ++stops; }, "select 1");
  statement.cancel();
  statement.cancel();
  EXPECT_EQ(stops, 2);
  EXPECT_TRUE(statement.cancelled());
}

TEST(RunningStatement, theNextStatementKnowsNothingOfTheCancelOfTheFormer) {
  RunningStatement statement;
  {
    const RunningStatement::Run run(statement);
    statement.cancel();
  }
  EXPECT_FALSE(statement.cancelled());
  statement.cancel();
  const RunningStatement::Run run(statement);
  EXPECT_NO_THROW(Call(
      statement, [] {}, "select 2"));
}

TEST(RunningStatement, aStatementWithinOneIsCancelledWithIt) {
  RunningStatement statement;
  const RunningStatement::Run outer(statement);
  {
    const RunningStatement::Run inner(statement);
    statement.cancel();
  }
  EXPECT_TRUE(statement.cancelled());
}

TEST(RunningStatement, aStopNeverRunsOutsideOfItsCall) {
  RunningStatement statement;
  std::atomic<bool> inCall = false;
  std::atomic<bool> enough = false;
  std::atomic<int> outside = 0;
  std::atomic<int> stops = 0;
  std::thread canceller([&] {
    while (!enough) statement.cancel();
  });
  const auto stop = [&] {
    ++stops;
    if (!inCall) ++outside;
    std::this_thread::yield();
    if (!inCall) ++outside;
  };
  while (stops < 1000) {
    const RunningStatement::Run run(statement);
    inCall = true;
    try {
      const Call call(statement, stop, "select 1");
      for (int i = 0; i < 100 && !statement.cancelled(); ++i) std::this_thread::yield();
    } catch (const Cancelled&) {
    }
    inCall = false;
  }
  enough = true;
  canceller.join();
  EXPECT_EQ(outside, 0);
}

}  // namespace
}  // namespace kestrelix
