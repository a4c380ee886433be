// Which back end a TNS name leads to.
#include "shell/BackEndChain.h"

#include "shell/shell_fixture.h"

namespace kestrelix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing_support::FakeServer;
using testing_support::FakeSession;
using testing_support::ProgramFolder;

class Chain : public testing::Test {
 protected:
  Chain() {
    std::filesystem::create_directory(folder.path() / "repository");
    touch("repository/DEMO.sqlite");
    server.accounts = {"DEMO PERFSTAT/perfstat"};
  }
  void touch(const std::string& file) { std::ofstream(folder.path() / file) << "x"; }

  /// Names that a server of the test's own knows.
  BackEnd serverFor(std::string known) {
    return [this, known](const std::string& name) -> std::unique_ptr<Session> {
      if (name != known) return nullptr;
      return std::make_unique<FakeSession>(server);
    };
  }
  BackEnd local() {
    return localRepositories(folder.path(), [this](const std::filesystem::path& file) {
      files.push_back(file.lexically_relative(folder.path()).string());
      return std::make_unique<FakeSession>(server);
    });
  }

  ProgramFolder folder;
  FakeServer server;
  std::vector<std::string> files;
};

TEST_F(Chain, aNameWithAFileInTheRepositoryFolderOpensIt) {
  BackEndChain chain({local()});
  EXPECT_NE(chain.OpenDatabase("DEMO", "PERFSTAT/perfstat", 1), nullptr);
  EXPECT_THAT(files, ElementsAre("repository/DEMO.sqlite"));
  EXPECT_THAT(server.logins, ElementsAre("DEMO PERFSTAT/perfstat"));
}

TEST_F(Chain, theFirstBackEndThatKnowsTheNameCounts) {
  BackEndChain chain({local(), serverFor("DEMO"), serverFor("PROD")});
  server.accounts.push_back("PROD SYSTEM/manager");
  EXPECT_NE(chain.OpenDatabase("DEMO", "PERFSTAT/perfstat", 1), nullptr);
  EXPECT_NE(chain.OpenDatabase("PROD", "SYSTEM/manager", 1), nullptr);
  EXPECT_THAT(files, ElementsAre("repository/DEMO.sqlite"));
}

TEST_F(Chain, aRefusedLoginIsNotTriedOnTheNextBackEnd) {
  BackEndChain chain({local(), serverFor("DEMO")});
  EXPECT_THROW(chain.OpenDatabase("DEMO", "PERFSTAT/wrong", 1), DatabaseError);
  EXPECT_EQ(server.logins.size(), 1u);
}

TEST_F(Chain, aNameThatNobodyKnowsFailsAsAnUnresolvedAlias) {
  BackEndChain chain({local()});
  try {
    chain.OpenDatabase("ELSEWHERE", "PERFSTAT/perfstat", 1);
    FAIL() << "opened";
  } catch (const DatabaseError& error) {
    EXPECT_EQ(error.nativeCode(), 12154);
  }
}

TEST_F(Chain, noNameLeadsOutOfTheRepositoryFolder) {
  touch("SECRET.sqlite");
  std::filesystem::create_directory(folder.path() / "repository" / "SUB");
  touch("repository/SUB/DEEP.sqlite");
  touch("repository/.sqlite");
  touch("repository/.HIDDEN.sqlite");
  BackEndChain chain({local()});
  for (const std::string& name :
       {std::string("../SECRET"), std::string("SUB/DEEP"), (folder.path() / "SECRET").string(), std::string(),
        std::string(".HIDDEN"), std::string("DEMO.sqlite\0", 12), std::string("SUB")})
    EXPECT_THROW(chain.OpenDatabase(name, "PERFSTAT/perfstat", 1), DatabaseError) << name;
  EXPECT_THAT(files, IsEmpty());
}

TEST_F(Chain, aFolderOfTheNameIsNoRepository) {
  std::filesystem::create_directory(folder.path() / "repository" / "FOLDER.sqlite");
  BackEndChain chain({local()});
  EXPECT_THROW(chain.OpenDatabase("FOLDER", "PERFSTAT/perfstat", 1), DatabaseError);
}

}  // namespace
}  // namespace kestrelix
