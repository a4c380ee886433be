#include "sections/sql/ModuleDispSQLorderedby.h"

#include "report/GridRendering.h"
#include "sections/sql/sqlRankings.h"

namespace kestrelix {
namespace {

// Texts, as every bind's value is. The Col statements have neither a cut-off nor a limit.
constexpr const char* kAnyStatement = "0";
constexpr const char* kLeastPercent = "1";
constexpr const char* kMostRows = "65";
constexpr const char* kUnused = "0";

ListView viewOf(const SqlRanking& ranking, const std::string& version) {
  ListView view{{}, sqlKeyColumns(versionOf(version)), {}};
  for (const SqlColumn& column : sqlColumns(ranking, versionOf(version))) view.columns.push_back(column.view);
  return view;
}

void showList(Workspace& workspace, const std::string& name, bool isTotal, const std::string& version) {
  const SqlRanking& ranking = sqlRanking(name);
  clsSQLorderedby object;
  renderListAll(workspace, object, ranking.member(isTotal ? "TOTAL" : "EXEC"), viewOf(ranking, version),
                version, {kAnyStatement, kLeastPercent, kMostRows});
}

void showOne(Workspace& workspace, const std::string& name, const std::string& version,
             const ColRequest& request) {
  const SqlRanking& ranking = sqlRanking(name);
  clsSQLorderedby object;
  renderListCol(workspace, object, ranking.member("TIME"), viewOf(ranking, version), version,
                {request.keys.at(0), kUnused, kUnused});
}

}  // namespace

void gDispSQLorderedbyCPU_All(Workspace& workspace, bool isTotal, const std::string& version) {
  showList(workspace, "CPU", isTotal, version);
}
void gDispSQLorderedbyElapsed_All(Workspace& workspace, bool isTotal, const std::string& version) {
  showList(workspace, "ELAPSED", isTotal, version);
}
void gDispSQLorderedbyGets_All(Workspace& workspace, bool isTotal, const std::string& version) {
  showList(workspace, "GETS", isTotal, version);
}
void gDispSQLorderedbyReads_All(Workspace& workspace, bool isTotal, const std::string& version) {
  showList(workspace, "READS", isTotal, version);
}
void gDispSQLorderedbyIOWait_All(Workspace& workspace, bool isTotal, const std::string& version) {
  showList(workspace, "IO_WAIT", isTotal, version);
}
void gDispSQLorderedbyCluster_All(Workspace& workspace, bool isTotal, const std::string& version) {
  showList(workspace, "CLUSTER", isTotal, version);
}
void gDispSQLorderedbyExecutions_All(Workspace& workspace, const std::string& version) {
  showList(workspace, "EXECUTIONS", true, version);
}
void gDispSQLorderedbyParseCalls_All(Workspace& workspace, const std::string& version) {
  showList(workspace, "PARSE_CALLS", true, version);
}
void gDispSQLorderedbySharableMemory_All(Workspace& workspace, const std::string& version) {
  showList(workspace, "SHARABLE_MEMORY", true, version);
}
void gDispSQLorderedbyVersionCount_All(Workspace& workspace, const std::string& version) {
  showList(workspace, "VERSION_COUNT", true, version);
}

void gDispSQLorderedbyCPU_Col(Workspace& workspace, const std::string& version, const ColRequest& request) {
  showOne(workspace, "CPU", version, request);
}
void gDispSQLorderedbyElapsed_Col(Workspace& workspace, const std::string& version,
                                  const ColRequest& request) {
  showOne(workspace, "ELAPSED", version, request);
}
void gDispSQLorderedbyGets_Col(Workspace& workspace, const std::string& version, const ColRequest& request) {
  showOne(workspace, "GETS", version, request);
}
void gDispSQLorderedbyReads_Col(Workspace& workspace, const std::string& version, const ColRequest& request) {
  showOne(workspace, "READS", version, request);
}
void gDispSQLorderedbyIOWait_Col(Workspace& workspace, const std::string& version,
                                 const ColRequest& request) {
  showOne(workspace, "IO_WAIT", version, request);
}
void gDispSQLorderedbyCluster_Col(Workspace& workspace, const std::string& version,
                                  const ColRequest& request) {
  showOne(workspace, "CLUSTER", version, request);
}
void gDispSQLorderedbyExecutions_Col(Workspace& workspace, const std::string& version,
                                     const ColRequest& request) {
  showOne(workspace, "EXECUTIONS", version, request);
}
void gDispSQLorderedbyParseCalls_Col(Workspace& workspace, const std::string& version,
                                     const ColRequest& request) {
  showOne(workspace, "PARSE_CALLS", version, request);
}
void gDispSQLorderedbySharableMemory_Col(Workspace& workspace, const std::string& version,
                                         const ColRequest& request) {
  showOne(workspace, "SHARABLE_MEMORY", version, request);
}
void gDispSQLorderedbyVersionCount_Col(Workspace& workspace, const std::string& version,
                                       const ColRequest& request) {
  showOne(workspace, "VERSION_COUNT", version, request);
}

}  // namespace kestrelix
