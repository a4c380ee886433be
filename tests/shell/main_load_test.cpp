// Opening the main window, choosing an instance, closing.
#include "shell/main_fixture.h"

namespace kestrelix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using testing_support::layInstance;
using testing_support::laySnapshots;
using testing_support::MainTest;
using testing_support::rendered;

constexpr const char* kVersionBox =
    "[Critical] 未対応のＤＢが選択されました。[対応データベース：Oracle9,Oracle10,Oracle11]";

class MainLoad : public MainTest {
 protected:
  /// Statements sent so far, by the table that each reads.
  std::vector<std::string> tablesRead() const {
    std::vector<std::string> tables;
    for (const auto& asked : server.asked)
      tables.push_back(asked.statement.find("stats$snapshot") != std::string::npos ? "snapshots"
                                                                                   : "instances");
    return tables;
  }
};

TEST_F(MainLoad, showsTheFirstSectionOfTheFirstPairOnceTheSectionsAreListed) {
  load();
  EXPECT_THAT(rendered(), ElementsAre("All Snapshot 10 pair 0"));
  EXPECT_THAT(tablesRead(), ElementsAre("instances", "snapshots", "snapshots"));
  EXPECT_EQ(controls.ComboDbInstance.ListIndex(), 0);
  EXPECT_EQ(controls.ListSection.Text(), "Snapshot");
  EXPECT_EQ(controls.ListSnapId.ListIndex(), 0);
  EXPECT_EQ(main.reportMode(), "All");
  EXPECT_EQ(main.version(), "10");
  EXPECT_EQ(main.rac(), "YES");
  EXPECT_THAT(boxes.shown, IsEmpty());
}

TEST_F(MainLoad, thePassBeforeTheSectionsAreListedFindsNoSectionAndLeavesTheGridEmpty) {
  std::vector<std::string> passes;
  controls.ListSnapId.Click.connect([&] {
    passes.push_back(controls.ListSection.Text() + "|" + main.version() + "|" + enabled() + "|" + panels() +
                     "|" + controls.MSFlexGridMain.TextMatrix(1, 1));
  });
  load();
  const std::string panel =
      "MSFlexGridMain FrameDbInstance ComboDbInstance FrameSnapId ListSnapId FrameSection ListSection|";
  EXPECT_THAT(passes, ElementsAre("ListSection||START END COPY HELP|" + panel,
                                  "Snapshot|10|START END COPY HELP|" + panel + "Snapshot 1,1"));
}

TEST_F(MainLoad, headingsAndTitleStand) {
  load();
  EXPECT_EQ(controls.Title.Caption(), "Kestrelix  [PERFSTAT@DEMO]");
  EXPECT_EQ(
      controls.LabelDbInstance.Caption(),
      "               DBID           DB_NAME          VERSION    INSTANCE_NUMBER     INSTANCE_NAME         "
      "HOST_NAME       RAC");
  EXPECT_EQ(controls.LabelSnapId.Caption(),
            "  START TIME             END TIME            START ID    END ID    STATUS");
  EXPECT_EQ(controls.FrameDbInstance.Caption(), "DB INSTANCE");
  EXPECT_EQ(controls.FrameSnapId.Caption(), "SNAP ID");
  EXPECT_EQ(controls.FrameSection.Caption(), "SECTION");
  EXPECT_EQ(controls.FrameGraph.Caption(), "GRAPH");
}

TEST_F(MainLoad, beforeLoadingTheSectionListHoldsItsPlaceholder) {
  EXPECT_EQ(controls.ListSection.ListCount(), 1);
  EXPECT_EQ(controls.ListSection.List(0), "ListSection");
}

