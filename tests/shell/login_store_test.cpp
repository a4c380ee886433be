// The file of stored logins.
#include "shell/clsLoginCommon.h"
#include "shell/shell_fixture.h"

namespace kestrelix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing_support::ProgramFolder;
using testing_support::RecordingBoxes;

class LoginStore : public testing::Test {
 protected:
  LoginStore() { store.Initialize(); }

  /// The rows as "TNS USER PASSWORD".
  std::vector<std::string> rows() const {
    std::vector<std::string> lines;
    for (int i = 0; i < store.rownum(); ++i)
      lines.push_back(store.TNS_NAME(i) + " " + store.USER_NAME(i) + " " + store.PASSWORD(i));
    return lines;
  }
  bool read(const std::string& bytes) {
    folder.writeLogins(bytes);
    return store.gLoginDataRead();
  }
  bool add(const std::string& tns, const std::string& user, const std::string& password) {
    store.gSetLoginData(tns, user, password);
    return store.gLoginDataAdd();
  }

  ProgramFolder folder;
  RecordingBoxes boxes;
  clsLoginCommon store{boxes, folder.path()};
};

TEST_F(LoginStore, aFirstStartMakesAnEmptyFileForItsOwnerAlone) {
  EXPECT_TRUE(store.gLoginDataRead());
  EXPECT_EQ(store.rownum(), 0);
  EXPECT_EQ(folder.readLogins(), "");
  struct stat status {};
  ASSERT_EQ(::stat(folder.logins().c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0600u);
}

TEST_F(LoginStore, anEmptyFileIsValidAndNoRowsLeaveOne) {
  EXPECT_TRUE(read(""));
  EXPECT_TRUE(store.gLoginDataWrite());
  EXPECT_EQ(folder.readLogins(), "");
}

TEST_F(LoginStore, readsLinesInTheirOrder) {
  EXPECT_TRUE(read("DEMO,PERFSTAT,perfstat\r\nPROD,SYSTEM,Manager\r\n"));
  EXPECT_THAT(rows(), ElementsAre("DEMO PERFSTAT perfstat", "PROD SYSTEM Manager"));
}

TEST_F(LoginStore, writesBackTheBytesThatItRead) {
  const std::string bytes = "DEMO,PERFSTAT,perf stat\"'/\r\n\x93\xfa\x96\x7b,\xe6\x97\xa5,\xff\r\n";
  EXPECT_TRUE(read(bytes));
  EXPECT_TRUE(store.gLoginDataWrite());
  EXPECT_EQ(folder.readLogins(), bytes);
}

TEST_F(LoginStore, aHandEditedFileMayEndItsLinesWithLineFeedsOrNotAtAll) {
  EXPECT_TRUE(read("DEMO,PERFSTAT,perfstat\nPROD,SYSTEM,manager"));
  EXPECT_THAT(rows(), ElementsAre("DEMO PERFSTAT perfstat", "PROD SYSTEM manager"));
  EXPECT_TRUE(store.gLoginDataWrite());
  EXPECT_EQ(folder.readLogins(), "DEMO,PERFSTAT,perfstat\r\nPROD,SYSTEM,manager\r\n");
}

TEST_F(LoginStore, threeOneLetterFieldsAreTheShortestLine) {
  EXPECT_TRUE(read("A,B,C\r\n"));
  EXPECT_THAT(rows(), ElementsAre("A B C"));
}

TEST_F(LoginStore, theFourthFieldIsReadAsThePassword) {
  EXPECT_TRUE(read("DEMO,PERFSTAT,first,second\r\n"));
  EXPECT_THAT(rows(), ElementsAre("DEMO PERFSTAT second"));
}

TEST_F(LoginStore, whatStandsBehindTheFirstCommaOfAPasswordStays) {
  EXPECT_TRUE(read("DEMO,PERFSTAT,a,b,c\r\n"));
  EXPECT_THAT(rows(), ElementsAre("DEMO PERFSTAT b,c"));
}

struct BadFile {
  const char* name;
  const char* bytes;
};
void PrintTo(const BadFile& file, std::ostream* out) { *out << file.name; }

class MalformedLoginStore : public LoginStore, public testing::WithParamInterface<BadFile> {};

TEST_P(MalformedLoginStore, failsTheWholeReadWithOneBoxAndStaysAsItIs) {
  EXPECT_FALSE(read(GetParam().bytes));
  EXPECT_THAT(boxes.shown, ElementsAre("[Critical] (clsLoginCommon){gLoginDataRead} Error"));
  EXPECT_EQ(folder.readLogins(), GetParam().bytes);
}

INSTANTIATE_TEST_SUITE_P(
    Files, MalformedLoginStore,
    testing::Values(BadFile{"blankLineAtTheEnd", "DEMO,PERFSTAT,perfstat\r\n\r\n"},
                    BadFile{"blankLineFirst", "\r\nDEMO,PERFSTAT,perfstat\r\n"},
                    BadFile{"tooShort", "A,B,\r\n"}, BadFile{"noComma", "DEMO PERFSTAT\r\n"},
                    BadFile{"oneComma", "DEMO,PERFSTAT\r\n"}, BadFile{"noTnsName", ",PERFSTAT,perfstat\r\n"},
                    BadFile{"noUser", "DEMO,,perfstat\r\n"}, BadFile{"noPassword", "DEMO,PERFSTAT,\r\n"},
                    BadFile{"passwordEndsInAComma", "DEMO,PERFSTAT,secret,\r\n"}),
    [](const auto& tested) { return tested.param.name; });

TEST_F(LoginStore, aNewLoginGoesToTheHead) {
  read("DEMO,PERFSTAT,perfstat\r\n");
  EXPECT_TRUE(add("PROD", "SYSTEM", "manager"));
  EXPECT_THAT(rows(), ElementsAre("PROD SYSTEM manager", "DEMO PERFSTAT perfstat"));
}

TEST_F(LoginStore, aKnownLoginKeepsItsPlaceAndTakesThePassword) {
  read("A,U,1\r\nB,U,2\r\nC,U,3\r\n");
  EXPECT_TRUE(add("B", "U", "new"));
  EXPECT_THAT(rows(), ElementsAre("A U 1", "B U new", "C U 3"));
}

TEST_F(LoginStore, aKnownLoginWithItsPasswordChangesNothing) {
  read("A,U,1\r\nB,U,2\r\n");
  EXPECT_TRUE(add("B", "U", "2"));
  EXPECT_THAT(rows(), ElementsAre("A U 1", "B U 2"));
}

TEST_F(LoginStore, everyRowOfAKnownLoginTakesThePassword) {
  read("A,U,1\r\nB,U,2\r\nA,U,3\r\n");
  EXPECT_TRUE(add("A", "U", "new"));
  EXPECT_THAT(rows(), ElementsAre("A U new", "B U 2", "A U new"));
}

TEST_F(LoginStore, theSameUserOnAnotherDatabaseAndLetterCaseAreOtherLogins) {
  read("DEMO,PERFSTAT,1\r\n");
  add("PROD", "PERFSTAT", "2");
  add("demo", "PERFSTAT", "3");
  EXPECT_THAT(rows(), ElementsAre("demo PERFSTAT 3", "PROD PERFSTAT 2", "DEMO PERFSTAT 1"));
}

TEST_F(LoginStore, aPasswordWithACommaIsWrittenWholeAndReadBackCut) {
  store.gLoginDataRead();
  add("DEMO", "PERFSTAT", "left,right");
  EXPECT_TRUE(store.gLoginDataWrite());
  EXPECT_EQ(folder.readLogins(), "DEMO,PERFSTAT,left,right\r\n");
  clsLoginCommon again(boxes, folder.path());
  again.Initialize();
  EXPECT_TRUE(again.gLoginDataRead());
  EXPECT_EQ(again.PASSWORD(0), "right");
}

TEST_F(LoginStore, deletesOneRow) {
  read("A,U,1\r\nB,U,2\r\nC,U,3\r\n");
  EXPECT_TRUE(store.gLoginDataDelete(1));
  EXPECT_THAT(rows(), ElementsAre("A U 1", "C U 3"));
}

TEST_F(LoginStore, deletingTheLastRowLeavesAnEmptyFile) {
  read("A,U,1\r\n");
  EXPECT_TRUE(store.gLoginDataDelete(0));
  EXPECT_TRUE(store.gLoginDataWrite());
  EXPECT_EQ(folder.readLogins(), "");
}

TEST_F(LoginStore, deletingARowThatIsNotThereShowsTheMembersBox) {
  read("A,U,1\r\n");
  EXPECT_FALSE(store.gLoginDataDelete(1));
  EXPECT_FALSE(store.gLoginDataDelete(-1));
  EXPECT_THAT(boxes.shown, ElementsAre("[Critical] (clsLoginCommon){gLoginDataDelete} Error",
                                       "[Critical] (clsLoginCommon){gLoginDataDelete} Error"));
  EXPECT_THAT(rows(), ElementsAre("A U 1"));
}

TEST_F(LoginStore, aFileThatCannotBeOpenedFailsReadAndWrite) {
  folder.lockLogins();
  EXPECT_FALSE(store.gLoginDataRead());
  EXPECT_FALSE(store.gLoginDataWrite());
  EXPECT_THAT(boxes.shown, ElementsAre("[Critical] (clsLoginCommon){gLoginDataRead} Error",
                                       "[Critical] (clsLoginCommon){gLoginDataWrite} Error"));
}

TEST_F(LoginStore, aFolderThatTakesNoFilesFailsTheRead) {
  clsLoginCommon elsewhere(boxes, "/proc");
  elsewhere.Initialize();
  EXPECT_FALSE(elsewhere.gLoginDataRead());
  EXPECT_THAT(boxes.shown, ElementsAre("[Critical] (clsLoginCommon){gLoginDataRead} Error"));
}

TEST_F(LoginStore, aFullDiskFailsTheWrite) {
  read("A,U,1\r\n");
  std::filesystem::remove(folder.logins());
  std::filesystem::create_symlink("/dev/full", folder.logins());
  EXPECT_FALSE(store.gLoginDataWrite());
  EXPECT_THAT(boxes.shown, ElementsAre("[Critical] (clsLoginCommon){gLoginDataWrite} Error"));
}

TEST_F(LoginStore, anotherInitializeForgetsTheRows) {
  read("A,U,1\r\n");
  store.Initialize();
  EXPECT_THAT(rows(), IsEmpty());
}

}  // namespace
}  // namespace kestrelix
