// The repository in a file under the conformance suite.
#include "conformance/database_conformance.h"
#include "repository_file/local_session.h"
#include "repository_file/test_repository.h"
#include "shell/BackEndChain.h"

namespace kestrelix::conformance {
namespace {

class LocalBackEnd final : public BackEnd {
 public:
  void createTables(const std::vector<TestTable>& tables) override {
    std::filesystem::create_directory(folder_ / "repository");
    repository_file::writeRepository(folder_ / "repository" / "TEST.sqlite", tables);
  }
  Session& session() override { return session_; }
  std::string databaseName() const override { return "TEST"; }
  std::string user() const override { return "PERFSTAT"; }
  std::string password() const override { return "perfstat"; }

 private:
  repository_file::TestFolder folder_;
  BackEndChain session_{{localRepositories(folder_.path(), repository_file::localSession)}};
};

std::shared_ptr<BackEnd> localBackEnd() { return std::make_shared<LocalBackEnd>(); }

INSTANTIATE_TEST_SUITE_P(Local, DatabaseConformance, testing::Values(&localBackEnd));

}  // namespace
}  // namespace kestrelix::conformance
