// The login dialog.
#include "shell/shell_fixture.h"

namespace kestrelix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing_support::ShellTest;

constexpr const char* kConnectBox = "[Critical] (ModuleCommon){OPEN_Conect} Error";
constexpr const char* kNotConnected = "[Critical] データベースの接続に失敗しました";
constexpr const char* kReadBox = "[Critical] (clsLoginCommon){gLoginDataRead} Error";
constexpr const char* kNotRead = "[Critical] 接続データの取得に失敗しました";
constexpr const char* kNotUpdated = "[Critical] 接続データの更新に失敗しました";
constexpr const char* kNotDeleted = "[Critical] 接続データの削除に失敗しました";

class Login : public ShellTest {
 protected:
  Login() {
    login.showMain = [this] { steps.push_back("show main as " + login.user() + "@" + login.tns()); };
    login.Unloaded.connect([this] { steps.push_back("unload login"); });
  }

  void open(const std::string& stored = "") {
    folder.writeLogins(stored);
    login.Load(1);
  }
  void type(const std::string& user, const std::string& password, const std::string& tns) {
    login.controls.TextUSER.Text(user);
    login.controls.TextPASS.Text(password);
    login.controls.TextTNS.Text(tns);
  }
  void doubleClick(int row) {
    grid().userClick(row, 0);
    grid().userDoubleClick(row, 0);
  }
  Grid& grid() { return login.controls.MSFlexGridLogin; }
  /// The grid's cells, row by row.
  std::vector<std::string> cells() {
    std::vector<std::string> texts;
    for (int r = 0; r < grid().Rows(); ++r)
      for (int c = 0; c < grid().Cols(); ++c) texts.push_back(grid().TextMatrix(r, c));
    return texts;
  }
  std::vector<std::string> boxTexts() {
    return {login.controls.TextUSER.Text(), login.controls.TextPASS.Text(), login.controls.TextTNS.Text()};
  }

  FormLogin login{workspace, services};
  std::vector<std::string> steps;
};

TEST_F(Login, gridShowsNamesAndNeverPasswords) {
  open("DEMO,PERFSTAT,perfstat\r\nPROD,SYSTEM,manager\r\n");
  EXPECT_THAT(cells(), ElementsAre("TNS NAME", "USER NAME", "DEMO", "PERFSTAT", "PROD", "SYSTEM"));
  EXPECT_EQ(grid().FixedRows(), 1);
  EXPECT_EQ(grid().FixedCols(), 0);
  EXPECT_EQ(grid().ColWidth(0), 2060);
  EXPECT_EQ(grid().ColWidth(1), 2060);
  EXPECT_EQ(grid().Row(), 1);
  EXPECT_TRUE(grid().Visible());
}

TEST_F(Login, withoutStoredLoginsTheHeadingStandsAlone) {
  open();
  EXPECT_THAT(cells(), ElementsAre("TNS NAME", "USER NAME"));
  EXPECT_EQ(grid().Row(), 0);
  EXPECT_THAT(boxes.shown, IsEmpty());
}

TEST_F(Login, anUnreadableFileGivesThreeBoxesAndTheDialogWorks) {
  open("\r\n");
  EXPECT_THAT(boxes.shown,
              ElementsAre(kReadBox, "[Critical] (ModuleLoginCommon){gDispLoginGrid_Load} Error", kNotRead));
  EXPECT_FALSE(login.unloaded());
}

TEST_F(Login, clickCopiesTheStoredLoginIntoTheBoxes) {
  open("DEMO,PERFSTAT,perfstat\r\nPROD,SYSTEM,Manager\r\n");
  grid().userClick(2, 1);
  EXPECT_THAT(boxTexts(), ElementsAre("SYSTEM", "Manager", "PROD"));
}

TEST_F(Login, clickOnTheHeadingDoesNothing) {
  open("DEMO,PERFSTAT,perfstat\r\n");
  grid().userClick(0, 0);
  EXPECT_THAT(boxTexts(), ElementsAre("", "", ""));
}

TEST_F(Login, clickReadsTheFileAnew) {
  open("DEMO,PERFSTAT,perfstat\r\n");
  folder.writeLogins("TEST,SCOTT,tiger\r\n");
  grid().userClick(1, 0);
  EXPECT_THAT(boxTexts(), ElementsAre("SCOTT", "tiger", "TEST"));
}

TEST_F(Login, clickOnAnUnreadableFileGivesThreeBoxes) {
  open("DEMO,PERFSTAT,perfstat\r\n");
  folder.lockLogins();
  grid().userClick(1, 0);
  EXPECT_THAT(boxes.shown,
              ElementsAre(kReadBox, "[Critical] (ModuleLoginCommon){gDispLoginGrid_Click} Error", kNotRead));
}

