// Where the stored logins lie.
#include "shell/login_folder.h"

#include "shell/clsLoginCommon.h"
#include "shell/shell_fixture.h"

namespace kestrelix {
namespace {

using std::filesystem::perms;
using testing_support::ProgramFolder;

/// No user, root neither, can make a file there.
const std::filesystem::path kUnwritable = "/proc";

class LoginFolderTest : public testing::Test {
 protected:
  std::filesystem::path own() const { return home.path() / ".local/share/kestrelix"; }

  ProgramFolder program;
  ProgramFolder home;
};

TEST_F(LoginFolderTest, noFolderThatCanBeWrittenLeavesTheFailureToTheStore) {
  EXPECT_EQ(loginFolder(kUnwritable, ""), kUnwritable);
  EXPECT_EQ(loginFolder(kUnwritable, "/proc"), kUnwritable);
}

TEST_F(LoginFolderTest, aFileInTheWayOfTheOwnFolderLeavesTheFailureToTheStore) {
  std::filesystem::create_directories(own().parent_path());
  std::ofstream(own()) << "in the way";
  EXPECT_EQ(loginFolder(kUnwritable, home.path()), kUnwritable);
}

TEST_F(LoginFolderTest, aDamagedFileOfTheProgramsFolderIsNotPassedOver) {
  program.lockLogins();
  EXPECT_EQ(loginFolder(program.path(), home.path()), program.path());
  EXPECT_FALSE(std::filesystem::exists(own()));
}

TEST_F(LoginFolderTest, theProgramsFolderComesFirstAndKeepsItsLogins) {
  program.writeLogins("A,B,C\r\n");
  EXPECT_EQ(loginFolder(program.path(), home.path()), program.path());
  EXPECT_EQ(program.readLogins(), "A,B,C\r\n");
  EXPECT_FALSE(std::filesystem::exists(own()));
}

TEST_F(LoginFolderTest, aFreshProgramsFolderGetsAFileForItsOwnerAlone) {
  EXPECT_EQ(loginFolder(program.path(), home.path()), program.path());
  EXPECT_EQ(std::filesystem::status(program.logins()).permissions(), perms::owner_read | perms::owner_write);
}

TEST_F(LoginFolderTest, withoutTheRightToWriteTheLoginsLieInAFolderOfTheUserAlone) {
  EXPECT_EQ(loginFolder(kUnwritable, home.path()), own());
  EXPECT_EQ(std::filesystem::status(own()).permissions(), perms::owner_all);
}

TEST_F(LoginFolderTest, anOwnFolderThatIsThereIsTakenAsItIs) {
  std::filesystem::create_directories(own());
  std::ofstream(own() / "Login.txt") << "A,B,C\r\n";
  EXPECT_EQ(loginFolder(kUnwritable, home.path()), own());
  std::ifstream file(own() / "Login.txt");
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(file), {}), "A,B,C\r\n");
}

TEST_F(LoginFolderTest, theLoginDialogReadsAndWritesThere) {
  std::filesystem::create_directories(own());
  testing_support::RecordingBoxes boxes;
  clsLoginCommon store(boxes, loginFolder(kUnwritable, home.path()));
  store.Initialize();
  store.gSetLoginData("DEMO", "PERFSTAT", "secret");
  EXPECT_TRUE(store.gLoginDataRead() && store.gLoginDataAdd() && store.gLoginDataWrite());
  EXPECT_TRUE(std::filesystem::exists(own() / "Login.txt"));
}

}  // namespace
}  // namespace kestrelix
