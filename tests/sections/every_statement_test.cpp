// Every statement has to resolve against each release that lists its Section, alone: the nearest thing to the
// real servers that a build has.
#include "sections/EveryStatement.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "navigation/repository.h"
#include "oracle_sql/meaning/resolver.h"
#include "oracle_sql/syntax/error.h"
#include "oracle_sql/syntax/parser.h"
#include "platform/ascii.h"
#include "statspack/release_catalogue.h"
#include "support/snapshots.h"

namespace kestrelix {
namespace {

/// The error of the statement against that release, empty if it resolves.
std::string fault(const SentStatement& sent, const char* major) {
  try {
    const statspack::ReleaseCatalogue catalogue(major);
    oracle_sql::Tree tree = oracle_sql::parse(sent.text);
    oracle_sql::resolve(tree, catalogue, [&](std::string_view name) -> std::optional<oracle_sql::TypeKind> {
      for (const Bind& bind : sent.binds)
        if (asciiUpper(bind.name) == name)
          return bind.type == ServerType::String ? oracle_sql::TypeKind::Varchar2
                                                 : oracle_sql::TypeKind::Number;
      if (name == "B1" || name == "B2" || name == "B3" || name == "B4") return oracle_sql::TypeKind::Number;
      return std::nullopt;
    });
    return {};
  } catch (const oracle_sql::SqlError& error) {
    return error.render(sent.text);
  }
}

TEST(EveryStatement, resolvesAgainstEachReleaseThatListsItsSection) {
  const std::pair<Versions, const char*> releases[] = {{V9, "9"}, {V10, "10"}, {V11, "11"}};
  const auto statements = everyStatement();
  ASSERT_FALSE(statements.empty());
  for (const SentStatement& sent : statements)
    for (const auto& [version, major] : releases) {
      if ((sent.versions & version) == 0) continue;
      EXPECT_EQ(fault(sent, major), "") << sent.owner << "::" << sent.member << " on release " << major;
    }
}

TEST(EveryStatement, holdsWhatTheListsOfInstancesAndPairsSend) {
  testing_support::FakeServer server;
  Repository repository;
  repository.gOraDatabase = std::make_unique<testing_support::FakeDatabase>(server);
  testing_support::layInstance(server, "1001", "10.2.0.4.0", "1");
  for (const char* statement : {testing_support::kSnapshots, testing_support::kRangeOfSnapshots})
    testing_support::laySnapshots(server, {{"1", "2026-01-05 10:00:00"}, {"2", "2026-01-05 11:00:00"}},
                                  statement);
  ASSERT_TRUE(repository.loadInstances().empty());
  for (const bool useRange : {false, true}) ASSERT_TRUE(repository.loadPairs("1001", "1", useRange).empty());
  ASSERT_EQ(server.asked.size(), 3u);
  const auto statements = everyStatement();
  for (const auto& asked : server.asked)
    EXPECT_EQ(std::count_if(statements.begin(), statements.end(),
                            [&](const SentStatement& sent) { return sent.text == asked.statement; }),
              1)
        << asked.statement;
}

TEST(EveryStatement, isOneLineThatEndsInABlank) {
  for (const SentStatement& sent : everyStatement()) {
    EXPECT_EQ(sent.text.find('\n'), std::string::npos) << sent.owner << "::" << sent.member;
    EXPECT_EQ(sent.text.back(), ' ') << sent.owner << "::" << sent.member;
  }
}

TEST(EveryStatement, aTableOfALaterReleaseDoesNotResolveAgainstAnEarlierOne) {
  const SentStatement later{"clsX", "getX", "All", V9, "select value from stats$osstat where snap_id = :B3 ",
                            {}};
  EXPECT_NE(fault(later, "9").find("ORA-00942"), std::string::npos);
  EXPECT_EQ(fault(later, "10"), "");
}

}  // namespace
}  // namespace kestrelix
