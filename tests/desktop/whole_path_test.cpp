// The user's whole path through the program's own Sections, SQL panels and chart, on a small local
// repository.
#include <QComboBox>
#include <QLineEdit>
#include <QToolButton>

#include "desktop/gui_fixture.h"
#include "repository_file/local_session.h"
#include "sections/SectionList.h"
#include "support/sql_repository.h"

namespace kestrelix {
namespace {

using testing::IsEmpty;
using testing_support::GuiTest;
using testing_support::SqlRepository;

/// Instance 1 has snapshots 1, 3, 4 ... 24, so 22 pairs; its two statements ran in the first of them.
/// Instance 2, no cluster's, has one pair.
class WholePath : public GuiTest {
 protected:
  WholePath() {
    repository.usualTotals()
        .statistic("logons current", "8", "3")
        .statistic("opened cursors current", "12", "9");
    repository.add({.snap = 1, .hash = 101, .executions = 1, .gets = 100});
    repository.add({.snap = 3, .hash = 101, .executions = 2, .gets = 1100});
    repository.add({.snap = 1, .hash = 102, .executions = 1, .gets = 0, .address = "00000000000000A2"});
    repository.add({.snap = 3, .hash = 102, .executions = 3, .gets = 500, .address = "00000000000000A2"});
    for (int id = 4; id <= 24; ++id)
      repository.snapshot(
          id, "2026-01-06 " + std::string(id <= 10 ? "0" : "") + std::to_string(id - 1) + ":00:00");
    auto& fixture = repository.fixture;
    fixture.rows("stats$sqltext", {"old_hash_value", "text_subset", "piece", "sql_text"},
                 {{"101", "select", "0", "select a"}, {"101", "select", "1", "from t"}});
    fixture.row(
        "stats$sql_plan_usage",
        {{"snap_id", "3"}, {"old_hash_value", "101"}, {"text_subset", "select"}, {"plan_hash_value", "11"}});
    fixture.row("stats$sql_plan",
                {{"plan_hash_value", "11"}, {"id", "0"}, {"depth", "0"}, {"operation", "SELECT STATEMENT"}});
    fixture.row("stats$sql_plan", {{"plan_hash_value", "11"},
                                   {"id", "1"},
                                   {"depth", "1"},
                                   {"operation", "TABLE ACCESS"},
                                   {"options", "FULL"},
                                   {"object_name", "T"}});
    fixture.row("stats$database_instance", {{"instance_number", "2"},
                                            {"startup_time", "2000-01-01 00:00:00"},
                                            {"snap_id", "1"},
                                            {"parallel", "NO"},
                                            {"version", "11.2.0.4.0"},
                                            {"db_name", "KES"},
                                            {"instance_name", "kes2"},
                                            {"host_name", "host2"}});
    for (const char* id : {"1", "3"})
      fixture.row("stats$snapshot",
                  {{"instance_number", "2"},
                   {"snap_id", id},
                   {"snap_time", id[0] == '1' ? "2026-01-05 10:00:00" : "2026-01-05 11:00:00"},
                   {"snap_level", "7"},
                   {"startup_time", "2000-01-01 00:00:00"}});
    services.sections = sectionList();
    services.makeSession = [path = repository.write()] { return repository_file::localSession(path); };
    operations = reportOperations;
    start("FIXTURE,PERFSTAT,perfstat\r\n");
    doubleClickCell("MSFlexGridLogin", 0, 0);
  }

  SectionReader& reads() override { return directReader(); }
  static void section(const QString& name) {
    const QAbstractItemModel& list = *view("ListSection")->model();
    for (int row = 0; row < list.rowCount(); ++row)
      if (list.index(row, 0).data() == name) return click("ListSection", row);
    FAIL() << name.toStdString() << " is not listed";
  }
  void showStatements() {
    section("SQL ordered by Gets TOTAL");
    click("ListSnapId", 0);
  }
  static int column(const char* grid, const QString& heading) {
    const QAbstractItemModel& model = *view(grid)->model();
    for (int c = 0; c < model.columnCount(); ++c)
      if (model.headerData(c, Qt::Horizontal) == heading) return c;
    ADD_FAILURE() << "no column " << heading.toStdString();
    return 0;
  }
  static void drag(const char* grid, int row, int col, int toRow, int toCol) {
    QWidget* cells = view(grid)->viewport();
    QTest::mousePress(cells, Qt::LeftButton, {}, centre(grid, row, col));
    QTest::mouseMove(cells, centre(grid, row, toCol));
    QTest::mouseMove(cells, centre(grid, toRow, toCol));
    QTest::mouseRelease(cells, Qt::LeftButton, {}, centre(grid, toRow, toCol));
    settle();
  }
  /// The buttons that are on, in the toolbar's order.
  static std::string enabled() {
    std::string keys;
    for (const QToolButton* button : find("ToolbarTop")->findChildren<QToolButton*>())
      if (button->isEnabled()) keys += (keys.empty() ? "" : " ") + button->objectName().toStdString();
    return keys;
  }
  static std::string panels() {
    std::string names;
    for (const char* name : {"MSFlexGridMain", "MSFlexGridSql", "MSFlexGridPlan", "FrameGraph",
                             "MSChartCommon", "ListSection", "ListSnapId", "ComboDbInstance"})
      if (find(name)->isVisible()) names += (names.empty() ? "" : " ") + std::string(name);
    return names;
  }
  static std::string chartTitle() { return find("MSChartCommon")->accessibleDescription().toStdString(); }

