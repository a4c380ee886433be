// The main window with the program's own chart, on a repository of 22 snapshots five minutes apart.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "repository_file/local_session.h"
#include "sections/SectionList.h"
#include "sections/head_support.h"
#include "shell/FormMain.h"
#include "shell/report_operations.h"
#include "shell/shell_fixture.h"

namespace kestrelix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using namespace testing_support;

/// "10:00:00", "10:05:00" and so on.
const std::vector<std::string>& times() {
  static const std::vector<std::string> all = [] {
    std::vector<std::string> texts;
    for (int i = 0; i < 22; ++i) {
      const int minute = i * 5 % 60;
      texts.push_back((i < 12 ? "10:" : "11:") + std::string(minute < 10 ? "0" : "") +
                      std::to_string(minute) + ":00");
    }
    return texts;
  }();
  return all;
}

class ChartOfTheWindow : public ShellTest {
 protected:
  ChartOfTheWindow() : repository("10", {times()[0], times()[1]}) {
    for (std::size_t i = 2; i < times().size(); ++i)
      repository.snapshot(std::to_string(i + 1), "2026-01-05 " + times()[i]);
    // 300 bytes of redo in each pair, 3000 in the last but one: 1 and 10 a second. A transaction a pair.
    int redo = 0;
    for (std::size_t i = 0; i < times().size(); ++i) {
      const std::string id = std::to_string(i + 1);
      redo += i == 20 ? 3000 : 300;
      statistic(id, "redo size", std::to_string(redo));
      statistic(id, "user commits", std::to_string(i));
      statistic(id, "user rollbacks", "0");
      statistic(id, "logons current", "1");
      statistic(id, "opened cursors current", "1");
      for (const char* name :
           {"session logical reads", "db block changes", "physical reads", "physical writes", "user calls",
            "parse count (total)", "parse count (hard)", "sorts (memory)", "sorts (disk)", "sorts (rows)",
            "logons cumulative", "execute count", "recursive calls"})
        statistic(id, name, "0");
    }
    services.sections = sectionList();
    services.reader = &directReader();
    workspace.repository.gOraSession = repository_file::localSession(repository.write());
    workspace.repository.gOraDatabase =
        workspace.repository.gOraSession->OpenDatabase("FIXTURE", "PERFSTAT/perfstat", kDatabaseOptions);
    main.Load(1, login);
    controls.ListSection.ListIndex(2);
    controls.ListSnapId.ListIndex(0);
  }

  void statistic(const std::string& id, std::string_view name, const std::string& value) {
    repository.row("stats$sysstat", {{"snap_id", id}, {"name", name}, {"value", value}});
  }
  const std::string& title() const { return controls.MSChartCommon.TitleText(); }
  bool enabled(const char* key) const { return controls.ToolbarTop.Enabled(key); }

  HeadRepository repository;
  FormLogin login{workspace, services};
  FormMain main{workspace, services, reportOperations(workspace)};
  MainControls& controls = workspace.controls;
};

TEST_F(ChartOfTheWindow, pagesThroughASeriesAndLeadsBackToIt) {
  Grid& grid = controls.MSFlexGridMain;
  EXPECT_FALSE(enabled("GRAPH_DISP"));
  grid.userDoubleClick(1, 1);
  EXPECT_TRUE(enabled("GRAPH_DISP"));
  const std::string series = printed(grid);
  EXPECT_EQ(grid.Rows(), 22);

  grid.userDoubleClick(1, 3);
  EXPECT_TRUE(controls.FrameGraph.Visible());
  EXPECT_TRUE(controls.MSChartCommon.Visible());
  EXPECT_FALSE(grid.Visible());
  EXPECT_EQ(title(), "PER SECOND[1/2]");
  EXPECT_EQ(controls.MSChartCommon.valueScale().Maximum, "10");
  EXPECT_EQ(controls.MSChartCommon.RowLabel(1), "2026-01-05 10:05:00");
  EXPECT_EQ(controls.MSChartCommon.dataOf(1), "1");
  EXPECT_FALSE(enabled("GRAPH_LEFT"));

  controls.ToolbarTop.press("GRAPH_RIGHT");
  EXPECT_EQ(title(), "PER SECOND[2/2]");
  EXPECT_EQ(controls.MSChartCommon.RowLabel(1), "2026-01-05 11:45:00");
  EXPECT_EQ(controls.MSChartCommon.RowLabel(2), "");
  controls.ToolbarTop.press("GRAPH_RIGHT");
  EXPECT_EQ(title(), "PER SECOND[2/2]") << "the button is off on the last page";
  controls.ToolbarTop.press("GRAPH_LEFT");
  EXPECT_EQ(title(), "PER SECOND[1/2]");
  controls.ToolbarTop.press("GRAPH_END");
  EXPECT_EQ(title(), "PER SECOND[2/2]");
  controls.ToolbarTop.press("GRAPH_MAX");
  EXPECT_EQ(title(), "PER SECOND[1/2]");
  EXPECT_EQ(controls.MSChartCommon.dataOf(20), "10");
  controls.ToolbarTop.press("GRAPH_END");
  controls.ToolbarTop.press("GRAPH_START");
  EXPECT_EQ(title(), "PER SECOND[1/2]");

  controls.ToolbarTop.press("LIST");
  EXPECT_FALSE(controls.FrameGraph.Visible());
  EXPECT_EQ(printed(grid), series);
  grid.userClick(3, 4);
  controls.ToolbarTop.press("GRAPH_DISP");
  EXPECT_EQ(title(), "PER TRANSACTION[1/2]");
  controls.FrameGraph.DblClick();
  EXPECT_TRUE(grid.Visible());
  EXPECT_EQ(main.reportMode(), "Col");
  EXPECT_THAT(boxes.shown, IsEmpty());
}

TEST_F(ChartOfTheWindow, aRefusedColumnLeavesTheSeriesOnShow) {
  Grid& grid = controls.MSFlexGridMain;
  grid.userDoubleClick(1, 1);
  const std::string series = printed(grid);
  for (const int column : {0, 1, 2, 5}) {
    grid.userDoubleClick(2, column);
    EXPECT_FALSE(controls.FrameGraph.Visible());
    EXPECT_EQ(printed(grid), series);
    EXPECT_EQ(main.reportMode(), "Col");
  }
  EXPECT_EQ(boxes.shown, std::vector<std::string>(4, "[Exclamation] 選択されている項目は不正です"));
}

}  // namespace
}  // namespace kestrelix
