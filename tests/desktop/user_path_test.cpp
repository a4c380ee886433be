// The user's path from the login to the reports, by mouse and keys.
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QMessageBox>
#include <QScrollBar>
#include <QTimer>
#include <QToolButton>

#include "desktop/gui_fixture.h"

namespace kestrelix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing_support::GuiTest;
using testing_support::layInstance;
using testing_support::rendered;

TEST_F(GuiTest, everyControlBearsItsName) {
  logOn();
  for (const ControlPlace& place : mainLayout().places) {
    const std::string name(place.name);
    EXPECT_EQ(find(name.c_str())->accessibleName().toStdString(), name);
  }
}

TEST_F(GuiTest, controlsLieWhereTheLayoutHasThem) {
  logOn();
  EXPECT_EQ(window("FormMain")->size(), QSize(779, 531));
  EXPECT_EQ(find("MSFlexGridMain")->geometry(), QRect(3, 265, 772, 262));
  EXPECT_EQ(find("ListSnapId")->mapTo(window("FormMain"), QPoint(0, 0)), QPoint(4 + 8, 89 + 29));
  EXPECT_EQ(find("ListSection")->parentWidget(), window("FormMain"));
}

TEST_F(GuiTest, aClickFillsTheLoginsBoxesAndADoubleClickOpensTheFirstReport) {
  start("PROD,SYSTEM,manager\r\nDEMO,PERFSTAT,perfstat\r\n");
  ASSERT_NE(window("FormLogin"), nullptr);
  click("MSFlexGridLogin", 0, 1);
  EXPECT_EQ(find<QLineEdit>("TextUSER")->text(), "SYSTEM");
  EXPECT_EQ(find<QLineEdit>("TextPASS")->displayText().contains("manager"), false);
  doubleClickCell("MSFlexGridLogin", 1, 0);
  EXPECT_EQ(window("FormLogin"), nullptr);
  ASSERT_NE(window("FormMain"), nullptr);
  EXPECT_EQ(window("FormMain")->windowTitle(), "Kestrelix  [PERFSTAT@DEMO]");
  EXPECT_THAT(rendered(), ElementsAre("All Snapshot 10 pair 0"));
  EXPECT_EQ(cell("MSFlexGridMain", 0, 0), "Snapshot 1,1");
  EXPECT_EQ(view("MSFlexGridMain")->model()->headerData(0, Qt::Horizontal), "Snapshot 0,1");
  EXPECT_EQ(view("MSFlexGridMain")->model()->headerData(0, Qt::Vertical), "1");
}

TEST_F(GuiTest, aTypedLoginGoesByTheTabKeyFromBoxToButton) {
  start("");
  QTest::keyClicks(QApplication::focusWidget(), "perfstat");
  for (const char* typed : {"perfstat", "demo"}) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QTest::keyClicks(QApplication::focusWidget(), typed);
  }
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget()->objectName(), "CommandOK");
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  settle();
  EXPECT_NE(window("FormMain"), nullptr);
  EXPECT_EQ(folder.readLogins(), "DEMO,PERFSTAT,perfstat\r\n");
}

TEST_F(GuiTest, enterInABoxOfTheLoginDoesNothing) {
  start();
  key("TextUSER", Qt::Key_Return);
  EXPECT_THAT(server.logins, IsEmpty());
}

TEST_F(GuiTest, aWrongLoginShowsItsBoxesAndStays) {
  start();
  press("CommandOK");
  EXPECT_EQ(boxes.shown.size(), 2u);
  EXPECT_NE(window("FormLogin"), nullptr);
}

TEST_F(GuiTest, aSectionShowsWithTheNextClickOnAPairAlsoOnTheSelectedOne) {
  logOn();
  click("ListSection", 1);
  EXPECT_EQ(rendered().size(), 1u);
  click("ListSnapId", 0);
  EXPECT_EQ(rendered().back(), "All SQL ordered by Gets TOTAL 10 pair 0");
  click("ListSnapId", 2);
  EXPECT_EQ(rendered().back(), "All SQL ordered by Gets TOTAL 10 pair 2");
  click("ListSnapId", 2);
  EXPECT_EQ(rendered().size(), 4u);
  EXPECT_EQ(cell("MSFlexGridMain", 0, 0), "SQL ordered by Gets TOTAL 1,1");
}

TEST_F(GuiTest, arrowKeysInThePairListAreClicks) {
  logOn();
  key("ListSnapId", Qt::Key_Down);
  EXPECT_EQ(rendered().back(), "All Snapshot 10 pair 1");
  key("ListSnapId", Qt::Key_End);
  EXPECT_EQ(rendered().back(), "All Snapshot 10 pair 2");
  key("ListSnapId", Qt::Key_Down);
  EXPECT_EQ(rendered().size(), 3u) << "at the end nothing is chosen";
}

