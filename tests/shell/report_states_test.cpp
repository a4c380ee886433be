// The report states of the main window: panels, buttons, background, and what leads from one to the next.
#include "shell/main_fixture.h"

namespace kestrelix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing_support::laySnapshots;
using testing_support::MainTest;
using testing_support::rendered;

constexpr const char* kLists =
    " FrameDbInstance ComboDbInstance FrameSnapId ListSnapId FrameSection ListSection";
constexpr Colour kGrey = 0xE0E0E0;

std::string withLists(const char* panel) { return panel + std::string(kLists); }

class ReportStates : public MainTest {
 protected:
  ReportStates() { load(); }
  Colour background() const { return controls.MSFlexGridMain.BackColor(); }
  /// Leads to the Col view of the plain Section.
  void toCol() {
    show("Snapshot");
    doubleClick(2);
  }
  /// A pager with several pages stands on one of the middle.
  void toGraph() {
    toCol();
    press("GRAPH_DISP");
    controls.ToolbarTop.Enabled(
        {"GRAPH_START", "GRAPH_LEFT", "GRAPH_MAX", "LIST", "GRAPH_RIGHT", "GRAPH_END"}, true);
    controls.ToolbarTop.Enabled("GRAPH_DISP", false);
  }
};

TEST_F(ReportStates, allViewOfAPlainSection) {
  show("Snapshot");
  EXPECT_EQ(panels(), withLists("MSFlexGridMain"));
  EXPECT_EQ(enabled(), "START END COPY HELP");
  EXPECT_EQ(background(), kWindowColour);
  EXPECT_EQ(main.reportMode(), "All");
}

TEST_F(ReportStates, allViewOfASqlSection) {
  show("SQL ordered by Gets TOTAL");
  EXPECT_EQ(panels(), withLists("MSFlexGridMain"));
  EXPECT_EQ(enabled(), "GRID SQL PLAN START END COPY HELP");
  EXPECT_EQ(background(), kWindowColour);
}

TEST_F(ReportStates, sqlText) {
  show("SQL ordered by Gets TOTAL");
  press("SQL");
  EXPECT_EQ(panels(), withLists("MSFlexGridSql"));
  EXPECT_EQ(enabled(), "GRID SQL PLAN START END COPY HELP");
  EXPECT_EQ(background(), kWindowColour);
  EXPECT_THAT(recorded.calls, ElementsAre("gDispSqlText 10"));
}

TEST_F(ReportStates, plan) {
  show("SQL ordered by Gets TOTAL");
  press("PLAN");
  EXPECT_EQ(panels(), withLists("MSFlexGridPlan"));
  EXPECT_EQ(enabled(), "GRID SQL PLAN START END COPY HELP");
  EXPECT_EQ(background(), kWindowColour);
  EXPECT_THAT(recorded.calls, ElementsAre("gDispSQLPlan 10"));
}

TEST_F(ReportStates, colView) {
  show("SQL ordered by Gets TOTAL");
  doubleClick(2);
  EXPECT_EQ(panels(), withLists("MSFlexGridMain"));
  EXPECT_EQ(enabled(), "GRAPH_DISP START END COPY HELP");
  EXPECT_EQ(background(), kGrey);
  EXPECT_EQ(main.reportMode(), "Col");
  EXPECT_EQ(rendered().back(), "Col SQL ordered by Gets TOTAL 10 row 2");
}

TEST_F(ReportStates, graph) {
  toGraph();
  EXPECT_EQ(panels(), "FrameGraph MSChartCommon");
  EXPECT_EQ(enabled(), "GRAPH_START GRAPH_LEFT GRAPH_MAX LIST GRAPH_RIGHT GRAPH_END HELP");
  EXPECT_THAT(recorded.calls, ElementsAre("Initialize MSFlexGridMain MSChartCommon ToolbarTop", "StartPage"));
}

