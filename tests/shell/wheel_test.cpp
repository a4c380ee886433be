// The wheel, in both windows.
#include "shell/ModuleCommon.h"
#include "shell/main_fixture.h"

namespace kestrelix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing_support::MainTest;
using testing_support::ShellTest;

constexpr int kTowardsUser = -1;
constexpr int kAway = 1;

class MainWheel : public MainTest {
 protected:
  MainWheel() { load(); }
  Grid& grid = controls.MSFlexGridMain;
};

TEST_F(MainWheel, aGridOfSeventeenRowsStaysAndOneOfEighteenMoves) {
  grid.Rows(17);
  main.m_CWheel_MouseWheel(kTowardsUser);
  EXPECT_EQ(grid.TopRow(), 1);
  grid.Rows(18);
  main.m_CWheel_MouseWheel(kTowardsUser);
  EXPECT_EQ(grid.TopRow(), 2);
}

TEST_F(MainWheel, aHorizontalScrollBarCostsARow) {
  grid.Rows(17);
  grid.ColWidth(1, 200000);
  main.m_CWheel_MouseWheel(kTowardsUser);
  EXPECT_EQ(grid.TopRow(), 2);
  grid.Rows(16);
  grid.TopRow(1);
  main.m_CWheel_MouseWheel(kTowardsUser);
  EXPECT_EQ(grid.TopRow(), 1);
}

TEST_F(MainWheel, atTheTopATurnAwayDoesNothing) {
  grid.Rows(40);
  main.m_CWheel_MouseWheel(kAway);
  EXPECT_EQ(grid.TopRow(), 1);
  grid.TopRow(3);
  main.m_CWheel_MouseWheel(kAway);
  EXPECT_EQ(grid.TopRow(), 2);
}

TEST_F(MainWheel, atTheEndTheGridKeepsItsLastPage) {
  grid.PageRows(16);
  grid.Rows(20);
  for (int i = 0; i < 10; ++i) main.m_CWheel_MouseWheel(kTowardsUser);
  EXPECT_EQ(grid.TopRow(), 4) << "rows 4 to 19";
  main.m_CWheel_MouseWheel(kAway);
  EXPECT_EQ(grid.TopRow(), 3) << "the next turn back moves at once";
}

TEST_F(MainWheel, movesAllThreeGridsShownOrNotByTheMainGridsLimit) {
  controls.MSFlexGridSql.Rows(30);
  controls.MSFlexGridPlan.Rows(17);
  grid.Rows(30);
  main.ShowGraphPanel(true);
  main.m_CWheel_MouseWheel(kTowardsUser);
  EXPECT_EQ(grid.TopRow(), 2);
  EXPECT_EQ(controls.MSFlexGridSql.TopRow(), 2);
  EXPECT_EQ(controls.MSFlexGridPlan.TopRow(), 1);
  grid.ColWidth(1, 200000);
  main.m_CWheel_MouseWheel(kTowardsUser);
  EXPECT_EQ(controls.MSFlexGridPlan.TopRow(), 2);
}

TEST_F(MainWheel, aTurnOverTheWindowReachesItsHandler) {
  grid.Rows(40);
  modWheelMouse::wheelTurned(1, -360);
  EXPECT_EQ(grid.TopRow(), 2) << "one row, whatever the size of the turn";
  modWheelMouse::wheelTurned(2, -120);
  EXPECT_EQ(grid.TopRow(), 2) << "another window's";
  main.Unload();
  modWheelMouse::wheelTurned(1, -120);
  EXPECT_EQ(grid.TopRow(), 2);
}

class LoginWheel : public ShellTest {};

TEST_F(LoginWheel, movesFromNineRowsOn) {
  FormLogin login(workspace, services);
  Grid& grid = login.controls.MSFlexGridLogin;
  grid.Rows(8);
  login.m_CWheel_MouseWheel(kTowardsUser);
  EXPECT_EQ(grid.TopRow(), 1);
  grid.Rows(9);
  login.m_CWheel_MouseWheel(kTowardsUser);
  EXPECT_EQ(grid.TopRow(), 2);
  login.m_CWheel_MouseWheel(kAway);
  login.m_CWheel_MouseWheel(kAway);
  EXPECT_EQ(grid.TopRow(), 1);
}

class WidthScroll : public ShellTest {
 protected:
  bool scrolls(int twips) {
    Grid& grid = workspace.controls.MSFlexGridMain;
    grid.Cols(2);
    grid.ColWidth(0, 0);
    grid.ColWidth(1, twips);
    return gWidthScrollCheck(grid, boxes);
  }
};

TEST_F(WidthScroll, holdsTheColumnsAgainstTheGridsWidth) {
  // 11580 * 14.48 = 167678.4, and half a unit more is 167685.64.
  EXPECT_FALSE(scrolls(500));
  EXPECT_FALSE(scrolls(167685));
  EXPECT_TRUE(scrolls(167686));
  EXPECT_THAT(boxes.shown, IsEmpty());
}

TEST(WheelMouse, oneWindowHasOneObject) {
  clsWheelMouse first;
  clsWheelMouse second;
  EXPECT_FALSE(first.Initialize(0));
  EXPECT_TRUE(first.Initialize(77));
  EXPECT_FALSE(first.Initialize(78));
  EXPECT_FALSE(second.Initialize(77));
  EXPECT_EQ(first.OwnerhWnd(), 77u);
  first.Terminate();
  EXPECT_TRUE(second.Initialize(77));
}

TEST(WheelMouse, destroyingAnActiveObjectFreesItsWindow) {
  {
    clsWheelMouse gone;
    ASSERT_TRUE(gone.Initialize(77));
  }
  clsWheelMouse next;
  EXPECT_TRUE(next.Initialize(77));
}

TEST(WheelMouse, kindsRaiseTheirEvents) {
  clsWheelMouse wheel;
  std::vector<std::string> events;
  wheel.MouseWheel.connect([&](int direction) { events.push_back("wheel " + std::to_string(direction)); });
  wheel.MiddleButtonDown.connect([&](int x, int y) { events.push_back("down " + std::to_string(x + y)); });
  wheel.MiddleButtonUp.connect([&](int x, int y) { events.push_back("up " + std::to_string(x + y)); });
  wheel.raiseMyEvent(3, -1, 0, 0);
  wheel.raiseMyEvent(1, 0, 150, 30);
  wheel.raiseMyEvent(2, 0, 15, 45);
  wheel.raiseMyEvent(4, 1, 1, 1);
  EXPECT_THAT(events, ElementsAre("wheel -1", "down 180", "up 60"));
}

TEST(WheelMouse, aTurnWhileAHandlerRunsIsPassedOver) {
  clsWheelMouse first;
  clsWheelMouse second;
  first.Initialize(77);
  second.Initialize(78);
  int turns = 0;
  first.MouseWheel.connect([&](int) {
    ++turns;
    modWheelMouse::wheelTurned(77, 120);
    modWheelMouse::wheelTurned(78, 120);
  });
  second.MouseWheel.connect([&](int) { ++turns; });
  modWheelMouse::wheelTurned(77, 120);
  EXPECT_EQ(turns, 1);
  modWheelMouse::wheelTurned(78, 120);
  EXPECT_EQ(turns, 2) << "and the next one counts again";
}

}  // namespace
}  // namespace kestrelix