TEST_F(GuiTest, aDoubleClickLeadsToTheGreySeriesAndAPairBack) {
  logOn();
  doubleClickCell("MSFlexGridMain", 1, 1);
  EXPECT_EQ(rendered().back(), "Col Snapshot 10 row 2");
  EXPECT_EQ(view("MSFlexGridMain")->model()->rowCount(), 3);
  EXPECT_EQ(view("MSFlexGridMain")->palette().color(QPalette::Base), QColor(0xE0, 0xE0, 0xE0));
  EXPECT_TRUE(find<QToolButton>("GRAPH_DISP")->isEnabled());
  EXPECT_FALSE(find<QToolButton>("LIST")->isEnabled());
  click("ListSnapId", 0);
  EXPECT_EQ(view("MSFlexGridMain")->palette().color(QPalette::Base), QColor(0xFF, 0xFF, 0xFF));
  EXPECT_FALSE(find<QToolButton>("GRAPH_DISP")->isEnabled());
}

TEST_F(GuiTest, aDoubleClickOnTheRunningNumberIsOneOnItsRow) {
  logOn();
  auto* grid = find<QTableView>("MSFlexGridMain");
  const QPoint at(5, grid->verticalHeader()->sectionViewportPosition(2) + 5);
  QTest::mouseClick(grid->verticalHeader()->viewport(), Qt::LeftButton, {}, at);
  QTest::mouseDClick(grid->verticalHeader()->viewport(), Qt::LeftButton, {}, at);
  settle();
  EXPECT_EQ(rendered().back(), "Col Snapshot 10 row 3");
}

TEST_F(GuiTest, aDoubleClickOnTheHeadingsDoesNothing) {
  logOn();
  auto* grid = find<QTableView>("MSFlexGridMain");
  QTest::mouseClick(grid->horizontalHeader()->viewport(), Qt::LeftButton, {}, QPoint(20, 5));
  QTest::mouseDClick(grid->horizontalHeader()->viewport(), Qt::LeftButton, {}, QPoint(20, 5));
  settle();
  EXPECT_EQ(rendered().size(), 1u);
}