TEST_F(ReportStates, listLeadsFromTheGraphToTheColViewAsItWas) {
  toGraph();
  const std::string cell = controls.MSFlexGridMain.TextMatrix(2, 1);
  press("LIST");
  EXPECT_EQ(panels(), withLists("MSFlexGridMain"));
  EXPECT_EQ(enabled(), "GRAPH_DISP START END COPY HELP");
  EXPECT_EQ(background(), kGrey);
  EXPECT_EQ(controls.MSFlexGridMain.TextMatrix(2, 1), cell);
  EXPECT_EQ(main.reportMode(), "Col");
}

TEST_F(ReportStates, doubleClickOnTheFrameLeadsBackAsListDoes) {
  toGraph();
  controls.FrameGraph.DblClick();
  EXPECT_EQ(panels(), withLists("MSFlexGridMain"));
  EXPECT_EQ(enabled(), "GRAPH_DISP START END COPY HELP");
}

TEST_F(ReportStates, doubleClickInTheColViewAndTheButtonBehaveAlike) {
  toCol();
  doubleClick(1, 3);
  EXPECT_EQ(panels(), "FrameGraph MSChartCommon");
  EXPECT_THAT(recorded.calls, ElementsAre("Initialize MSFlexGridMain MSChartCommon ToolbarTop", "StartPage"));
}

TEST_F(ReportStates, aRefusedGraphLeavesTheColView) {
  toCol();
  recorded.graphAccepts = false;
  press("GRAPH_DISP");
  EXPECT_EQ(panels(), withLists("MSFlexGridMain"));
  EXPECT_EQ(enabled(), "GRAPH_DISP START END COPY HELP");
  EXPECT_THAT(recorded.calls, ElementsAre("Initialize MSFlexGridMain MSChartCommon ToolbarTop"));
}

TEST_F(ReportStates, pagingButtonsReachTheirOperations) {
  toGraph();
  recorded.calls.clear();
  for (const char* key : {"GRAPH_START", "GRAPH_LEFT", "GRAPH_MAX", "GRAPH_RIGHT", "GRAPH_END"}) press(key);
  EXPECT_THAT(recorded.calls, ElementsAre("StartPage", "BeforePage", "MaxValuePage", "AtferPage", "EndPage"));
}

TEST_F(ReportStates, aClickOnASectionAloneChangesNothing) {
  show("Snapshot");
  rendered().clear();
  section("Empty");
  EXPECT_THAT(rendered(), IsEmpty());
  EXPECT_EQ(controls.MSFlexGridMain.TextMatrix(1, 1), "Snapshot 1,1");
  pair(0);
  EXPECT_THAT(rendered(), ElementsAre("All Empty 10 pair 0"));
}

TEST_F(ReportStates, aClickOnAPairLeadsBackToTheAllViewFromEveryOtherState) {
  toCol();
  pair(2);
  EXPECT_EQ(main.reportMode(), "All");
  EXPECT_EQ(background(), kWindowColour);
  EXPECT_EQ(enabled(), "START END COPY HELP");
  EXPECT_EQ(rendered().back(), "All Snapshot 10 pair 2");

  show("SQL ordered by Gets TOTAL");
  press("PLAN");
  pair(1);
  EXPECT_EQ(panels(), withLists("MSFlexGridMain"));
}

TEST_F(ReportStates, gridButtonLeadsBackFromTextAndPlan) {
  show("SQL ordered by Gets TOTAL");
  press("SQL");
  press("GRID");
  EXPECT_EQ(panels(), withLists("MSFlexGridMain"));
  press("PLAN");
  press("GRID");
  EXPECT_EQ(panels(), withLists("MSFlexGridMain"));
}

TEST_F(ReportStates, controlKeysActAsTheirButtons) {
  show("SQL ordered by Gets TOTAL");
  EXPECT_TRUE(main.KeyDown('S', FormMain::kCtrlAlone));
  EXPECT_EQ(panels(), withLists("MSFlexGridSql"));
  EXPECT_TRUE(main.KeyDown('P', FormMain::kCtrlAlone));
  EXPECT_EQ(panels(), withLists("MSFlexGridPlan"));
  EXPECT_TRUE(main.KeyDown('G', FormMain::kCtrlAlone));
  EXPECT_EQ(panels(), withLists("MSFlexGridMain"));
}

