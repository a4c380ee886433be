#include <gtest/gtest.h>

#include <set>

#include "sections/SectionList.h"
#include "shell/ModuleDispCommon.h"
#include "support/recording_boxes.h"
#include "support/snapshots.h"

namespace kestrelix {
namespace {

class Catalogue : public testing::Test {
 protected:
  std::vector<std::string> listed(const std::string& version, const std::string& parallel) {
    gDispSectionList(workspace, sectionList(), version, parallel);
    std::vector<std::string> texts;
    for (int i = 0; i < workspace.controls.ListSection.ListCount(); ++i)
      texts.push_back(workspace.controls.ListSection.List(i));
    return texts;
  }
  /// The codes of the entries in their order, runs of neighbours as "20-23".
  std::string codes(const std::string& version, const std::string& parallel) {
    gDispSectionList(workspace, sectionList(), version, parallel);
    const ListBox& list = workspace.controls.ListSection;
    std::string text;
    for (int i = 0; i < list.ListCount();) {
      const long first = list.ItemData(i);
      long last = first;
      while (++i < list.ListCount() && list.ItemData(i) == last + 1) ++last;
      text += (text.empty() ? "" : " ") + std::to_string(first);
      if (last > first) text += "-" + std::to_string(last);
    }
    return text;
  }
  bool has(const std::vector<std::string>& texts, const std::string& text) {
    return std::find(texts.begin(), texts.end(), text) != texts.end();
  }

