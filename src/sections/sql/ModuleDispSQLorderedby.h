// The ten rankings of SQL statements in the main grid. `isTotal` sorts by the measure itself, else by the
// measure per execution. A Col view's key is the hash in column 1.
#pragma once

#include "report/SectionEntry.h"
#include "sections/sql/clsSQLorderedby.h"

namespace kestrelix {

void gDispSQLorderedbyCPU_All(Workspace& workspace, bool isTotal, const std::string& version);
void gDispSQLorderedbyElapsed_All(Workspace& workspace, bool isTotal, const std::string& version);
void gDispSQLorderedbyGets_All(Workspace& workspace, bool isTotal, const std::string& version);
void gDispSQLorderedbyReads_All(Workspace& workspace, bool isTotal, const std::string& version);
void gDispSQLorderedbyIOWait_All(Workspace& workspace, bool isTotal, const std::string& version);
void gDispSQLorderedbyCluster_All(Workspace& workspace, bool isTotal, const std::string& version);
void gDispSQLorderedbyExecutions_All(Workspace& workspace, const std::string& version);
void gDispSQLorderedbyParseCalls_All(Workspace& workspace, const std::string& version);
void gDispSQLorderedbySharableMemory_All(Workspace& workspace, const std::string& version);
void gDispSQLorderedbyVersionCount_All(Workspace& workspace, const std::string& version);

void gDispSQLorderedbyCPU_Col(Workspace& workspace, const std::string& version, const ColRequest& request);
void gDispSQLorderedbyElapsed_Col(Workspace& workspace, const std::string& version,
                                  const ColRequest& request);
void gDispSQLorderedbyGets_Col(Workspace& workspace, const std::string& version, const ColRequest& request);
void gDispSQLorderedbyReads_Col(Workspace& workspace, const std::string& version, const ColRequest& request);
void gDispSQLorderedbyIOWait_Col(Workspace& workspace, const std::string& version, const ColRequest& request);
void gDispSQLorderedbyCluster_Col(Workspace& workspace, const std::string& version,
                                  const ColRequest& request);
void gDispSQLorderedbyExecutions_Col(Workspace& workspace, const std::string& version,
                                     const ColRequest& request);
void gDispSQLorderedbyParseCalls_Col(Workspace& workspace, const std::string& version,
                                     const ColRequest& request);
void gDispSQLorderedbySharableMemory_Col(Workspace& workspace, const std::string& version,
                                         const ColRequest& request);
void gDispSQLorderedbyVersionCount_Col(Workspace& workspace, const std::string& version,
                                       const ColRequest& request);

/// The All view of a Section that ends in "TOTAL" or "EXEC", for the list of Sections.
template <void (*All)(Workspace&, bool, const std::string&)>
inline constexpr AllFunction sqlTotal =
    [](Workspace& workspace, const std::string& version) { All(workspace, true, version); };
template <void (*All)(Workspace&, bool, const std::string&)>
inline constexpr AllFunction sqlExec =
    [](Workspace& workspace, const std::string& version) { All(workspace, false, version); };

}  // namespace kestrelix
