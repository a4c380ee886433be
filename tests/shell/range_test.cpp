// The range of snapshots and what narrows it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "shell/ModuleLoadCommon.h"
#include "shell/ModuleRangeCommon.h"
#include "support/recording_boxes.h"
#include "support/snapshots.h"

namespace kestrelix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing_support::FakeDatabase;
using testing_support::FakeServer;
using testing_support::layInstance;
using testing_support::laySnapshots;
using testing_support::RecordingBoxes;
using testing_support::SnapshotRow;

/// Snapshots 1 to 4, so pairs 1-2, 2-3, 3-4.
const std::vector<SnapshotRow> kFour{{"1", "2026-01-05 10:00:00"},
                                     {"2", "2026-01-05 11:00:00"},
                                     {"3", "2026-01-05 12:00:00"},
                                     {"4", "2026-01-05 13:00:00"}};

class Range : public testing::Test {
 protected:
  Range() {
    workspace.repository.gOraDatabase = std::make_unique<FakeDatabase>(server);
    workspace.unloadMain = [this] { ++unloads; };
    layInstance(server, "1001", "10.2.0.4.0", "1");
    laySnapshots(server, kFour);
    gDispDbInstance_Load(workspace);
    workspace.controls.ComboDbInstance.ListIndex(0);
    workspace.controls.ListSection.AddItem("ListSection");
    workspace.controls.ListSection.AddItem("Load Profile");
    workspace.controls.ListSnapId.Click.connect([this] { ++pairClicks; });
    gFrameRangeDataInit(workspace);
  }

  /// The server's answer to the next question with a range: the snapshots from `first` to `last`.
  void serverHas(int first, int last) {
    laySnapshots(server, {kFour.begin() + first - 1, kFour.begin() + last},
                 testing_support::kRangeOfSnapshots);
  }
  ListBox& pairs() { return workspace.controls.ListSnapId; }

  FakeServer server;
  RecordingBoxes boxes;
  Workspace workspace{boxes};
  int pairClicks = 0;
  int unloads = 0;
};

TEST_F(Range, choosingAnInstanceTakesTheWholeListAndItsFirstRows) {
  EXPECT_EQ(pairs().ListCount(), 3);
  EXPECT_EQ(pairs().ListIndex(), 0);
  EXPECT_EQ(workspace.controls.ListSection.ListIndex(), 0);
  EXPECT_EQ(pairClicks, 1);
  EXPECT_EQ(workspace.repository.gSnapRange.GET_START_ID(), "1");
  EXPECT_EQ(workspace.repository.gSnapRange.GET_END_ID(), "4");
}

TEST_F(Range, startMakesTheSelectedPairTheFirst) {
  pairs().ListIndex(1);
  serverHas(2, 4);
  EXPECT_TRUE(gFrameRangeSetStartId(workspace));
  EXPECT_EQ(server.asked.back().binds.at("B3").second, "2");
  EXPECT_EQ(server.asked.back().binds.at("B4").second, "4");
  EXPECT_EQ(pairs().ListCount(), 2);
  EXPECT_EQ(pairs().ListIndex(), 0);
  EXPECT_EQ(workspace.repository.gSnapRange.GET_START_ID(), "2");
}

TEST_F(Range, endMakesTheSelectedPairTheLast) {
  pairs().ListIndex(1);
  serverHas(1, 3);
  EXPECT_TRUE(gFrameRangeSetEndId(workspace));
  EXPECT_EQ(server.asked.back().binds.at("B3").second, "1");
  EXPECT_EQ(server.asked.back().binds.at("B4").second, "3");
  EXPECT_EQ(pairs().ListCount(), 2);
  EXPECT_EQ(workspace.repository.gSnapRange.GET_END_ID(), "3");
}

TEST_F(Range, startOnTheLastPairLeavesOne) {
  pairs().ListIndex(2);
  serverHas(3, 4);
  EXPECT_TRUE(gFrameRangeSetStartId(workspace));
  EXPECT_EQ(pairs().ListCount(), 1);
}