TEST_F(MainLoad, toolbarHasFourteenButtonsInOrderWithTheirTips) {
  std::vector<std::string> buttons;
  for (const Toolbar::Button& b : controls.ToolbarTop.buttons())
    buttons.push_back(b.key + "|" + b.toolTip + "|" + b.image);
  EXPECT_THAT(buttons,
              ElementsAre("GRID|GRID(Ctrl+G)|IMG1", "SQL|SQL(Ctrl+S)|IMG2", "PLAN|PLAN(Ctrl+P)|IMG3",
                          "GRAPH_START|GRAPH_START|IMG11", "GRAPH_LEFT|GRAPH_LEFT|IMG6",
                          "GRAPH_DISP|GRAPH_DISP|IMG7", "GRAPH_MAX|GRAPH_MAX|IMG12", "LIST|LIST|IMG10",
                          "GRAPH_RIGHT|GRAPH_RIGHT|IMG8", "GRAPH_END|GRAPH_END|IMG13", "START|START|",
                          "END|END|", "COPY|COPY|IMG5", "HELP|HELP|IMG15"));
}

TEST_F(MainLoad, aClusterInstanceListsItsSectionsAndASingleOneDoesNot) {
  layInstance(server, "2002", "11.2.0.1.0", "1", "NO");
  load();
  EXPECT_EQ(controls.ListSection.ListCount(), 5);
  controls.ComboDbInstance.ListIndex(1);
  EXPECT_EQ(main.version(), "11");
  EXPECT_EQ(main.rac(), "NO");
  EXPECT_EQ(controls.ListSection.ListCount(), 4);
}

TEST_F(MainLoad, theParallelFlagIsTakenAsItStands) {
  layInstance(server, "2002", "10.2.0.4.0", "1", "yes");
  load();
  controls.ComboDbInstance.ListIndex(1);
  EXPECT_EQ(main.rac(), "yes");
  EXPECT_EQ(controls.ListSection.ListCount(), 4) << "only YES is a cluster";
}

struct RefusedVersion {
  const char* name;
  const char* version;
  const char* kept;
};
void PrintTo(const RefusedVersion& refused, std::ostream* out) { *out << refused.name; }

class VersionGate : public MainTest, public testing::WithParamInterface<RefusedVersion> {};

TEST_P(VersionGate, refusesWithOneBoxAfterThePairsWereLoaded) {
  layInstance(server, "2002", GetParam().version, "7", "NO");
  load();
  section("Empty");
  controls.ComboDbInstance.ListIndex(1);
  EXPECT_THAT(boxes.shown, ElementsAre(kVersionBox));
  EXPECT_EQ(server.asked.back().binds.at("B1").second, "2002") << "the pairs are the refused instance's";
  EXPECT_EQ(server.asked.back().binds.at("B2").second, "7");
  EXPECT_EQ(main.version(), GetParam().kept);
  EXPECT_EQ(main.rac(), "YES") << "stays as it was";
  EXPECT_EQ(controls.ListSection.ListCount(), 5) << "stays as it was";
  EXPECT_EQ(controls.ListSection.ListIndex(), 0) << "the load of the pairs selects the first";
  EXPECT_FALSE(main.unloaded());
}

INSTANTIATE_TEST_SUITE_P(Versions, VersionGate,
                         testing::Values(RefusedVersion{"older", "8.1.7.0.0", "8"},
                                         RefusedVersion{"newer", "12.1.0.2.0", "12"},
                                         RefusedVersion{"leadingBlank", " 10.2.0.4.0", " 10"},
                                         RefusedVersion{"withoutAPoint", "11", ""},
                                         RefusedVersion{"pointFirst", ".11", ""}),
                         [](const auto& tested) { return tested.param.name; });

TEST_F(MainLoad, choosingTheSameInstanceAgainUndoesTheRange) {
  load();
  pair(2);
  laySnapshots(server, {{"3", "2026-01-05 12:00:00"}, {"4", "2026-01-05 13:00:00"}},
               testing_support::kRangeOfSnapshots);
  press("START");
  ASSERT_EQ(controls.ListSnapId.ListCount(), 1);
  controls.ComboDbInstance.ListIndex(0);
  EXPECT_EQ(controls.ListSnapId.ListCount(), 3);
}