  SqlRepository repository{"11"};
};

constexpr const char* kLists = " ListSection ListSnapId ComboDbInstance";

TEST_F(WholePath, fromTheLoginToTheChartAndBack) {
  EXPECT_EQ(window("FormMain")->windowTitle(), "Kestrelix  [PERFSTAT@FIXTURE]");
  EXPECT_EQ(cell("MSFlexGridMain", 0, 0), "Begin Snap:");
  EXPECT_EQ(enabled(), "START END COPY HELP");

  showStatements();
  EXPECT_EQ(enabled(), "GRID SQL PLAN START END COPY HELP");
  EXPECT_EQ(view("MSFlexGridMain")->model()->rowCount(), 2);
  EXPECT_EQ(cell("MSFlexGridMain", 0, 0), "101");
  EXPECT_EQ(cell("MSFlexGridMain", 1, 0), "102");
  EXPECT_EQ(cell("MSFlexGridMain", 1, column("MSFlexGridMain", "BUFFER_GETS")), "500");

  doubleClickCell("MSFlexGridMain", 1, 0);
  EXPECT_EQ(enabled(), "GRAPH_DISP START END COPY HELP");
  EXPECT_EQ(view("MSFlexGridMain")->model()->rowCount(), 22);
  const int gets = column("MSFlexGridMain", "BUFFER_GETS");
  EXPECT_EQ(cell("MSFlexGridMain", 0, gets), "500");
  EXPECT_EQ(cell("MSFlexGridMain", 1, gets), "");

  doubleClickCell("MSFlexGridMain", 0, gets);
  EXPECT_EQ(panels(), "FrameGraph MSChartCommon");
  EXPECT_EQ(chartTitle(), "BUFFER_GETS[1/2]");
  EXPECT_EQ(enabled(), "GRAPH_MAX LIST GRAPH_RIGHT GRAPH_END HELP");
  press("GRAPH_RIGHT");
  EXPECT_EQ(chartTitle(), "BUFFER_GETS[2/2]");
  EXPECT_EQ(enabled(), "GRAPH_START GRAPH_LEFT GRAPH_MAX LIST HELP");
  press("GRAPH_MAX");
  EXPECT_EQ(chartTitle(), "BUFFER_GETS[1/2]");
  press("GRAPH_END");
  EXPECT_EQ(chartTitle(), "BUFFER_GETS[2/2]");
  press("GRAPH_LEFT");
  EXPECT_EQ(chartTitle(), "BUFFER_GETS[1/2]");
  press("GRAPH_END");
  press("GRAPH_START");
  EXPECT_EQ(chartTitle(), "BUFFER_GETS[1/2]");

  press("LIST");
  EXPECT_EQ(panels(), std::string("MSFlexGridMain") + kLists);
  EXPECT_EQ(enabled(), "GRAPH_DISP START END COPY HELP");
  EXPECT_EQ(cell("MSFlexGridMain", 0, gets), "500");
  press("GRAPH_DISP");
  EXPECT_EQ(panels(), "FrameGraph MSChartCommon");
  press("LIST");
  EXPECT_THAT(boxes.shown, IsEmpty());
  click("MSFlexGridMain", 0, 0);
  press("GRAPH_DISP");
  EXPECT_THAT(boxes.shown, testing::ElementsAre("[Exclamation] 選択されている項目は不正です"));
  EXPECT_EQ(panels(), std::string("MSFlexGridMain") + kLists);
}

TEST_F(WholePath, theTextOfAStatementItsShapeAndItsPlan) {
  showStatements();
  click("MSFlexGridMain", 0, 1);
  press("SQL");
  EXPECT_EQ(panels(), std::string("MSFlexGridSql") + kLists);
  EXPECT_EQ(cell("MSFlexGridSql", 0, 0), "101");
  EXPECT_EQ(cell("MSFlexGridSql", 1, 3), "from t");
  doubleClickCell("MSFlexGridSql", 0, 2);
  EXPECT_EQ(view("MSFlexGridSql")->model()->rowCount(), 2) << "another column shapes nothing";
  doubleClickCell("MSFlexGridSql", 0, 3);
  EXPECT_EQ(view("MSFlexGridSql")->model()->rowCount(), 1);
  EXPECT_EQ(cell("MSFlexGridSql", 0, 3), "select a from t");
  doubleClickCell("MSFlexGridSql", 0, 3);
  EXPECT_EQ(cell("MSFlexGridSql", 0, 3), "select a");
  key("MSFlexGridSql", Qt::Key_P, Qt::ControlModifier);
  EXPECT_EQ(panels(), std::string("MSFlexGridPlan") + kLists);
  EXPECT_EQ(cell("MSFlexGridPlan", 1, 3), "TABLE ACCESS FULL");
  EXPECT_EQ(enabled(), "GRID SQL PLAN START END COPY HELP");
  key("MSFlexGridPlan", Qt::Key_G, Qt::ControlModifier);
  EXPECT_EQ(panels(), std::string("MSFlexGridMain") + kLists);
  EXPECT_THAT(boxes.shown, IsEmpty());
}

TEST_F(WholePath, eachGridCopiesItsOwnRectangleAndTheButtonAlwaysTheMainGrids) {
  showStatements();
  // Hash, module and executions: 2 - 1 and 3 - 1.
  drag("MSFlexGridMain", 0, 0, 1, 2);
  key("MSFlexGridMain", Qt::Key_C, Qt::ControlModifier);
  const std::string ofMain = "101\tsqlplus\t1\r102\tsqlplus\t2";
  EXPECT_EQ(clipboardText(), ofMain);

  press("SQL");
  drag("MSFlexGridSql", 0, 0, 1, 3);
  key("MSFlexGridSql", Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(clipboardText(), "101\t1\t3\tselect a\r\t\t\tfrom t");
  press("COPY");
  EXPECT_EQ(clipboardText(), ofMain) << "though the SQL grid shows";

  press("PLAN");
  drag("MSFlexGridPlan", 0, 3, 1, 4);
  key("MSFlexGridPlan", Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(clipboardText(), "SELECT STATEMENT \t----- 11 -----\rTABLE ACCESS FULL\tT");
}

TEST_F(WholePath, startAndEndNarrowTheRange) {
  const QAbstractItemModel& pairs = *view("ListSnapId")->model();
  ASSERT_EQ(pairs.rowCount(), 22);
  click("ListSnapId", 4);
  const QString fifth = pairs.index(4, 0).data().toString();
  press("START");
  EXPECT_EQ(pairs.rowCount(), 18);
  EXPECT_EQ(pairs.index(0, 0).data().toString(), fifth);
  EXPECT_EQ(view("ListSnapId")->currentIndex().row(), 0);
  click("ListSnapId", 2);
  const QString third = pairs.index(2, 0).data().toString();
  press("END");
  EXPECT_EQ(pairs.rowCount(), 3);
  EXPECT_EQ(pairs.index(2, 0).data().toString(), third);
}

TEST_F(WholePath, anotherInstanceHasItsOwnPairsAndSections) {
  const int ofCluster = view("ListSection")->model()->rowCount();
  auto* combo = find<QComboBox>("ComboDbInstance");
  QTest::mouseClick(combo, Qt::LeftButton);
  settle();
  QTest::keyClick(combo->view(), Qt::Key_Down);
  QTest::keyClick(combo->view(), Qt::Key_Return);
  settle();
  EXPECT_TRUE(combo->currentText().contains("kes2"));
  EXPECT_EQ(view("ListSnapId")->model()->rowCount(), 1);
  EXPECT_EQ(ofCluster, 94);
  EXPECT_EQ(view("ListSection")->model()->rowCount(), 76);
}

TEST_F(WholePath, helpOpensAndClosesWithTheWindow) {
  press("HELP");
  const std::string path = (folder.path() / "Kestrelix.chm").string();
  using Call = std::pair<std::string, int>;
  EXPECT_THAT(help.calls, testing::ElementsAre(Call{path, 1}));
  window("FormMain")->close();
  settle();
  EXPECT_THAT(help.calls, testing::ElementsAre(Call{path, 1}, Call{path, 18}));
  EXPECT_EQ(window("FormMain"), nullptr);
}

}  // namespace
}  // namespace kestrelix