TEST_F(Login, okConnectsStoresShowsTheMainWindowAndOnlyThenGoes) {
  open();
  type("perfstat", "perfstat", "demo");
  login.controls.CommandOK.Click();
  EXPECT_THAT(server.logins, ElementsAre("DEMO PERFSTAT/perfstat"));
  EXPECT_EQ(folder.readLogins(), "DEMO,PERFSTAT,perfstat\r\n");
  EXPECT_THAT(steps, ElementsAre("show main as PERFSTAT@DEMO", "unload login"));
  EXPECT_EQ(server.openConnections, 1);
  EXPECT_THAT(boxes.shown, IsEmpty());
}

TEST_F(Login, aWrongPasswordGivesTwoBoxesAndStoresNothing) {
  open();
  type("perfstat", "PERFSTAT", "demo");
  login.controls.CommandOK.Click();
  EXPECT_THAT(boxes.shown, ElementsAre(kConnectBox, kNotConnected));
  EXPECT_THAT(boxes.errors, ElementsAre("invalid username/password; logon denied"));
  EXPECT_EQ(folder.readLogins(), "");
  EXPECT_THAT(steps, IsEmpty());
  EXPECT_FALSE(login.unloaded());
}

TEST_F(Login, emptyBoxesGoToTheServerAndFailThere) {
  open();
  login.controls.CommandOK.Click();
  EXPECT_THAT(server.logins, ElementsAre(" /"));
  EXPECT_THAT(boxes.shown, ElementsAre(kConnectBox, kNotConnected));
}

TEST_F(Login, withoutAClientLibraryTheSameTwoBoxesCome) {
  services.makeSession = []() -> std::unique_ptr<Session> { throw std::runtime_error("no client library"); };
  open();
  login.controls.CommandOK.Click();
  EXPECT_THAT(boxes.shown, ElementsAre(kConnectBox, kNotConnected));
}

TEST_F(Login, aSlashInThePasswordGoesThroughUnchanged) {
  server.accounts = {"DEMO PERFSTAT/per/f'st\"at"};
  open();
  type("perfstat", "per/f'st\"at", "demo");
  login.controls.CommandOK.Click();
  EXPECT_EQ(folder.readLogins(), "DEMO,PERFSTAT,per/f'st\"at\r\n");
  EXPECT_TRUE(login.unloaded());
}

TEST_F(Login, anotherPasswordOfAStoredLoginReplacesItInItsPlace) {
  open("PROD,SYSTEM,manager\r\nDEMO,PERFSTAT,old\r\n");
  type("perfstat", "perfstat", "demo");
  login.controls.CommandOK.Click();
  EXPECT_EQ(folder.readLogins(), "PROD,SYSTEM,manager\r\nDEMO,PERFSTAT,perfstat\r\n");
}

TEST_F(Login, afterAFailedUpdateTheDialogStaysWithAnOpenConnectionAndASecondOkReplacesIt) {
  open();
  folder.lockLogins();
  type("perfstat", "perfstat", "demo");
  login.controls.CommandOK.Click();
  EXPECT_THAT(
      boxes.shown,
      ElementsAre(kReadBox, "[Critical] (ModuleLoginCommon){gDispLoginGrid_OK_Click} Error", kNotUpdated));
  EXPECT_THAT(steps, IsEmpty());
  EXPECT_EQ(server.openConnections, 1);

  std::filesystem::remove(folder.logins());
  login.controls.CommandOK.Click();
  EXPECT_EQ(server.openConnections, 1);
  EXPECT_EQ(server.openSessions, 1);
  EXPECT_THAT(steps, ElementsAre("show main as PERFSTAT@DEMO", "unload login"));
}

TEST_F(Login, aFailedAttemptLeavesNoConnectionOfAnEarlierOne) {
  open();
  folder.lockLogins();
  type("perfstat", "perfstat", "demo");
  login.controls.CommandOK.Click();
  type("perfstat", "wrong", "demo");
  login.controls.CommandOK.Click();
  EXPECT_EQ(server.openConnections, 0);
}

TEST_F(Login, doubleClickLogsOnWithWhatIsStored) {
  open("demo,perfstat,perfstat\r\n");
  grid().userClick(1, 0);
  type("somebody", "else", "elsewhere");
  grid().userDoubleClick(1, 0);
  EXPECT_THAT(server.logins, ElementsAre("DEMO PERFSTAT/perfstat"));
  EXPECT_EQ(folder.readLogins(), "DEMO,PERFSTAT,perfstat\r\ndemo,perfstat,perfstat\r\n");
}

TEST_F(Login, doubleClickHandsOverWithTheTitleOfItsFirstClick) {
  open("PROD,SYSTEM,manager\r\nDEMO,PERFSTAT,perfstat\r\n");
  doubleClick(2);
  EXPECT_THAT(steps, ElementsAre("show main as PERFSTAT@DEMO", "unload login"));
  EXPECT_EQ(folder.readLogins(), "PROD,SYSTEM,manager\r\nDEMO,PERFSTAT,perfstat\r\n");
}

