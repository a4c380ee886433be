#include "sections/memory/ModuleDispBufferPoolStatistics.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using A = clsBufferPoolStatistics;

const ListView kView{{{"POOL NAME", &A::NAME},
                      {"BUFFERS", &A::BUFFERS},
                      {"POOL HIT%", &A::POOL_HIT},
                      {"BUFFER GETS", &A::BUFFER_GETS},
                      {"PHYSICAL READS", &A::PHYSICAL_READS},
                      {"PHYSICAL WRITES", &A::PHYSICAL_WRITE},
                      {"FREE BUFFER WAITS", &A::FREE_BUFFER_WAITS},
                      {"WRITE COMPLETE WAITT", &A::WRITE_COMPLETE_WAIT},
                      {"BUFFER BUSY WAITS", &A::BUFFER_BUSY_WAITS}}};

}  // namespace

void gDispBufferPoolStatistics_All(Workspace& workspace, const std::string& version) {
  clsBufferPoolStatistics object;
  renderListAll(workspace, object, "getBUFFER_POOL_STATISTICS_ALL", kView, version);
}

void gDispBufferPoolStatistics_Col(Workspace& workspace, const std::string& version,
                                   const ColRequest& request) {
  clsBufferPoolStatistics object;
  renderListCol(workspace, object, "getBUFFER_POOL_STATISTICS_COL", kView, version, request.keys);
}

}  // namespace kestrelix