TEST_F(GuiTest, aDraggedSelectionIsCopiedWithTabsAndCarriageReturns) {
  logOn();
  QWidget* cells = view("MSFlexGridMain")->viewport();
  QTest::mousePress(cells, Qt::LeftButton, {}, centre("MSFlexGridMain", 0, 1));
  QTest::mouseMove(cells, centre("MSFlexGridMain", 1, 1));
  QTest::mouseMove(cells, centre("MSFlexGridMain", 1, 2));
  QTest::mouseRelease(cells, Qt::LeftButton, {}, centre("MSFlexGridMain", 1, 2));
  settle();
  key("MSFlexGridMain", Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(clipboardText(), "Snapshot 1,2\tSnapshot 1,3\rSnapshot 2,2\tSnapshot 2,3");
}

TEST_F(GuiTest, shiftAndArrowsDrawASelectionUpAndLeftToo) {
  logOn();
  click("MSFlexGridMain", 2, 2);
  key("MSFlexGridMain", Qt::Key_Up, Qt::ShiftModifier);
  key("MSFlexGridMain", Qt::Key_Left, Qt::ShiftModifier);
  press("COPY");
  EXPECT_EQ(clipboardText(), "Snapshot 2,2\tSnapshot 2,3\rSnapshot 3,2\tSnapshot 3,3");
}

TEST_F(GuiTest, shiftAndClickExtendTheSelection) {
  logOn();
  click("MSFlexGridMain", 0, 0);
  click("MSFlexGridMain", 1, 1, Qt::ShiftModifier);
  press("COPY");
  EXPECT_EQ(clipboardText(), "Snapshot 1,1\tSnapshot 1,2\rSnapshot 2,1\tSnapshot 2,2");
}

TEST_F(GuiTest, headingsSelectTheirRowOrColumn) {
  logOn();
  auto* grid = find<QTableView>("MSFlexGridMain");
  QTest::mouseClick(grid->verticalHeader()->viewport(), Qt::LeftButton, {},
                    QPoint(5, grid->verticalHeader()->sectionViewportPosition(1) + 5));
  settle();
  press("COPY");
  EXPECT_EQ(clipboardText(), "Snapshot 2,1\tSnapshot 2,2\tSnapshot 2,3");
  QTest::mouseClick(grid->horizontalHeader()->viewport(), Qt::LeftButton, {},
                    QPoint(grid->horizontalHeader()->sectionViewportPosition(1) + 5, 5));
  settle();
  press("COPY");
  EXPECT_EQ(clipboardText(), "Snapshot 1,2\rSnapshot 2,2\rSnapshot 3,2");
}

TEST_F(GuiTest, arrowsMoveTheCurrentCellAndNeverOntoTheHeadings) {
  logOn();
  key("MSFlexGridMain", Qt::Key_Up);
  key("MSFlexGridMain", Qt::Key_Left);
  press("COPY");
  EXPECT_EQ(clipboardText(), "Snapshot 1,1");
  key("MSFlexGridMain", Qt::Key_Down);
  key("MSFlexGridMain", Qt::Key_Right);
  press("COPY");
  EXPECT_EQ(clipboardText(), "Snapshot 2,2");
}

TEST_F(GuiTest, controlCWithAnotherShiftStateOrOnAListCopiesNothing) {
  logOn();
  QApplication::clipboard()->setText("before");
  key("MSFlexGridMain", Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
  key("MSFlexGridMain", Qt::Key_Insert, Qt::ControlModifier);
  key("ListSnapId", Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(clipboardText(), "before");
}

TEST_F(GuiTest, controlKeysSwitchThePanelsWhereverTheKeyboardIs) {
  logOn();
  click("ListSection", 1);
  click("ListSnapId", 0);
  key("ListSnapId", Qt::Key_S, Qt::ControlModifier);
  EXPECT_TRUE(find("MSFlexGridSql")->isVisible());
  EXPECT_FALSE(find("MSFlexGridMain")->isVisible());
  key("MSFlexGridSql", Qt::Key_P, Qt::ControlModifier);
  EXPECT_TRUE(find("MSFlexGridPlan")->isVisible());
  key("ComboDbInstance", Qt::Key_G, Qt::ControlModifier);
  EXPECT_TRUE(find("MSFlexGridMain")->isVisible());
  EXPECT_THAT(recorded.calls, ElementsAre("gDispSqlText 10", "gDispSQLPlan 10"));
}

TEST_F(GuiTest, theChartTakesTheListsPlaceAndItsFrameLeadsBack) {
  logOn();
  doubleClickCell("MSFlexGridMain", 0, 0);
  press("GRAPH_DISP");
  EXPECT_TRUE(find("FrameGraph")->isVisible());
  EXPECT_TRUE(find("MSChartCommon")->isVisible());
  EXPECT_FALSE(find("ListSection")->isVisible());
  EXPECT_FALSE(find("LabelSnapId")->isVisible());
  QTest::mouseDClick(find("MSChartCommon"), Qt::LeftButton);
  settle();
  EXPECT_TRUE(find("FrameGraph")->isVisible()) << "the chart takes its clicks on itself";
  QTest::mouseDClick(find("FrameGraph"), Qt::LeftButton, {}, QPoint(3, 100));
  settle();
  EXPECT_FALSE(find("FrameGraph")->isVisible());
  EXPECT_TRUE(find("ListSection")->isVisible());
  EXPECT_EQ(view("MSFlexGridMain")->palette().color(QPalette::Base), QColor(0xE0, 0xE0, 0xE0));
}

class LongGrid : public GuiTest {
 protected:
  LongGrid() {
    logOn();
    click("ListSection", 5);
    click("ListSnapId", 0);
    bar = find<QTableView>("MSFlexGridMain")->verticalScrollBar();
  }
  QScrollBar* bar;
};

TEST_F(LongGrid, aTurnOfTheWheelMovesOneRowWhateverItsSize) {
  QWidget* cells = view("MSFlexGridMain")->viewport();
  turn(cells, {0, -120});
  EXPECT_EQ(bar->value(), 1);
  turn(cells, {0, -480});
  EXPECT_EQ(bar->value(), 2);
  turn(cells, {0, 120});
  EXPECT_EQ(bar->value(), 1);
}

TEST_F(LongGrid, theWheelWorksOverTheWholeWindowButTheLists) {
  for (const char* name : {"ToolbarTop", "ComboDbInstance", "FrameSection", "MSFlexGridMain"})
    turn(find(name), {0, -120});
  turn(bar, {0, -120});
  EXPECT_EQ(bar->value(), 5);
  turn(view("ListSnapId")->viewport(), {0, -120});
  EXPECT_EQ(bar->value(), 5);
  EXPECT_EQ(find<QComboBox>("ComboDbInstance")->currentIndex(), 0);
}

TEST_F(LongGrid, fineStepsAddUpToOneRow) {
  QWidget* cells = view("MSFlexGridMain")->viewport();
  for (int i = 0; i < 7; ++i) turn(cells, {0, -15});
  EXPECT_EQ(bar->value(), 0);
  turn(cells, {0, -15});
  EXPECT_EQ(bar->value(), 1);
}

TEST_F(LongGrid, theEndKeepsTheLastPageAndTurnsBackAtOnce) {
  QWidget* cells = view("MSFlexGridMain")->viewport();
  for (int i = 0; i < 60; ++i) turn(cells, {0, -120});
  EXPECT_EQ(bar->value(), bar->maximum());
  turn(cells, {0, 120});
  EXPECT_EQ(bar->value(), bar->maximum() - 1);
}

TEST_F(LongGrid, sixteenRowsShowUnderTheHeading) { EXPECT_EQ(bar->maximum(), 40 - 16); }

TEST_F(LongGrid, theScrollBarAndTheGridAgree) {
  bar->setValue(10);
  settle();
  turn(view("MSFlexGridMain")->viewport(), {0, -120});
  EXPECT_EQ(bar->value(), 11);
}

TEST_F(LongGrid, aCellIsOneLineAndItsTextIsCopiedWhole) {
  EXPECT_EQ(cell("MSFlexGridMain", 0, 1), "select * from dual");
  click("MSFlexGridMain", 0, 1);
  press("COPY");
  // The desktop's clipboard keeps the bytes; only the screen shows blanks.
  EXPECT_EQ(clipboardText(), "select *\r\nfrom\tdual");
}

TEST_F(LongGrid, numbersStandRightAndTextsLeft) {
  const auto* model = view("MSFlexGridMain")->model();
  const auto alignment = [&](int col) {
    return model->index(0, col).data(Qt::TextAlignmentRole).value<Qt::Alignment>();
  };
  EXPECT_TRUE(alignment(0).testFlag(Qt::AlignLeft));
  EXPECT_TRUE(alignment(2).testFlag(Qt::AlignRight));
}

TEST_F(LongGrid, aShorterViewStartsAtItsTop) {
  bar->setValue(20);
  settle();
  click("ListSection", 0);
  click("ListSnapId", 0);
  EXPECT_EQ(bar->value(), 0);
  EXPECT_EQ(view("MSFlexGridMain")->model()->rowCount(), 3);
}

TEST_F(GuiTest, choosingAnInstanceReloadsAlsoTheSelectedOne) {
  layInstance(server, "2002", "11.2.0.1.0", "1", "NO");
  logOn();
  const int before = view("ListSection")->model()->rowCount();
  key("ComboDbInstance", Qt::Key_Down);
  EXPECT_EQ(view("ListSection")->model()->rowCount(), before - 1);
  const std::size_t questions = server.asked.size();
  auto* combo = find<QComboBox>("ComboDbInstance");
  combo->showPopup();
  settle();
  QTest::keyClick(combo->view(), Qt::Key_Return);
  settle();
  EXPECT_EQ(server.asked.size(), questions + 1);
}

TEST_F(GuiTest, closingTheMainWindowEndsTheConnection) {
  logOn();
  EXPECT_EQ(server.openConnections, 1);
  window("FormMain")->close();
  settle();
  EXPECT_EQ(window("FormMain"), nullptr);
  EXPECT_EQ(server.openConnections, 0);
}

TEST_F(GuiTest, aRepositoryWithoutInstancesNeverShowsTheMainWindow) {
  server.answer(testing_support::kInstances).rows.clear();
  logOn();
  EXPECT_THAT(boxes.shown, ElementsAre("[Critical] 有効なDB_INSTANCE情報が存在しませんでした"));
  EXPECT_EQ(window("FormMain"), nullptr);
  EXPECT_EQ(window("FormLogin"), nullptr);
}

TEST_F(GuiTest, aLostRepositoryClosesTheWindowAfterItsBoxes) {
  logOn();
  server.answer(testing_support::kRangeOfSnapshots).fails = true;
  press("START");
  EXPECT_EQ(window("FormMain"), nullptr);
  EXPECT_EQ(boxes.shown.back(), "[Critical] SNAP_IDの取得に失敗しました");
}

TEST(QtMessageBoxesTest, boxHasTitleIconAndTextAndGoesWithItsButton) {
  QtMessageBoxes boxes;
  QString seen;
  QTimer::singleShot(0, [&seen] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    seen = box->windowTitle() + "|" + box->text() + "|" + QString::number(box->icon());
    QTest::mouseClick(box->button(QMessageBox::Ok), Qt::LeftButton);
  });
  boxes.show(BoxIcon::Exclamation, "選択されている項目は不正です <b>", {});
  EXPECT_EQ(seen, QString("Kestrelix|選択されている項目は不正です <b>|%1").arg(QMessageBox::Warning));
}

}  // namespace
}  // namespace kestrelix
