// The keys of the main window, and those that must do nothing; the wheel in the login.
#include <QScrollBar>
#include <QToolButton>

#include "desktop/gui_fixture.h"

namespace kestrelix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing_support::GuiTest;
using testing_support::rendered;

class Keys : public GuiTest {
 protected:
  Keys() { logOn(); }
  /// Leads to the All view with its three buttons on.
  static void toStatements() {
    click("ListSection", 1);
    click("ListSnapId", 0);
  }
  static std::string shownGrid() {
    std::string names;
    for (const char* name : {"MSFlexGridMain", "MSFlexGridSql", "MSFlexGridPlan"})
      if (find(name)->isVisible()) names += name;
    return names;
  }
};

TEST_F(Keys, ofAButtonThatIsOffDoNothing) {
  ASSERT_FALSE(find<QToolButton>("SQL")->isEnabled());
  for (const Qt::Key pressed : {Qt::Key_G, Qt::Key_S, Qt::Key_P})
    key("MSFlexGridMain", pressed, Qt::ControlModifier);
  EXPECT_EQ(shownGrid(), "MSFlexGridMain");
  toStatements();
  doubleClickCell("MSFlexGridMain", 0, 0);
  const std::size_t before = rendered().size();
  for (const Qt::Key pressed : {Qt::Key_G, Qt::Key_S, Qt::Key_P})
    key("MSFlexGridMain", pressed, Qt::ControlModifier);
  EXPECT_EQ(shownGrid(), "MSFlexGridMain");
  EXPECT_EQ(view("MSFlexGridMain")->palette().color(QPalette::Base), QColor(0xE0, 0xE0, 0xE0));
  EXPECT_EQ(rendered().size(), before);
  EXPECT_THAT(recorded.calls, IsEmpty());
}

TEST_F(Keys, withoutControlAloneDoNothing) {
  toStatements();
  for (const Qt::Key pressed : {Qt::Key_G, Qt::Key_S, Qt::Key_P})
    for (const Qt::KeyboardModifiers keys :
         {Qt::KeyboardModifiers(Qt::NoModifier), Qt::KeyboardModifiers(Qt::ShiftModifier),
          Qt::KeyboardModifiers(Qt::AltModifier), Qt::ControlModifier | Qt::ShiftModifier,
          Qt::ControlModifier | Qt::AltModifier, Qt::ControlModifier | Qt::MetaModifier})
      for (const char* widget : {"MSFlexGridMain", "ListSnapId", "ListSection"}) key(widget, pressed, keys);
  EXPECT_EQ(shownGrid(), "MSFlexGridMain");
  EXPECT_THAT(recorded.calls, IsEmpty());
}

TEST_F(Keys, aLetterFindsASectionAndLeavesTheReport) {
  key("ListSection", Qt::Key_U);
  EXPECT_EQ(view("ListSection")->currentIndex().data(), "Undo Segment Stats");
  EXPECT_EQ(rendered().size(), 1u);
}

TEST_F(Keys, noneStandsForADoubleClickOrClosesTheWindow) {
  const std::size_t before = rendered().size();
  for (const Qt::Key pressed : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_F1, Qt::Key_F2,
                                Qt::Key_F5, Qt::Key_Escape, Qt::Key_Delete})
    for (const char* widget : {"MSFlexGridMain", "ListSnapId", "ListSection"}) key(widget, pressed);
  EXPECT_EQ(rendered().size(), before);
  EXPECT_NE(window("FormMain"), nullptr);
  EXPECT_EQ(cell("MSFlexGridMain", 0, 0), "Snapshot 1,1");
  EXPECT_THAT(help.calls, IsEmpty());
}

TEST_F(Keys, ofTheChartReachNothingThatIsHidden) {
  toStatements();
  doubleClickCell("MSFlexGridMain", 0, 0);
  press("GRAPH_DISP");
  const std::size_t before = rendered().size();
  QApplication::clipboard()->setText("before");
  for (const Qt::Key pressed : {Qt::Key_G, Qt::Key_S, Qt::Key_P, Qt::Key_C})
    QTest::keyClick(window("FormMain"), pressed, Qt::ControlModifier);
  QTest::keyClick(window("FormMain"), Qt::Key_Down);
  settle();
  EXPECT_TRUE(find("FrameGraph")->isVisible());
  EXPECT_EQ(rendered().size(), before);
  EXPECT_EQ(clipboardText(), "before");
  EXPECT_THAT(recorded.calls, ElementsAre("Initialize MSFlexGridMain MSChartCommon ToolbarTop", "StartPage"));
}

TEST_F(Keys, aSectionByKeyChangesNothingUntilAPairIsClicked) {
  const std::size_t before = rendered().size();
  key("ListSection", Qt::Key_Down);
  key("ListSection", Qt::Key_Down);
  EXPECT_EQ(rendered().size(), before);
  click("ListSnapId", 0);
  EXPECT_EQ(rendered().back(), "All RAC Statistics 10 pair 0");
}

class LoginKeys : public GuiTest {
 protected:
  static std::string logins(int count) {
    std::string text;
    for (int i = 0; i < count; ++i) text += "DB" + std::to_string(i) + ",PERFSTAT,perfstat\r\n";
    return text;
  }
  QScrollBar& bar() { return *find<QAbstractItemView>("MSFlexGridLogin")->verticalScrollBar(); }
};

TEST_F(LoginKeys, theWheelMovesTheStoredLoginsFromAnywhereInTheWindow) {
  start(logins(30));
  turn(view("MSFlexGridLogin")->viewport(), {0, -120});
  EXPECT_EQ(bar().value(), 1);
  turn(find("CommandOK"), {0, -480});
  EXPECT_EQ(bar().value(), 2);
  turn(find("TextPASS"), {0, 120});
  EXPECT_EQ(bar().value(), 1);
  turn(&bar(), {0, 120});
  turn(&bar(), {0, 120});
  EXPECT_EQ(bar().value(), 0);
}

TEST_F(LoginKeys, theWheelLeavesAListThatShowsWhole) {
  start(logins(7));
  turn(view("MSFlexGridLogin")->viewport(), {0, -120});
  EXPECT_EQ(bar().value(), 0);
}

}  // namespace
}  // namespace kestrelix
