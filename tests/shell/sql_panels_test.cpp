// The main window with the program's own operations, on a small repository.
#include "repository_file/local_session.h"
#include "sections/SectionList.h"
#include "shell/FormMain.h"
#include "shell/report_operations.h"
#include "shell/shell_fixture.h"
#include "support/sql_repository.h"

namespace kestrelix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using namespace testing_support;

class SqlPanelsOfTheWindow : public ShellTest {
 protected:
  SqlPanelsOfTheWindow() {
    repository.usualTotals();
    repository.addStatementWithPlan();
    services.sections = sectionList();
    services.reader = &directReader();
    workspace.repository.gOraSession = repository_file::localSession(repository.write());
    workspace.repository.gOraDatabase =
        workspace.repository.gOraSession->OpenDatabase("FIXTURE", "PERFSTAT/perfstat", kDatabaseOptions);
    main.Load(1, login);
    for (int i = 0; i < controls.ListSection.ListCount(); ++i)
      if (controls.ListSection.List(i) == "SQL ordered by Gets TOTAL") controls.ListSection.ListIndex(i);
    // The start page's "Snapshot" has no sessions to show in this repository.
    boxes.shown.clear();
    controls.ListSnapId.ListIndex(0);
    controls.MSFlexGridMain.userClick(1, 2);
  }

  static constexpr int kKeyG = 71;
  static constexpr int kKeyP = 80;
  static constexpr int kKeyS = 83;

  SqlRepository repository{"11"};
  FormLogin login{workspace, services};
  FormMain main{workspace, services, reportOperations(workspace)};
  MainControls& controls = workspace.controls;
};

TEST_F(SqlPanelsOfTheWindow, ctrlSShowsTheTextOfTheCurrentRow) {
  EXPECT_TRUE(main.KeyDown(kKeyS, FormMain::kCtrlAlone));
  EXPECT_TRUE(controls.MSFlexGridSql.Visible());
  EXPECT_FALSE(controls.MSFlexGridMain.Visible());
  EXPECT_EQ(controls.MSFlexGridSql.TextMatrix(1, 1), "101");
  EXPECT_EQ(controls.MSFlexGridSql.TextMatrix(2, 4), "from t");
  EXPECT_THAT(boxes.shown, IsEmpty()) << testing::PrintToString(boxes.errors);
}

TEST_F(SqlPanelsOfTheWindow, ctrlPShowsThePlanAndCtrlGTheRankingAgain) {
  EXPECT_TRUE(main.KeyDown(kKeyP, FormMain::kCtrlAlone));
  EXPECT_TRUE(controls.MSFlexGridPlan.Visible());
  EXPECT_EQ(controls.MSFlexGridPlan.TextMatrix(1, 5), "----- 11 -----");
  EXPECT_TRUE(main.KeyDown(kKeyG, FormMain::kCtrlAlone));
  EXPECT_TRUE(controls.MSFlexGridMain.Visible());
  EXPECT_FALSE(controls.MSFlexGridPlan.Visible());
  EXPECT_EQ(controls.MSFlexGridMain.TextMatrix(1, 1), "101");
}

TEST_F(SqlPanelsOfTheWindow, aDoubleClickOnTheTextShapesItAndTheNextBringsThePieces) {
  controls.ToolbarTop.press("SQL");
  Grid& grid = controls.MSFlexGridSql;
  grid.userDoubleClick(1, 3);
  EXPECT_FALSE(main.shapedText());
  EXPECT_EQ(grid.Rows(), 3);
  grid.userDoubleClick(1, 4);
  EXPECT_TRUE(main.shapedText());
  EXPECT_EQ(grid.Rows(), 2);
  EXPECT_EQ(grid.TextMatrix(1, 4), "select a from t");
  grid.userDoubleClick(1, 4);
  EXPECT_FALSE(main.shapedText());
  EXPECT_EQ(grid.Rows(), 3);
  EXPECT_EQ(grid.TextMatrix(1, 4), "select a");
}

TEST_F(SqlPanelsOfTheWindow, thePiecesShowAgainWhenTheTextIsAskedForAnew) {
  controls.ToolbarTop.press("SQL");
  controls.MSFlexGridSql.userDoubleClick(1, 4);
  controls.ToolbarTop.press("SQL");
  EXPECT_FALSE(main.shapedText());
  EXPECT_EQ(controls.MSFlexGridSql.Rows(), 3);
  controls.MSFlexGridSql.userDoubleClick(1, 4);
  EXPECT_EQ(controls.MSFlexGridSql.TextMatrix(1, 4), "select a from t");
}

TEST_F(SqlPanelsOfTheWindow, ctrlCCopiesTheCellsOfTheTextAndOfThePlan) {
  controls.ToolbarTop.press("SQL");
  controls.MSFlexGridSql.select(1, 4, 2, 4);
  EXPECT_TRUE(main.GridKeyDown(controls.MSFlexGridSql, 67, FormMain::kCtrlAlone));
  controls.ToolbarTop.press("PLAN");
  controls.MSFlexGridPlan.select(1, 4, 1, 5);
  EXPECT_TRUE(main.GridKeyDown(controls.MSFlexGridPlan, 67, FormMain::kCtrlAlone));
  EXPECT_THAT(clipboard.steps,
              ElementsAre("(clear)", "select a\rfrom t", "(clear)", "SELECT STATEMENT \t----- 11 -----"));
}

TEST_F(SqlPanelsOfTheWindow, aSeriesOfTheRankingIsDrawn) {
  controls.MSFlexGridMain.userDoubleClick(1, 2);
  EXPECT_EQ(main.reportMode(), "Col");
  EXPECT_FALSE(controls.ToolbarTop.Enabled("SQL"));
  for (int c = 0; c < controls.MSFlexGridMain.Cols(); ++c)
    if (controls.MSFlexGridMain.TextArray(c) == "BUFFER_GETS") controls.MSFlexGridMain.userClick(1, c);
  controls.ToolbarTop.press("GRAPH_DISP");
  EXPECT_TRUE(controls.FrameGraph.Visible());
  EXPECT_THAT(boxes.shown, IsEmpty());
}

}  // namespace
}  // namespace kestrelix
