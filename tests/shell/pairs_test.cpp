// The list of snapshot pairs: forming, judging and showing them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "shell/ModuleLoadCommon.h"
#include "support/recording_boxes.h"
#include "support/snapshots.h"

namespace kestrelix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing_support::FakeDatabase;
using testing_support::FakeServer;
using testing_support::laySnapshots;
using testing_support::RecordingBoxes;

class Pairs : public testing::Test {
 protected:
  Pairs() { workspace.repository.gOraDatabase = std::make_unique<FakeDatabase>(server); }

  bool load(const std::vector<testing_support::SnapshotRow>& snapshots) {
    laySnapshots(server, snapshots);
    return gDispSnapId_Load(workspace, "1001", "1", false);
  }
  std::string status(int i) const { return workspace.repository.gSnapId->REPORT_STATUS(i); }
  const ListBox& list() const { return workspace.controls.ListSnapId; }

  FakeServer server;
  RecordingBoxes boxes;
  Workspace workspace{boxes};
};

TEST_F(Pairs, threeSnapshotsGiveTwoPairsThatShareTheSecond) {
  ASSERT_TRUE(
      load({{"1", "2026-01-05 10:00:00"}, {"2", "2026-01-05 11:00:00"}, {"3", "2026-01-05 12:00:00"}}));
  ASSERT_EQ(workspace.repository.gSnapId->rownum(), 2);
  EXPECT_EQ(workspace.repository.gSnapId->START_SNAP_ID(0), "1");
  EXPECT_EQ(workspace.repository.gSnapId->END_SNAP_ID(0), "2");
  EXPECT_EQ(workspace.repository.gSnapId->START_SNAP_ID(1), "2");
  EXPECT_EQ(workspace.repository.gSnapId->END_SNAP_ID(1), "3");
}

TEST_F(Pairs, anotherLevelIsToldAndARestartOutweighsIt) {
  ASSERT_TRUE(load({{"1", "2026-01-05 10:00:00", "5"},
                    {"2", "2026-01-05 11:00:00", "7"},
                    {"3", "2026-01-05 12:00:00", "5", "2026-01-05 11:30:00"}}));
  EXPECT_EQ(status(0), "SNAP_LEVEL NG");
  EXPECT_EQ(status(1), "DB RESTART");
}

TEST_F(Pairs, aStartUpExactlyAtTheStartSnapshotIsNoRestart) {
  ASSERT_TRUE(load({{"1", "2026-01-05 10:00:00"}, {"2", "2026-01-05 11:00:00", "7", "2026-01-05 10:00:00"}}));
  EXPECT_EQ(status(0), "OK");
}

TEST_F(Pairs, aStartUpOneSecondLaterIsARestart) {
  ASSERT_TRUE(load({{"1", "2026-01-05 10:00:00"}, {"2", "2026-01-05 11:00:00", "7", "2026-01-05 10:00:01"}}));
  EXPECT_EQ(status(0), "DB RESTART");
}

TEST_F(Pairs, thePairAfterARestartIsGoodAgain) {
  const std::string restart = "2026-01-05 10:30:00";
  ASSERT_TRUE(load({{"1", "2026-01-05 10:00:00"},
                    {"2", "2026-01-05 11:00:00", "7", restart},
                    {"3", "2026-01-05 12:00:00", "7", restart}}));
  EXPECT_EQ(status(0), "DB RESTART");
  EXPECT_EQ(status(1), "OK");
}

TEST_F(Pairs, neighboursFormAPairOverAGapInTheIds) {
  ASSERT_TRUE(load({{"1", "2026-01-05 10:00:00"}, {"17", "2026-01-06 02:00:00"}}));
  EXPECT_EQ(workspace.repository.gSnapId->END_SNAP_ID(0), "17");
  EXPECT_EQ(status(0), "OK");
}

TEST_F(Pairs, lineShowsTimesIdsAndStatusInFixedColumns) {
  ASSERT_TRUE(load({{"1", "2026-01-05 10:00:00"}, {"2", "2026-01-05 11:00:00"}}));
  EXPECT_EQ(list().List(0),
            " 2026-01-05 10:00:00"
            "   "
            " 2026-01-05 11:00:00"
            "         1"
            "         2"
            "   "
            "OK             ");
  EXPECT_EQ(list().ItemData(0), 0);
}

TEST_F(Pairs, anIdOfTenDigitsFillsItsColumn) {
  ASSERT_TRUE(load({{"999999999", "2026-01-05 10:00:00"}, {"1000000000", "2026-01-05 11:00:00"}}));
  EXPECT_EQ(list().List(0),
            " 2026-01-05 10:00:00    2026-01-05 11:00:00 9999999991000000000   OK             ");
}

TEST_F(Pairs, anIdOfElevenDigitsFailsTheLoad) {
  EXPECT_THROW(load({{"9999999999", "2026-01-05 10:00:00"}, {"10000000000", "2026-01-05 11:00:00"}}),
               std::length_error);
}

