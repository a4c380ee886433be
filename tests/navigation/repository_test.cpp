// The repository without a window: what its loaders give, and spans of its snapshots.
#include "navigation/repository.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/snapshots.h"

namespace kestrelix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using namespace testing_support;

std::vector<std::string> boxes(const Failures& failures) {
  std::vector<std::string> texts;
  for (const Failure& failure : failures) texts.push_back(failure.box);
  return texts;
}

class Repositories : public testing::Test {
 protected:
  Repositories() {
    server.accounts = {"DEMO PERFSTAT/perfstat"};
    repository.gOraDatabase = std::make_unique<FakeDatabase>(server);
  }

  Repository::MakeSession session() {
    return [this] { return std::make_unique<FakeSession>(server); };
  }

  FakeServer server;
  Repository repository;
};

TEST_F(Repositories, aLoginThatIsRefusedLeavesNoConnection) {
  EXPECT_THAT(boxes(repository.open(session(), "DEMO", "PERFSTAT/wrong")),
              ElementsAre("(ModuleCommon){OPEN_Conect} Error"));
  EXPECT_EQ(repository.gOraDatabase, nullptr);
  EXPECT_THAT(repository.open(session(), "DEMO", "PERFSTAT/perfstat"), IsEmpty());
  EXPECT_NE(repository.gOraDatabase, nullptr);
}

TEST_F(Repositories, withoutAClientThereIsNoConnection) {
  const auto none = [] { return std::unique_ptr<Session>(); };
  const Failures failures = repository.open(none, "DEMO", "PERFSTAT/perfstat");
  EXPECT_THAT(boxes(failures), ElementsAre("(ModuleCommon){OPEN_Conect} Error"));
  EXPECT_EQ(failures.front().underlying, "the client library gave no session");
}

TEST_F(Repositories, noInstanceAtAllIsAFailure) {
  server.answer(kInstances).columns = {"DBID"};
  EXPECT_THAT(boxes(repository.loadInstances()), ElementsAre("有効なDB_INSTANCE情報が存在しませんでした"));
}

TEST_F(Repositories, instancesThatCannotBeReadAreTwoFailures) {
  EXPECT_THAT(boxes(repository.loadInstances()),
              ElementsAre("(clsDbInstance){getDB_INSTANCE} Error", "DB_INSTANCEの取得に失敗しました"));
}

TEST_F(Repositories, oneSnapshotMakesNoPair) {
  laySnapshots(server, {{"1", "2026-01-05 10:00:00"}});
  EXPECT_THAT(boxes(repository.loadPairs("1001", "1", false)), ElementsAre("SNAP_IDが2件未満でした"));
}

/// Pairs 1-2, 2-3 (of another level), 3-4 (across a restart), 4-5.
class Spans : public Repositories {
 protected:
  Spans() {
    laySnapshots(server, {{"1", "2026-01-05 10:00:00"},
                          {"2", "2026-01-05 11:00:00"},
                          {"3", "2026-01-05 12:00:00", "5"},
                          {"4", "2026-01-05 13:00:00", "5", "2026-01-05 12:30:00"},
                          {"5", "2026-01-05 14:00:00", "5", "2026-01-05 12:30:00"}});
    EXPECT_THAT(repository.loadPairs("1001", "1", false), IsEmpty());
  }
  const clsSnapId& pairs() const { return *repository.gSnapId; }
};

TEST_F(Spans, aSpanIsOnePairFromTheFirstStartToTheLastEnd) {
  const auto span = pairs().span(0, 1);
  ASSERT_TRUE(span);
  ASSERT_EQ(span->rownum(), 1);
  EXPECT_EQ(span->START_SNAP_ID(0), "1");
  EXPECT_EQ(span->END_SNAP_ID(0), "3");
  EXPECT_EQ(span->keys(0).startTime, "2026-01-05 10:00:00");
  EXPECT_EQ(span->keys(0).endTime, "2026-01-05 12:00:00");
  EXPECT_EQ(span->REPORT_STATUS(0), kStatusLevel) << "levels 7 and 5 at its ends";
}

TEST_F(Spans, aSpanOfOnePairIsThatPair) {
  const auto span = pairs().span(3, 3);
  ASSERT_TRUE(span);
  EXPECT_EQ(span->START_SNAP_ID(0), "4");
  EXPECT_EQ(span->REPORT_STATUS(0), kStatusOk);
}

TEST_F(Spans, noSpanLiesAcrossARestart) {
  EXPECT_FALSE(pairs().span(2, 2));
  EXPECT_FALSE(pairs().span(0, 3));
  EXPECT_FALSE(pairs().span(1, 2));
}

TEST_F(Spans, pairsOffTheListAreRefused) {
  EXPECT_THROW(static_cast<void>(pairs().span(3, 4)), std::out_of_range);
  EXPECT_THROW(static_cast<void>(pairs().span(-1, 0)), std::out_of_range);
}

}  // namespace
}  // namespace kestrelix