TEST_F(Login, doubleClickOnTheHeadingDoesNothing) {
  open();
  grid().userDoubleClick(0, 0);
  grid().DblClick();
  EXPECT_THAT(server.logins, IsEmpty());
  EXPECT_THAT(boxes.shown, IsEmpty());
}

TEST_F(Login, aStoredPasswordCutAtItsCommaFailsAtTheConnection) {
  server.accounts = {"DEMO PERFSTAT/left,right"};
  open("DEMO,PERFSTAT,left,right\r\n");
  doubleClick(1);
  EXPECT_THAT(server.logins, ElementsAre("DEMO PERFSTAT/right"));
  EXPECT_THAT(boxes.shown, ElementsAre(kConnectBox, kNotConnected));
  EXPECT_FALSE(login.unloaded());
}

TEST_F(Login, doubleClickOnAnUnreadableFileGivesThreeBoxesAndDoesNotConnect) {
  open("DEMO,PERFSTAT,perfstat\r\n");
  folder.lockLogins();
  grid().userDoubleClick(1, 0);
  EXPECT_THAT(boxes.shown,
              ElementsAre(kReadBox, "[Critical] (ModuleLoginCommon){gGet_Connection_Data} Error", kNotRead));
  EXPECT_THAT(server.logins, IsEmpty());
}

TEST_F(Login, doubleClickOnALoginThatHasGoneFromTheFileIsOneBoxAndTheCallers) {
  open("DEMO,PERFSTAT,perfstat\r\n");
  folder.writeLogins("");
  grid().userDoubleClick(1, 0);
  EXPECT_THAT(boxes.shown,
              ElementsAre("[Critical] (ModuleLoginCommon){gGet_Connection_Data} Error", kNotRead));
}

/// A server that spoils the file of logins while it lets the user in.
TEST_F(Login, doubleClickThatCannotStoreNamesItsOwnFunction) {
  open("DEMO,PERFSTAT,perfstat\r\n");
  services.makeSession = [this]() -> std::unique_ptr<Session> {
    folder.lockLogins();
    return std::make_unique<testing_support::FakeSession>(server);
  };
  grid().userDoubleClick(1, 0);
  EXPECT_THAT(boxes.shown,
              ElementsAre(kReadBox, "[Critical] (ModuleLoginCommon){gDispLoginGrid_Double_Click} Error",
                          kNotUpdated));
  EXPECT_THAT(steps, IsEmpty());
}

TEST_F(Login, deleteRemovesTheCurrentRowAndKeepsTheBoxes) {
  open("A,U,1\r\nB,U,2\r\nC,U,3\r\n");
  grid().userClick(2, 0);
  login.controls.CommandDELETE.Click();
  EXPECT_EQ(folder.readLogins(), "A,U,1\r\nC,U,3\r\n");
  EXPECT_THAT(cells(), ElementsAre("TNS NAME", "USER NAME", "A", "U", "C", "U"));
  EXPECT_THAT(boxTexts(), ElementsAre("U", "2", "B"));
}

TEST_F(Login, deleteTakesTheFirstRowWhenNoneWasClicked) {
  open("A,U,1\r\nB,U,2\r\n");
  login.controls.CommandDELETE.Click();
  EXPECT_EQ(folder.readLogins(), "B,U,2\r\n");
}

TEST_F(Login, deleteOfTheLastRowLeavesAnEmptyFileAndTheHeading) {
  open("A,U,1\r\n");
  login.controls.CommandDELETE.Click();
  EXPECT_EQ(folder.readLogins(), "");
  EXPECT_EQ(grid().Rows(), 1);
  login.controls.CommandDELETE.Click();
  EXPECT_THAT(boxes.shown, IsEmpty()) << "with the heading alone nothing happens";
}

TEST_F(Login, deleteOnAnUnreadableFileGivesThreeBoxes) {
  open("A,U,1\r\n");
  folder.lockLogins();
  login.controls.CommandDELETE.Click();
  EXPECT_THAT(boxes.shown,
              ElementsAre(kReadBox, "[Critical] (ModuleLoginCommon){gDispLoginGrid_Delete_Click} Error",
                          kNotDeleted));
}

TEST_F(Login, cancelGoesAndNothingReactsAfterIt) {
  open("DEMO,PERFSTAT,perfstat\r\n");
  login.controls.CommandCANCEL.Click();
  login.controls.CommandCANCEL.Click();
  doubleClick(1);
  login.controls.CommandOK.Click();
  EXPECT_THAT(steps, ElementsAre("unload login"));
  EXPECT_THAT(server.logins, IsEmpty());
}

}  // namespace
}  // namespace kestrelix