TEST_F(ReportStates, controlKeysOfDisabledButtonsAndOtherShiftStatesDoNothing) {
  show("Snapshot");
  for (const int key : {'G', 'S', 'P'})
    EXPECT_TRUE(main.KeyDown(key, FormMain::kCtrlAlone)) << "no control sees it either";
  EXPECT_EQ(panels(), withLists("MSFlexGridMain"));
  EXPECT_THAT(recorded.calls, IsEmpty());

  show("SQL ordered by Gets TOTAL");
  for (const int shift : {0, 1, 3, 4, 6, 7}) EXPECT_FALSE(main.KeyDown('S', shift)) << shift;
  EXPECT_FALSE(main.KeyDown('X', FormMain::kCtrlAlone));
  EXPECT_EQ(panels(), withLists("MSFlexGridMain"));
}

TEST_F(ReportStates, controlGInTheColViewDoesNothing) {
  show("SQL ordered by Gets TOTAL");
  doubleClick(1);
  main.KeyDown('G', FormMain::kCtrlAlone);
  EXPECT_EQ(background(), kGrey);
  EXPECT_EQ(main.reportMode(), "Col");
}

TEST_F(ReportStates, doubleClickOnTheHeadingDoesNothingInBothModes) {
  show("Snapshot");
  rendered().clear();
  doubleClick(0);
  EXPECT_EQ(main.reportMode(), "All");
  EXPECT_THAT(rendered(), IsEmpty());
  doubleClick(1);
  rendered().clear();
  doubleClick(0);
  EXPECT_THAT(rendered(), IsEmpty());
  EXPECT_THAT(recorded.calls, IsEmpty());
}

TEST_F(ReportStates, doubleClickOnAGridOfHeadingsAloneDoesNothing) {
  show("Empty");
  rendered().clear();
  controls.MSFlexGridMain.DblClick();
  EXPECT_EQ(main.reportMode(), "All");
  EXPECT_THAT(rendered(), IsEmpty());
}

TEST_F(ReportStates, aSectionWithoutATimeSeriesSaysSoAndTurnsGreyAllTheSame) {
  show("Undo Segment Stats");
  doubleClick(1);
  EXPECT_THAT(boxes.shown, ElementsAre("[Exclamation] The time series display is not supported."));
  EXPECT_EQ(main.reportMode(), "Col");
  EXPECT_EQ(background(), kGrey);
  EXPECT_EQ(enabled(), "GRAPH_DISP START END COPY HELP");
  EXPECT_EQ(controls.MSFlexGridMain.TextMatrix(1, 1), "Undo Segment Stats 1,1") << "the All view stays";
  doubleClick(1);
  EXPECT_EQ(recorded.calls.front(), "Initialize MSFlexGridMain MSChartCommon ToolbarTop");
}

TEST_F(ReportStates, copyTakesTheMainGridWhicheverPanelShows) {
  show("SQL ordered by Gets TOTAL");
  controls.MSFlexGridMain.select(1, 1, 2, 2);
  press("SQL");
  press("COPY");
  EXPECT_THAT(clipboard.steps, ElementsAre("(clear)",
                                           "SQL ordered by Gets TOTAL 1,1\tSQL ordered by Gets TOTAL 1,2\r"
                                           "SQL ordered by Gets TOTAL 2,1\tSQL ordered by Gets TOTAL 2,2"));
}

TEST_F(ReportStates, controlCCopiesTheGridThatHasTheKeyboard) {
  controls.MSFlexGridSql.TextMatrix(1, 1, "select 1");
  controls.MSFlexGridSql.select(1, 1, 1, 1);
  EXPECT_TRUE(main.GridKeyDown(controls.MSFlexGridSql, 67, FormMain::kCtrlAlone));
  EXPECT_THAT(clipboard.steps, ElementsAre("(clear)", "select 1"));
  for (const int shift : {0, 1, 3, 6}) EXPECT_FALSE(main.GridKeyDown(controls.MSFlexGridSql, 67, shift));
  EXPECT_EQ(clipboard.steps.size(), 2u);
}

