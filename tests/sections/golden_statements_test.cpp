// Every text that the program can send and what a local file runs in its stead, as golden/ has them approved:
// one file a class.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>

#include "oracle_sql/meaning/resolver.h"
#include "oracle_sql/syntax/parser.h"
#include "platform/ascii.h"
#include "repository_file/lowering/lowering.h"
#include "sections/EveryStatement.h"
#include "statspack/release_catalogue.h"
#include "support/golden_file.h"
#include "support/statement_layout.h"

namespace kestrelix {
namespace {

using testing_support::joined;
using testing_support::laidOut;

const std::filesystem::path kFolder = KESTRELIX_SOURCE_DIR "/tests/sections/golden";
const std::string kMajors[] = {"9", "10", "11"};

const std::string kHead =
    "# What the class sends, by member, view and releases, and the SQLite text that a local file runs "
    "instead.\n"
    "# A line break with its indentation stands for one blank. Numbers count as whole, those of columns up "
    "to\n"
    "# 10^12 and those of binds up to 2^53; only the factors of advisories and stats$osstat.value have "
    "fractions.\n"
    "# Remade by: sections_tests --update\n";

/// A release's tables, with what is known of their numbers in a file that has been in use for a while.
class UsedCatalogue : public oracle_sql::Catalogue {
 public:
  explicit UsedCatalogue(const std::string& major) : release_(major) {
    for (const statspack::Table& table : statspack::release(major).tables()) {
      oracle_sql::CatalogueTable known = *release_.table("", asciiUpper(table.name));
      for (auto& column : known.columns)
        column.type.integral = column.type.kind == oracle_sql::TypeKind::Number &&
                               !column.name.ends_with("_FACTOR") &&
                               !(known.name == "STATS$OSSTAT" && column.name == "VALUE");
      tables_.emplace(known.name, known);
    }
  }

  const oracle_sql::CatalogueTable* table(std::string_view schema, std::string_view name) const override {
    return release_.table(schema, name) ? &tables_.find(name)->second : nullptr;
  }
  const oracle_sql::Function* packageFunction(std::string_view name) const override {
    return release_.packageFunction(name);
  }

 private:
  statspack::ReleaseCatalogue release_;
  std::map<std::string, oracle_sql::CatalogueTable, std::less<>> tables_;
};

std::string sqliteText(const SentStatement& sent, const UsedCatalogue& catalogue) {
  using repository_file::NumberFacts;
  oracle_sql::Tree tree = oracle_sql::parse(sent.text);
  oracle_sql::resolve(tree, catalogue, [&](std::string_view name) -> std::optional<oracle_sql::TypeKind> {
    for (const Bind& bind : sent.binds)
      if (asciiUpper(bind.name) == name && bind.type == ServerType::String)
        return oracle_sql::TypeKind::Varchar2;
    return oracle_sql::TypeKind::Number;
  });
  return repository_file::lower(tree, {[](const oracle_sql::CatalogueTable& table, int index) {
                                         const bool whole =
                                             table.columns[static_cast<std::size_t>(index)].type.integral;
                                         return whole ? NumberFacts{true, 1e12} : NumberFacts{};
                                       },
                                       [](std::string_view) {
                                         return NumberFacts{true, 9007199254740992.0};
                                       }})
      .text;
}

/// "getLATCH_ACTIVITY_ALL, All, releases 9 10 11", and a number behind it where that is there already.
std::string caseName(const SentStatement& sent, const golden::File& file) {
  std::string name = sent.member + ", " + sent.view + ", releases";
  for (const std::string& major : kMajors)
    if ((sent.versions & versionOf(major)) != 0) name += " " + major;
  const auto same = std::count_if(file.cases.begin(), file.cases.end(),
                                  [&](const golden::Case& known) { return known.name.starts_with(name); });
  return same == 0 ? name : name + " (" + std::to_string(same + 1) + ")";
}

/// The text laid out, from which it can be had back to the byte.
std::string exactly(const std::string& text) {
  const std::string lines = laidOut(text);
  EXPECT_EQ(joined(lines), text);
  return lines;
}

/// The sections "oracle" and "sqlite"; a release whose SQLite text isn't that of the first has its own.
golden::Case caseOf(const SentStatement& sent, const std::string& name) {
  static const UsedCatalogue catalogues[] = {UsedCatalogue("9"), UsedCatalogue("10"), UsedCatalogue("11")};
  golden::Case made{name, {{"oracle", exactly(sent.text)}}};
  for (std::size_t i = 0; i < std::size(kMajors); ++i) {
    if ((sent.versions & versionOf(kMajors[i])) == 0) continue;
    const std::string text = exactly(sqliteText(sent, catalogues[i]));
    const std::string* first = made.section("sqlite");
    if (!first || *first != text) made.set(first ? "sqlite of release " + kMajors[i] : "sqlite", text);
  }
  return made;
}

/// What the files should hold, by class.
std::map<std::string, golden::File> everyFile() {
  std::map<std::string, golden::File> files;
  for (const SentStatement& sent : everyStatement()) {
    golden::File& file = files[sent.owner];
    file.head = kHead;
    file.cases.push_back(caseOf(sent, caseName(sent, file)));
  }
  return files;
}

std::filesystem::path pathOf(const std::string& owner) { return kFolder / (owner + ".test"); }

std::vector<std::string> namesOf(const golden::File& file) {
  std::vector<std::string> names;
  for (const golden::Case& known : file.cases) names.push_back(known.name);
  return names;
}

void update(const std::map<std::string, golden::File>& files) {
  std::filesystem::remove_all(kFolder);
  std::filesystem::create_directories(kFolder);
  for (const auto& [owner, file] : files) golden::write(pathOf(owner).string(), file);
}

TEST(GoldenStatements, everyTextIsAsApproved) {
  const auto files = everyFile();
  if (golden::updating()) update(files);
  std::size_t statements = 0;
  for (const auto& [owner, made] : files) {
    SCOPED_TRACE(owner);
    if (!std::filesystem::exists(pathOf(owner))) {
      ADD_FAILURE() << "no file of this class is approved yet";
      continue;
    }
    const golden::File approved = golden::read(pathOf(owner).string());
    EXPECT_EQ(approved.head, made.head);
    EXPECT_EQ(namesOf(approved), namesOf(made));
    for (std::size_t i = 0; i < std::min(made.cases.size(), approved.cases.size()); ++i) {
      EXPECT_EQ(approved.cases[i].sections, made.cases[i].sections) << made.cases[i].name;
      ++statements;
    }
  }
  EXPECT_EQ(statements, everyStatement().size());
  EXPECT_GT(statements, 0u);
}

TEST(GoldenStatements, noFileIsOfAClassThatSendsNothing) {
  const auto files = everyFile();
  std::size_t found = 0;
  for (const auto& entry : std::filesystem::directory_iterator(kFolder)) {
    EXPECT_TRUE(files.contains(entry.path().stem().string())) << entry.path();
    ++found;
  }
  EXPECT_EQ(found, files.size());
}

}  // namespace
}  // namespace kestrelix
