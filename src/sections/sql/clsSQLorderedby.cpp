#include "sections/sql/clsSQLorderedby.h"

#include "sections/sql/lagWindowStatement.h"
#include "sections/sql/sqlRankings.h"
#include "sections/sql/twoSnapshotStatement.h"

namespace kestrelix {
namespace {

std::string listText(const SqlRanking& ranking, Versions version, SqlSort sort) {
  return version == V11 ? lagWindowList(ranking, sort) : twoSnapshotList(ranking, version, sort);
}

std::string oneText(const SqlRanking& ranking, Versions version) {
  return version == V11 ? lagWindowOne(ranking) : twoSnapshotOne(ranking, version);
}

/// The boxes of three members name another place than their own; these texts are fixed.
std::string boxOf(const std::string& member) {
  if (member == "getSQL_ORDERED_BY_CPU_TIME" || member == "getSQL_ORDERED_BY_ELAPSED_TIME")
    return "(clsSnapId){unsetBAIND_VALUE} Error";
  if (member == "getSQL_ORDERED_BY_VERSION_COUNT_TIME") return "(clsLoadProfile){getLOGONS} Error";
  return {};
}

std::vector<Statement> makeStatements() {
  std::vector<Statement> statements;
  for (const SqlRanking& ranking : sqlRankings())
    for (const Versions version : {V11, V10, V9}) {
      if ((ranking.versions & version) == 0) continue;
      std::vector<std::size_t> fields;
      for (const SqlColumn& column : sqlColumns(ranking, version)) fields.push_back(column.field);
      const auto add = [&](const std::string& view, Fetch fetch, std::string text) {
        Statement statement{ranking.member(view), std::move(text), fetch, fields};
        statements.push_back(statement.only(version).withBox(boxOf(statement.member)));
      };
      add("TOTAL", Fetch::AllRows, listText(ranking, version, SqlSort::ByMeasure));
      if (ranking.perExecution)
        add("EXEC", Fetch::AllRows, listText(ranking, version, SqlSort::PerExecution));
      add("TIME", Fetch::FirstRow, oneText(ranking, version));
    }
  return statements;
}

}  // namespace

clsSQLorderedby::clsSQLorderedby()
    : SectionObject("clsSQLorderedby", fieldNames(),
                    {argument("B5", ServerType::Number), argument("PAR", ServerType::Number),
                     argument("TOP_NUM", ServerType::Number)}) {
  static const std::vector<Statement> statements = makeStatements();
  for (const Statement& statement : statements) add(statement);
}

}  // namespace kestrelix