TEST_F(Pairs, headingEndsItsColumnsWhereTheLinesDo) {
  // START ID ends with the 53rd character of both, END ID with the 63rd.
  ASSERT_TRUE(load({{"1", "2026-01-05 10:00:00"}, {"2", "2026-01-05 11:00:00"}}));
  EXPECT_EQ(kSnapIdHeading.substr(45, 8), "START ID");
  EXPECT_EQ(list().List(0).substr(45, 8), "       1");
  EXPECT_EQ(kSnapIdHeading.substr(57, 6), "END ID");
  EXPECT_EQ(list().List(0).substr(57, 6), "     2");
  EXPECT_EQ(kSnapIdHeading.substr(67, 6), "STATUS");
}

TEST_F(Pairs, oneSnapshotIsTooFew) {
  EXPECT_FALSE(load({{"1", "2026-01-05 10:00:00"}}));
  EXPECT_THAT(boxes.shown, ElementsAre("[Critical] SNAP_IDが2件未満でした"));
}

TEST_F(Pairs, noSnapshotIsTooFew) {
  EXPECT_FALSE(load({}));
  EXPECT_THAT(boxes.shown, ElementsAre("[Critical] SNAP_IDが2件未満でした"));
}

TEST_F(Pairs, failedQueryShowsThreeBoxesFromTheInsideOut) {
  server.answer(testing_support::kSnapshots).fails = true;
  EXPECT_FALSE(gDispSnapId_Load(workspace, "1001", "1", false));
  EXPECT_THAT(boxes.shown, ElementsAre("[Critical] (clsSnapId){getSNAP_ID} Error",
                                       "[Critical] (clsSnapId){getSTART_END_SNAP_ID} Error",
                                       "[Critical] SNAP_IDの取得に失敗しました"));
  EXPECT_THAT(boxes.errors, ElementsAre("table or view does not exist"));
}

TEST_F(Pairs, bindsThatAFailedLoadLeftDoNotHinderTheNext) {
  server.answer(testing_support::kSnapshots).fails = true;
  EXPECT_FALSE(gDispSnapId_Load(workspace, "1001", "1", false));
  EXPECT_EQ(workspace.repository.gOraDatabase->parameters().count(), 4u);
  server.answer(testing_support::kSnapshots).fails = false;
  boxes.shown.clear();
  EXPECT_TRUE(load({{"1", "2026-01-05 10:00:00"}, {"2", "2026-01-05 11:00:00"}}));
  EXPECT_THAT(boxes.shown, IsEmpty());
}

TEST_F(Pairs, aNullTimeIsTheGettersBox) {
  laySnapshots(server, {{"1", "2026-01-05 10:00:00"}});
  server.answers.back().rows.push_back({"1001", "1", std::nullopt, "2", "7", "2000-01-01 00:00:00"});
  EXPECT_FALSE(gDispSnapId_Load(workspace, "1001", "1", false));
  EXPECT_EQ(boxes.shown.front(), "[Critical] (clsSnapId){getSNAP_ID} Error");
}

TEST_F(Pairs, idsAreBoundAsTextsAndEmptyWithoutARange) {
  ASSERT_TRUE(load({{"1", "2026-01-05 10:00:00"}, {"2", "2026-01-05 11:00:00"}}));
  const auto& binds = server.asked.back().binds;
  EXPECT_EQ(binds.at("B1"), std::pair(ServerType::Number, std::string("1001")));
  EXPECT_EQ(binds.at("B2"), std::pair(ServerType::Number, std::string("1")));
  EXPECT_EQ(binds.at("B3"), std::pair(ServerType::String, std::string()));
  EXPECT_EQ(binds.at("B4"), std::pair(ServerType::String, std::string()));
  EXPECT_EQ(workspace.repository.gOraDatabase->parameters().count(), 0u) << "they are taken off again";
}

TEST_F(Pairs, aRangeAsksWithItsIds) {
  ASSERT_TRUE(
      load({{"1", "2026-01-05 10:00:00"}, {"2", "2026-01-05 11:00:00"}, {"3", "2026-01-05 12:00:00"}}));
  workspace.repository.gSnapRange.Initialize(*workspace.repository.gSnapId);
  Failures failures;
  workspace.repository.gSnapRange.gSetStartId(*workspace.repository.gSnapId, 1, failures);
  laySnapshots(server, {{"2", "2026-01-05 11:00:00"}, {"3", "2026-01-05 12:00:00"}},
               testing_support::kRangeOfSnapshots);
  ASSERT_TRUE(gDispSnapId_Load(workspace, "1001", "1", true));
  EXPECT_EQ(server.asked.back().binds.at("B3").second, "2");
  EXPECT_EQ(server.asked.back().binds.at("B4").second, "3");
  EXPECT_EQ(list().ListCount(), 1);
}

}  // namespace
}  // namespace kestrelix
