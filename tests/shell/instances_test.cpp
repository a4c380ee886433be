// The list of instances.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "shell/ModuleLoadCommon.h"
#include "support/recording_boxes.h"
#include "support/snapshots.h"

namespace kestrelix {
namespace {

using testing::ElementsAre;
using testing_support::FakeDatabase;
using testing_support::FakeServer;
using testing_support::layInstance;
using testing_support::RecordingBoxes;

class Instances : public testing::Test {
 protected:
  Instances() { workspace.repository.gOraDatabase = std::make_unique<FakeDatabase>(server); }
  const ComboBox& combo() const { return workspace.controls.ComboDbInstance; }

  FakeServer server;
  RecordingBoxes boxes;
  Workspace workspace{boxes};
};

TEST_F(Instances, lineShowsSevenFieldsUnderTheHeading) {
  layInstance(server, "1001", "10.2.0.4.0", "1", "YES");
  ASSERT_TRUE(gDispDbInstance_Load(workspace));
  EXPECT_EQ(combo().List(0),
            "              1001"
            "              ORCL"
            "        10.2.0.4.0"
            "                 1"
            "             orcl1"
            "            dbhost"
            "       YES");
  EXPECT_EQ(combo().List(0).size(), 118u);
  EXPECT_EQ(combo().ItemData(0), 0);
}

TEST_F(Instances, twoInstancesOfOneDatabaseAreTwoRows) {
  layInstance(server, "1001", "10.2.0.4.0", "1", "YES");
  layInstance(server, "1001", "10.2.0.4.0", "2", "YES");
  ASSERT_TRUE(gDispDbInstance_Load(workspace));
  EXPECT_EQ(combo().ListCount(), 2);
  EXPECT_EQ(combo().ItemData(1), 1);
  EXPECT_EQ(workspace.repository.gDbInstance->INSTANCE_NUMBER(1), "2");
}

TEST_F(Instances, aFieldOfItsColumnsWidthJoinsItsLeftNeighbour) {
  layInstance(server, "1001", "10.2.0.4.0", "1", "NO", "eighteen-chars-x18");
  ASSERT_TRUE(gDispDbInstance_Load(workspace));
  EXPECT_EQ(combo().List(0).substr(72), "             orcl1eighteen-chars-x18        NO");
}

TEST_F(Instances, aLongerFieldIsShownWhole) {
  layInstance(server, "1001", "10.2.0.4.0", "1", "NO", "nineteen-characters");
  ASSERT_TRUE(gDispDbInstance_Load(workspace));
  EXPECT_EQ(combo().List(0).substr(85), "orcl1nineteen-characters        NO");
}

TEST_F(Instances, widthsCountCharactersAndNotBytes) {
  layInstance(server, "1001", "10.2.0.4.0", "1", "NO", "札幌");
  ASSERT_TRUE(gDispDbInstance_Load(workspace));
  EXPECT_EQ(combo().List(0).substr(90), "                札幌        NO");
}

TEST_F(Instances, anEmptyTableHasABoxOfItsOwn) {
  server.answer(testing_support::kInstances);
  EXPECT_FALSE(gDispDbInstance_Load(workspace));
  EXPECT_THAT(boxes.shown, ElementsAre("[Critical] 有効なDB_INSTANCE情報が存在しませんでした"));
}

TEST_F(Instances, aUserWithoutTheTablesGetsTwoBoxes) {
  server.answer(testing_support::kInstances).fails = true;
  EXPECT_FALSE(gDispDbInstance_Load(workspace));
  EXPECT_THAT(boxes.shown, ElementsAre("[Critical] (clsDbInstance){getDB_INSTANCE} Error",
                                       "[Critical] DB_INSTANCEの取得に失敗しました"));
}

TEST_F(Instances, askedForOnceWithoutBinds) {
  layInstance(server, "1001", "10.2.0.4.0", "1");
  ASSERT_TRUE(gDispDbInstance_Load(workspace));
  ASSERT_EQ(server.asked.size(), 1u);
  EXPECT_EQ(
      server.asked[0].statement,
      "SELECT DISTINCT di.DBID, di.DB_NAME, di.VERSION, di.INSTANCE_NUMBER, di.INSTANCE_NAME, "
      "di.HOST_NAME, di.PARALLEL from stats$database_instance di order by di.DBID, di.INSTANCE_NUMBER ");
  EXPECT_TRUE(server.asked[0].binds.empty());
}

}  // namespace
}  // namespace kestrelix
