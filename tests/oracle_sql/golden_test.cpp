// Every case of golden/*.test: the tree that a statement becomes, or the error with its caret.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "oracle_sql/syntax/parser.h"
#include "support/golden_file.h"
#include "support/small_catalogue.h"
#include "support/statement_text/printer.h"

namespace oracle_sql {
namespace {

std::vector<std::string> goldenFiles() {
  std::vector<std::string> files;
  for (const auto& entry :
       std::filesystem::directory_iterator(KESTRELIX_SOURCE_DIR "/tests/oracle_sql/golden"))
    if (entry.path().extension() == ".test") files.push_back(entry.path().stem().string());
  std::sort(files.begin(), files.end());
  return files;
}

class Golden : public testing::TestWithParam<std::string> {};

// Title and text of what became of a statement.
std::pair<std::string, std::string> outcome(const std::string& statement) {
  const testing_support::SmallCatalogue catalogue;
  try {
    Tree tree = parse(statement);
    const std::string printed = print(*tree.query());
    const Tree again = parse(printed);
    EXPECT_TRUE(equal(*tree.query(), *again.query())) << printed;
    EXPECT_EQ(print(*again.query()), printed);
    resolve(tree, catalogue, &testing_support::SmallCatalogue::bind);
    return {"tree", dump(*tree.query())};
  } catch (const SqlError& e) {
    return {"error", e.render(statement) + "\n"};
  }
}

TEST_P(Golden, treesAndErrorsAreAsApproved) {
  const std::string path = KESTRELIX_SOURCE_DIR "/tests/oracle_sql/golden/" + GetParam() + ".test";
  golden::File file = golden::read(path);
  ASSERT_FALSE(file.cases.empty());
  bool changed = false;
  for (golden::Case& c : file.cases) {
    SCOPED_TRACE(c.name);
    ASSERT_FALSE(c.sections.empty());
    ASSERT_EQ(c.sections.front().first, "oracle");
    std::string statement = c.sections.front().second;
    ASSERT_FALSE(statement.empty());
    statement.pop_back();
    const auto [title, text] = outcome(statement);
    const std::string* approved = c.section(title);
    if (golden::updating()) {
      changed = changed || !approved || *approved != text;
      c.drop(title == "tree" ? "error" : "tree");
      c.set(title, text);
    } else {
      ASSERT_NE(approved, nullptr) << "not approved yet:\n" << text;
      EXPECT_EQ(*approved, text) << statement;
    }
  }
  if (changed) golden::write(path, file);
}

INSTANTIATE_TEST_SUITE_P(Files, Golden, testing::ValuesIn(goldenFiles()),
                         [](const auto& file) { return file.param; });

}  // namespace
}  // namespace oracle_sql