TEST_F(ReportStates, shapingTogglesByTheTextColumnOfTheSqlGridAlone) {
  controls.MSFlexGridSql.Cols(5);
  controls.MSFlexGridSql.userDoubleClick(1, 3);
  EXPECT_THAT(recorded.calls, IsEmpty());
  controls.MSFlexGridSql.userDoubleClick(1, 4);
  EXPECT_THAT(recorded.calls, ElementsAre("toggle MSFlexGridSql"));
  EXPECT_TRUE(main.shapedText());
}

TEST_F(ReportStates, everyChangeOfThePanelEndsShaping) {
  controls.MSFlexGridSql.Cols(5);
  const auto shape = [this] {
    controls.MSFlexGridSql.userDoubleClick(1, 4);
    ASSERT_TRUE(main.shapedText());
  };
  for (const char* key : {"GRID", "SQL", "PLAN"}) {
    show("SQL ordered by Gets TOTAL");
    shape();
    press(key);
    EXPECT_FALSE(main.shapedText()) << key;
  }
  shape();
  pair(0);
  EXPECT_FALSE(main.shapedText());
}

TEST_F(ReportStates, startAndEndNarrowTheListAndShowTheSameSection) {
  section("Empty");
  pair(1);
  laySnapshots(server,
               {{"2", "2026-01-05 11:00:00"}, {"3", "2026-01-05 12:00:00"}, {"4", "2026-01-05 13:00:00"}},
               testing_support::kRangeOfSnapshots);
  press("START");
  EXPECT_EQ(controls.ListSnapId.ListCount(), 2);
  EXPECT_EQ(rendered().back(), "All Empty 10 pair 0");
  laySnapshots(server, {{"2", "2026-01-05 11:00:00"}, {"3", "2026-01-05 12:00:00"}},
               testing_support::kRangeOfSnapshots);
  press("END");
  EXPECT_EQ(server.asked.back().binds.at("B3").second, "2");
  EXPECT_EQ(server.asked.back().binds.at("B4").second, "3");
  EXPECT_EQ(controls.ListSnapId.ListCount(), 1);
}

TEST_F(ReportStates, aRangeThatFindsNothingUnloadsTheWindow) {
  pair(1);
  laySnapshots(server, {}, testing_support::kRangeOfSnapshots);
  press("START");
  EXPECT_TRUE(main.unloaded());
  EXPECT_THAT(boxes.shown, ElementsAre("[Critical] SNAP_IDが2件未満でした"));
}

TEST_F(ReportStates, aRepositoryWithoutRowsForTheSectionLeavesTheGridWithHeadings) {
  show("Empty");
  EXPECT_EQ(controls.MSFlexGridMain.Rows(), 1);
  EXPECT_TRUE(controls.MSFlexGridMain.Visible());
}

/// A window to which neither chart nor SQL panels are connected.
class BareReport : public MainTest {
 protected:
  BareReport() : MainTest(false) { load(); }
};

TEST_F(BareReport, buttonsWithoutAnOperationStayOff) {
  show("SQL ordered by Gets TOTAL");
  EXPECT_EQ(enabled(), "GRID START END COPY HELP");
  doubleClick(1);
  EXPECT_EQ(enabled(), "START END COPY HELP");
  EXPECT_EQ(controls.MSFlexGridMain.BackColor(), kGrey);
}

TEST_F(BareReport, actionsWithoutAnOperationDoNothing) {
  show("SQL ordered by Gets TOTAL");
  doubleClick(1);
  doubleClick(1);
  controls.MSFlexGridSql.Cols(5);
  controls.MSFlexGridSql.userDoubleClick(1, 4);
  EXPECT_EQ(panels(), withLists("MSFlexGridMain"));
  EXPECT_FALSE(main.shapedText());
  EXPECT_THAT(boxes.shown, IsEmpty());
}

}  // namespace
}  // namespace kestrelix