  testing_support::RecordingBoxes boxes;
  Workspace workspace{boxes};
};

TEST_F(Catalogue, countsByVersionAndCluster) {
  EXPECT_EQ(sectionList().size(), 94u);
  EXPECT_EQ(listed("9", "NO").size(), 46u);
  EXPECT_EQ(listed("9", "YES").size(), 46u);
  EXPECT_EQ(listed("10", "NO").size(), 69u);
  EXPECT_EQ(listed("10", "YES").size(), 86u);
  EXPECT_EQ(listed("11", "NO").size(), 76u);
  EXPECT_EQ(listed("11", "YES").size(), 94u);
}

TEST_F(Catalogue, codesStandInFamiliesWithGapsForWhatAVersionLacks) {
  EXPECT_EQ(codes("9", "YES"),
            "0-4 20-21 34-37 42-45 50 64-65 70-71 75-76 80-83 90 100-103 111-113 120-124 140 142 160 164-165 "
            "170 180");
  EXPECT_EQ(codes("10", "NO"),
            "0-9 20-21 23 30-39 42-45 50-52 60 64-66 70-71 75-76 80-85 90 100-103 111-114 120-124 140 142 "
            "160-166 170 180");
  EXPECT_EQ(codes("10", "YES"),
            "0-14 20-21 23 30-45 50-52 60 64-66 70-71 75-76 80-85 90 100-103 111-114 120-124 130-132 140-143 "
            "150-153 155 160-166 170 180");
  EXPECT_EQ(codes("11", "NO"),
            "0-9 20-23 30-39 42-45 50-52 60-66 70-76 80-85 90 100-103 111-114 120-124 140 142 160-166 170 "
            "180");
  EXPECT_EQ(codes("11", "YES"),
            "0-14 20-23 30-45 50-52 60-66 70-76 80-85 90 100-103 111-114 120-124 130-132 140-143 150-155 "
            "160-166 170 180");
}

TEST_F(Catalogue, theFirstEntryIsSelected) {
  listed("10", "NO");
  EXPECT_EQ(workspace.controls.ListSection.Text(), "Snapshot");
}

TEST_F(Catalogue, version9HasNoHostCpuNoTimeModelAndNoClusterEntry) {
  const auto texts = listed("9", "YES");
  for (const char* text : {"Host CPU", "Time Model System Stats", "RAC Statistics", "Global Enqueue Stats"})
    EXPECT_FALSE(has(texts, text)) << text;
}

TEST_F(Catalogue, interconnectPingsNeedVersion11AndACluster) {
  EXPECT_TRUE(has(listed("11", "YES"), "Interconnect Ping Stats"));
  EXPECT_FALSE(has(listed("11", "NO"), "Interconnect Ping Stats"));
  EXPECT_FALSE(has(listed("10", "YES"), "Interconnect Ping Stats"));
}

TEST_F(Catalogue, someSectionsAreForVersion11Alone) {
  for (const char* text : {"Foreground Wait Events", "OS Statistics - detail",
                           "IO Stat by Function - summary", "IO Stat by Function - detail",
                           "Memory Target Advice", "Memory Dynamic Components", "Memory Resize Operations"}) {
    EXPECT_TRUE(has(listed("11", "NO"), text)) << text;
    EXPECT_FALSE(has(listed("10", "NO"), text)) << text;
    EXPECT_FALSE(has(listed("9", "NO"), text)) << text;
  }
}

TEST_F(Catalogue, lettersOfTheNamesAreAsTheyAre) {
  const auto texts = listed("11", "YES");
  EXPECT_TRUE(has(texts, "Segments By CU Blocks Received"));
  EXPECT_TRUE(has(texts, "Buffer wait Statistics"));
}

TEST_F(Catalogue, onlyYesCountsAsACluster) {
  for (const char* parallel : {"NO", "yes", "YES ", "", "TRUE"})
    EXPECT_EQ(listed("11", parallel).size(), 76u);
}

TEST_F(Catalogue, theSecondCacheSectionsStandOnAClusterAlone) {
  const auto single = listed("10", "NO");
  EXPECT_TRUE(has(single, "Dictionary Cache Stats[1]"));
  EXPECT_FALSE(has(single, "Dictionary Cache Stats[2]"));
  EXPECT_TRUE(has(single, "Library Cache Activity[1]"));
  EXPECT_FALSE(has(single, "Library Cache Activity[2]"));
}

TEST_F(Catalogue, namesAreUnique) {
  std::set<std::string_view> texts;
  for (const Section& entry : sectionList()) EXPECT_TRUE(texts.insert(entry.text).second) << entry.text;
}

TEST_F(Catalogue, anUnknownTextDoesNothing) {
  workspace.controls.ListSection.AddItem("ListSection");
  workspace.controls.ListSection.ListIndex(0);
  gDispSectionAll(workspace, directReader(), sectionList(), "");
  gDispSectionCol(workspace, directReader(), sectionList(), "");
  EXPECT_TRUE(boxes.shown.empty());
}

/// A pair of a database that the gate has refused, with the list of another instance still on show.
class RefusedRelease : public Catalogue {
 protected:
  RefusedRelease() {
    for (const char* key : {"GRID", "SQL", "PLAN"}) workspace.controls.ToolbarTop.Add(key, key, "");
    testing_support::laySnapshots(server, {{"1", "2026-01-05 10:00:00"}, {"2", "2026-01-05 11:00:00"}});
    workspace.repository.gOraDatabase = std::make_unique<testing_support::FakeDatabase>(server);
    EXPECT_TRUE(workspace.repository.loadPairs("1001", "1", false).empty());
    workspace.controls.ListSnapId.AddItem("1 2");
    workspace.controls.ListSnapId.ListIndex(0);
    server.asked.clear();
  }
  void show(const std::string& section, const std::string& version) {
    const auto texts = listed("10", "NO");
    const auto at = std::find(texts.begin(), texts.end(), section);
    workspace.controls.ListSection.ListIndex(static_cast<int>(at - texts.begin()));
    gDispSectionAll(workspace, directReader(), sectionList(), version);
  }

  testing_support::FakeServer server;
};

TEST_F(RefusedRelease, sectionsThatDifferByReleaseShowNothingAndTurnNoButtonOn) {
  Grid& grid = workspace.controls.MSFlexGridMain;
  grid.TextMatrix(1, 1, "former");
  for (const char* version : {"8", "12", ""})
    for (const char* section : {"Load Profile", "Instance Efficiency", "SQL ordered by Gets TOTAL",
                                "SQL ordered by Version Count", "Buffer Pool Advisory"}) {
      show(section, version);
      EXPECT_EQ(grid.TextMatrix(1, 1), "former") << section << " " << version;
      for (const char* key : {"GRID", "SQL", "PLAN"})
        EXPECT_FALSE(workspace.controls.ToolbarTop.Enabled(key)) << section << " " << version;
    }
  EXPECT_TRUE(server.asked.empty());
  EXPECT_TRUE(boxes.shown.empty());
}

}  // namespace
}  // namespace kestrelix
