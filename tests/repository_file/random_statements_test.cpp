// Ten thousand statements made at random: each runs or is refused, and the file stays as it is.
#include <gtest/gtest.h>

#include <fstream>
#include <iostream>
#include <map>

#include "repository_file/local_database.h"
#include "repository_file/test_repository.h"
#include "support/random_statement.h"

namespace kestrelix::repository_file {
namespace {

using oracle_sql::TypeKind;

constexpr int kRight = 7000;
constexpr int kBroken = 3000;

std::string bytesOf(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

class RandomStatementsOnAFile : public testing::Test {
 protected:
  RandomStatementsOnAFile() {
    writeRepository(file_,
                    {{"emp",
                      {{"empno", "NUMBER"},
                       {"ename", "VARCHAR2"},
                       {"hiredate", "DATE"},
                       {"sal", "NUMBER"},
                       {"deptno", "NUMBER"}},
                      {{"1", "a", "2020-01-31 10:00:00", "800", "10"},
                       {"2", "12", "2020-02-29 00:00:00", "0.5", "10"},
                       {"3", std::nullopt, std::nullopt, std::nullopt, "20"},
                       {"4", "Z_%", "1999-12-31 23:59:59", "-1234567890123456789012", std::nullopt}}},
                     {"dept",
                      {{"deptno", "NUMBER"}, {"dname", "VARCHAR2"}, {"code", "RAW"}},
                      {{"10", "one", "00FF"}, {"20", "2", std::nullopt}, {"30", std::nullopt, "AB"}}}});
    database_ = std::make_unique<LocalDatabase>(file_);
    for (const char* name : {"B1", "B2", "B3", "B4"}) bind(name, ServerType::Number, std::string(1, name[1]));
    bind("ENAME", ServerType::String, "a");
  }

  void bind(const std::string& name, ServerType type, const std::string& value) {
    database_->parameters().Add(name, 0, 1);
    database_->parameters()(name).serverType(type);
    database_->parameters()(name).value(value);
  }

  static std::vector<::testing_support::RandomTable> tables() {
    return {{"emp",
             {{"empno", TypeKind::Number},
              {"ename", TypeKind::Varchar2},
              {"hiredate", TypeKind::Date},
              {"sal", TypeKind::Number},
              {"deptno", TypeKind::Number}}},
            {"dept", {{"deptno", TypeKind::Number}, {"dname", TypeKind::Varchar2}, {"code", TypeKind::Raw}}},
            {"dual", {{"dummy", TypeKind::Varchar2}}}};
  }

  /// Counts what became of a statement by the kind of its end.
  void run(const std::string& statement) {
    try {
      const auto rows = database_->DbCreateDynaset(statement, kDynasetOptions);
      while (!rows->Eof()) rows->MoveNext();
      ++ends_["ran"];
    } catch (const DatabaseError& error) {
      ++ends_[error.sqlState()];
      const bool known =
          error.sqlState() == "42000" || error.sqlState() == "0A000" || error.sqlState() == "07002";
      EXPECT_TRUE(known) << statement << "\n" << error.what();
    }
  }

  TestFolder folder_;
  std::filesystem::path file_ = folder_ / "random.sqlite";
  std::unique_ptr<LocalDatabase> database_;
  std::map<std::string, int> ends_;
};

TEST_F(RandomStatementsOnAFile, runOrAreRefusedAndChangeNothing) {
  const std::string before = bytesOf(file_);
  ::testing_support::RandomStatement random(3, tables());
  for (int i = 0; i < kRight; ++i) run(random.next());
  EXPECT_GT(ends_["ran"], kRight / 2);
  for (int i = 0; i < kBroken; ++i) run(random.nextBroken());
  for (const auto& [end, count] : ends_) std::cout << end << ": " << count << "\n";
  EXPECT_TRUE(bytesOf(file_) == before);
}

}  // namespace
}  // namespace kestrelix::repository_file
