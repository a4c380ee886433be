#include "sections/sql/ModuleDispSQLorderedby.h"

#include "sections/sql/sqlRankings.h"

namespace kestrelix {
namespace {

// Texts, as every bind's value is. The Col statements have neither a cut-off nor a limit.
constexpr const char* kAnyStatement = "0";
constexpr const char* kLeastPercent = "1";
constexpr const char* kMostRows = "65";
constexpr const char* kUnused = "0";

std::vector<std::string> oneStatement(const std::vector<std::string>& keys) {
  return {keys.at(0), kUnused, kUnused};
}

}  // namespace

std::vector<ReleaseViews> sqlRankingViews(const std::string& name, const std::string& list) {
  const SqlRanking& ranking = sqlRanking(name);
  std::vector<ReleaseViews> all;
  for (const Versions version : {V9, V10, V11})
    if ((ranking.versions & version) != 0)
      all.push_back(viewsOf(
          version, ListView<clsSQLorderedby>{.all = ranking.member(list),
                                             .col = ranking.member("TIME"),
                                             .columns = sqlColumns(ranking, version),
                                             .keys = sqlKeyColumns(version),
                                             .allArguments = {kAnyStatement, kLeastPercent, kMostRows},
                                             .colArguments = oneStatement}));
  return all;
}

}  // namespace kestrelix