TEST_F(Range, endOnTheFirstPairLeavesOneThatCannotBeNarrowed) {
  serverHas(1, 2);
  EXPECT_TRUE(gFrameRangeSetEndId(workspace));
  ASSERT_EQ(pairs().ListCount(), 1);
  for (auto* narrow : {&gFrameRangeSetStartId, &gFrameRangeSetEndId}) {
    EXPECT_TRUE((*narrow)(workspace));
    EXPECT_EQ(server.asked.back().binds.at("B3").second, "1");
    EXPECT_EQ(server.asked.back().binds.at("B4").second, "2");
    EXPECT_EQ(pairs().ListCount(), 1);
  }
}

TEST_F(Range, narrowingKeepsTheSectionAndChoosingTheInstanceAgainUndoesIt) {
  workspace.controls.ListSection.ListIndex(1);
  pairs().ListIndex(1);
  serverHas(2, 4);
  gFrameRangeSetStartId(workspace);
  EXPECT_EQ(workspace.controls.ListSection.ListIndex(), 1);
  gFrameRangeDataInit(workspace);
  EXPECT_EQ(pairs().ListCount(), 3);
  EXPECT_EQ(workspace.controls.ListSection.ListIndex(), 0);
  EXPECT_EQ(workspace.repository.gSnapRange.GET_START_ID(), "1");
}

TEST_F(Range, withoutASelectedPairTheRangesMemberShowsItsBox) {
  pairs().ListIndex(-1);
  Failures failures;
  Repository& repository = workspace.repository;
  EXPECT_FALSE(repository.gSnapRange.gSetStartId(*repository.gSnapId, pairs().ListIndex(), failures));
  EXPECT_FALSE(repository.gSnapRange.gSetEndId(*repository.gSnapId, pairs().ListIndex(), failures));
  showFailures(boxes, failures);
  EXPECT_THAT(boxes.shown, ElementsAre("[Critical] (clsSnapRange){gSetStartId} Error",
                                       "[Critical] (clsSnapRange){gSetEndId} Error"));
}

TEST_F(Range, aFailedLoadUnloadsTheWindowAndSelectsNothing) {
  server.answer(testing_support::kRangeOfSnapshots).fails = true;
  const int clicks = pairClicks;
  EXPECT_FALSE(gFrameRangeSetStartId(workspace));
  EXPECT_EQ(unloads, 1);
  EXPECT_EQ(pairClicks, clicks);
  EXPECT_EQ(boxes.shown.back(), "[Critical] SNAP_IDの取得に失敗しました");
}

TEST_F(Range, aShrunkRepositoryUnloadsTheWindow) {
  laySnapshots(server, {kFour.begin(), kFour.begin() + 1});
  EXPECT_FALSE(gFrameRangeDataInit(workspace));
  EXPECT_EQ(unloads, 1);
  EXPECT_THAT(boxes.shown, ElementsAre("[Critical] SNAP_IDが2件未満でした"));
}

TEST_F(Range, anIdThatIsWiderThanItsColumnIsTheFunctionsBoxAndTheWindowStays) {
  laySnapshots(server, {{"9999999999", "2026-01-05 10:00:00"}, {"10000000000", "2026-01-05 11:00:00"}});
  EXPECT_FALSE(gFrameRangeDataInit(workspace));
  EXPECT_THAT(boxes.shown, ElementsAre("[Critical] (ModuleRangeCommon){gFrameRangeDataInit} Error"));
  EXPECT_THAT(boxes.errors, ElementsAre("the id 10000000000 is wider than its column"));
  EXPECT_EQ(unloads, 0);
}

TEST_F(Range, withoutAnInstanceTheFunctionShowsItsBoxAndTheWindowStays) {
  workspace.controls.ComboDbInstance.ListIndex(-1);
  EXPECT_FALSE(gFrameRangeDataInit(workspace));
  EXPECT_FALSE(gFrameRangeSetStartId(workspace));
  EXPECT_FALSE(gFrameRangeSetEndId(workspace));
  EXPECT_THAT(boxes.shown, ElementsAre("[Critical] (ModuleRangeCommon){gFrameRangeDataInit} Error",
                                       "[Critical] (ModuleRangeCommon){gFrameRangeSetStartId} Error",
                                       "[Critical] (ModuleRangeCommon){gFrameRangeSetEndId} Error"));
  EXPECT_EQ(unloads, 0);
}

}  // namespace
}  // namespace kestrelix
