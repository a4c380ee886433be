// Where the user's actions begin and end.
#include "shell/main_fixture.h"

namespace kestrelix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing_support::MainTest;
using testing_support::ShellTest;

class MainActions : public MainTest {
 protected:
  MainActions() {
    load();
    progress.calls.clear();
  }
};

TEST_F(MainActions, aPairASeriesAndAButtonAreEachOneAction) {
  pair(1);
  EXPECT_THAT(progress.calls, ElementsAre("begin", "end"));
  doubleClick(2);
  EXPECT_THAT(progress.calls, ElementsAre("begin", "end", "begin", "end"));
  press("GRAPH_DISP");
  EXPECT_EQ(progress.calls.size(), 6u);
}

TEST_F(MainActions, anInstanceTakesTheClickOnItsFirstPairIn) {
  controls.ComboDbInstance.ListIndex(0);
  EXPECT_THAT(progress.calls, ElementsAre("begin", "begin", "end", "end"));
}

TEST_F(MainActions, whatDoesNothingIsNoAction) {
  section("Empty");
  press("GRAPH_LEFT");
  EXPECT_THAT(progress.calls, IsEmpty());
  main.Unload();
  pair(0);
  EXPECT_THAT(progress.calls, IsEmpty());
}

TEST_F(MainActions, aLostRepositoryEndsItsActionToo) {
  server.answer(testing_support::kRangeOfSnapshots).fails = true;
  press("END");
  EXPECT_EQ(unloads, 1);
  EXPECT_THAT(progress.calls, ElementsAre("begin", "end"));
}

class LoginActions : public ShellTest {};

TEST_F(LoginActions, aLogonIsOneActionUntilTheMainWindowStands) {
  FormLogin login(workspace, services);
  std::vector<std::string> atHandOver;
  login.showMain = [&] { atHandOver = progress.calls; };
  login.Load(1);
  login.controls.TextUSER.Text("perfstat");
  login.controls.TextPASS.Text("perfstat");
  login.controls.TextTNS.Text("demo");
  login.controls.CommandOK.Click();
  EXPECT_THAT(atHandOver, ElementsAre("begin"));
  EXPECT_THAT(progress.calls, ElementsAre("begin", "end"));
}

}  // namespace
}  // namespace kestrelix