TEST_F(MainLoad, withoutInstancesItUnloadsBeforeAnythingElse) {
  server.answer(testing_support::kInstances).rows.clear();
  load();
  EXPECT_TRUE(main.unloaded());
  EXPECT_EQ(unloads, 1);
  EXPECT_THAT(boxes.shown, ElementsAre("[Critical] 有効なDB_INSTANCE情報が存在しませんでした"));
  EXPECT_THAT(tablesRead(), ElementsAre("instances"));
  EXPECT_EQ(server.openConnections, 0);
  EXPECT_EQ(controls.Title.Caption(), "FormMain");
}

TEST_F(MainLoad, withOneSnapshotItUnloadsAndRendersNothing) {
  laySnapshots(server, {{"1", "2026-01-05 10:00:00"}});
  load();
  EXPECT_TRUE(main.unloaded());
  EXPECT_EQ(unloads, 1);
  EXPECT_THAT(boxes.shown, ElementsAre("[Critical] SNAP_IDが2件未満でした"));
  EXPECT_THAT(rendered(), IsEmpty());
  EXPECT_EQ(controls.LabelSnapId.Caption(), "");
}

TEST_F(MainLoad, aRepositoryWithoutSnapshotTableUnloadsWithThreeBoxes) {
  server.answer(testing_support::kSnapshots).fails = true;
  load();
  EXPECT_TRUE(main.unloaded());
  EXPECT_THAT(boxes.shown, ElementsAre("[Critical] (clsSnapId){getSNAP_ID} Error",
                                       "[Critical] (clsSnapId){getSTART_END_SNAP_ID} Error",
                                       "[Critical] SNAP_IDの取得に失敗しました"));
}

TEST_F(MainLoad, anInstanceThatHasLostItsSnapshotsUnloadsARunningWindow) {
  load();
  server.answer(testing_support::kSnapshots).rows.clear();
  controls.ComboDbInstance.ListIndex(0);
  EXPECT_TRUE(main.unloaded());
  EXPECT_EQ(unloads, 1);
  EXPECT_EQ(server.openConnections, 0);
}

TEST_F(MainLoad, afterAnUnloadNothingReacts) {
  load();
  main.Unload();
  main.Unload();
  rendered().clear();
  server.asked.clear();
  boxes.shown.clear();
  help.calls.clear();
  controls.ComboDbInstance.ListIndex(0);
  pair(1);
  doubleClick(1);
  for (const Toolbar::Button& button : controls.ToolbarTop.buttons())
    controls.ToolbarTop.ButtonClick(button.key);
  controls.MSFlexGridSql.DblClick();
  controls.FrameGraph.DblClick();
  EXPECT_FALSE(main.KeyDown('G', 2));
  EXPECT_FALSE(main.GridKeyDown(controls.MSFlexGridMain, 'C', 2));
  main.m_CWheel_MouseWheel(-1);
  EXPECT_EQ(unloads, 1);
  EXPECT_THAT(rendered(), IsEmpty());
  EXPECT_THAT(server.asked, IsEmpty());
  EXPECT_THAT(boxes.shown, IsEmpty());
  EXPECT_THAT(clipboard.steps, IsEmpty());
  EXPECT_THAT(help.calls, IsEmpty());
  EXPECT_THAT(recorded.calls, IsEmpty());
}

TEST_F(MainLoad, closingEndsTheConnectionAndThenTheHelpWindows) {
  load();
  main.Unload();
  EXPECT_EQ(server.openConnections, 0);
  EXPECT_EQ(server.openSessions, 0);
  EXPECT_THAT(help.calls, ElementsAre(Pair((folder.path() / "Kestrelix.chm").string(), 18)));
  EXPECT_EQ(help.connectionsAtCall, 0);
}

TEST_F(MainLoad, helpOpensTheContentsOfTheFileInTheProgramsFolder) {
  load();
  press("HELP");
  EXPECT_THAT(help.calls, ElementsAre(Pair((folder.path() / "Kestrelix.chm").string(), 1)));
}

}  // namespace
}  // namespace kestrelix
