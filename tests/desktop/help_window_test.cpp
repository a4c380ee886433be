// The help from its button to its pages.
#include <QScrollBar>
#include <QTextBlock>
#include <QTextBrowser>
#include <QToolButton>
#include <QTreeWidget>
#include <filesystem>
#include <fstream>

#include "desktop/HelpWindow.h"
#include "desktop/gui_fixture.h"

namespace kestrelix {
namespace {

using testing_support::GuiTest;

class HelpTest : public GuiTest {
 protected:
  void startWithHelp() {
    folder.writeLogins("DEMO,PERFSTAT,perfstat\r\n");
    desktop = std::make_unique<Desktop>(DesktopParts{
        boxes,
        {qtClipboard, viewer, services.programFolder, services.makeSession, services.sections, {}, &reads()},
        [this](Workspace&) { return recorded.operations(); }});
    desktop->start();
    settle();
    doubleClickCell("MSFlexGridLogin", 0, 0);
  }
  void layHelpFile() {
    std::filesystem::copy_file(std::string(KESTRELIX_BIN_DIR) + "/Kestrelix.chm", helpFile());
  }
  std::filesystem::path helpFile() const { return services.programFolder / "Kestrelix.chm"; }
  static QTextBrowser* page() { return find<QTextBrowser>("HelpPage"); }
  static QTreeWidget* contents() { return find<QTreeWidget>("HelpContents"); }

  QtHelpViewer viewer;
};

TEST_F(HelpTest, missingFileShowsNothing) {
  startWithHelp();
  press("HELP");
  EXPECT_EQ(window("HelpWindow"), nullptr);
  EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(HelpTest, brokenFileShowsNothing) {
  std::ofstream(helpFile()) << "ITSF";
  startWithHelp();
  press("HELP");
  EXPECT_EQ(window("HelpWindow"), nullptr);
  EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(HelpTest, buttonOpensTheContentsAndTheFirstPage) {
  layHelpFile();
  startWithHelp();
  press("HELP");
  ASSERT_NE(window("HelpWindow"), nullptr);
  EXPECT_EQ(contents()->currentItem(), contents()->topLevelItem(0));
  EXPECT_TRUE(page()->toPlainText().startsWith("Kestrelix"));
}

TEST_F(HelpTest, everyEntryOfTheContentsShowsItsHeading) {
  layHelpFile();
  startWithHelp();
  press("HELP");
  int entries = 0;
  for (QTreeWidgetItemIterator entry(contents()); *entry; ++entry, ++entries) {
    contents()->setCurrentItem(*entry);
    EXPECT_TRUE(page()->toPlainText().contains((*entry)->text(0))) << (*entry)->text(0).toStdString();
  }
  EXPECT_GT(entries, 100);
}

TEST_F(HelpTest, entryOfASectionScrollsToItsParagraph) {
  layHelpFile();
  startWithHelp();
  press("HELP");
  const auto found = contents()->findItems("Host CPU", Qt::MatchExactly | Qt::MatchRecursive);
  ASSERT_EQ(found.size(), 1);
  contents()->setCurrentItem(found.front());
  settle();
  EXPECT_EQ(page()->cursorForPosition(QPoint(30, 6)).block().text().toStdString(), "Host CPU");
}

TEST_F(HelpTest, linksAndTheButtonBackMoveTheEntryOfTheContents) {
  layHelpFile();
  startWithHelp();
  press("HELP");
  page()->setSource(QUrl("chm:/keys.html"));
  EXPECT_EQ(contents()->currentItem()->data(0, Qt::UserRole).toString(), "keys.html");
  press("HelpBack");
  EXPECT_EQ(contents()->currentItem(), contents()->topLevelItem(0));
  press("HelpForward");
  EXPECT_EQ(page()->source().fileName(), "keys.html");
}

TEST_F(HelpTest, secondPressKeepsTheOneWindowAndItsPage) {
  layHelpFile();
  startWithHelp();
  press("HELP");
  QWidget* const first = window("HelpWindow");
  page()->setSource(QUrl("chm:/keys.html"));
  press("HELP");
  EXPECT_EQ(window("HelpWindow"), first);
  EXPECT_EQ(page()->source().fileName(), "keys.html");
}

TEST_F(HelpTest, closedHelpOpensAnew) {
  layHelpFile();
  startWithHelp();
  press("HELP");
  window("HelpWindow")->close();
  settle();
  EXPECT_EQ(window("HelpWindow"), nullptr);
  press("HELP");
  EXPECT_NE(window("HelpWindow"), nullptr);
}

TEST_F(HelpTest, escapeClosesTheHelpFromContentsAndPage) {
  layHelpFile();
  startWithHelp();
  for (const char* name : {"HelpContents", "HelpPage"}) {
    press("HELP");
    key(name, Qt::Key_Escape);
    EXPECT_EQ(window("HelpWindow"), nullptr) << name;
  }
}

TEST_F(HelpTest, helpGoesWithTheMainWindow) {
  layHelpFile();
  startWithHelp();
  press("HELP");
  window("FormMain")->close();
  settle();
  EXPECT_EQ(window("HelpWindow"), nullptr);
}

TEST_F(HelpTest, everyPageOfTheContentsHasRoomForItsTables) {
  layHelpFile();
  startWithHelp();
  press("HELP");
  for (int i = 0; i < contents()->topLevelItemCount(); ++i) {
    contents()->setCurrentItem(contents()->topLevelItem(i));
    settle();
    EXPECT_EQ(page()->horizontalScrollBar()->maximum(), 0)
        << contents()->topLevelItem(i)->text(0).toStdString();
  }
}

}  // namespace
}  // namespace kestrelix
