#include "sections/memory/ModuleDispBufferPoolAdvisory.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using B = clsBufferPoolAdvisory;

const ListView kView{{{"POOL", &B::POOL},
                      {"SIZE FOR EST(MB)", &B::SIZE_FOR_EST_MB},
                      {"SIZE FACTR", &B::SIZE_FACTR},
                      {"BUFFER(THOUSANDS)", &B::BUFFER_THOUSANDS},
                      {"EST PHYS READ FACTR", &B::EST_PHYS_READ_FACTR},
                      {"ESTIMATED PHYS READS(THOUSANDS)", &B::ESTIMATED_PHYS_READS_THOUSANDS},
                      {"EST PHYS READ TIME", &B::EST_PHYS_READ_TIME},
                      {"EST %DBTIME FOR READS", &B::EST_PAR_DB_TIME_FOR_READS}},
                     3};
const ListView kViewOf9{{{"POOL", &B::POOL},
                         {"SIZE FOR ESTIMATE(M)", &B::SIZE_FOR_EST_MB},
                         {"SIZE FACTR", &B::SIZE_FACTR},
                         {"BUFFERS FOR ESTIMATE", &B::BUFFER_THOUSANDS},
                         {"EST PHYSICAL READ FACTOR", &B::EST_PHYS_READ_FACTR},
                         {"ESTIMATED PHYSICAL READS", &B::ESTIMATED_PHYS_READS_THOUSANDS}},
                        3};

const ListView& view(const std::string& version) { return versionOf(version) == V9 ? kViewOf9 : kView; }

}  // namespace

void gDispBufferPoolAdvisory_All(Workspace& workspace, const std::string& version) {
  clsBufferPoolAdvisory object;
  renderListAll(workspace, object, "getBUFFER_POOL_ADVISORY_ALL", view(version), version);
}

void gDispBufferPoolAdvisory_Col(Workspace& workspace, const std::string& version,
                                 const ColRequest& request) {
  clsBufferPoolAdvisory object;
  renderListCol(workspace, object, "getBUFFER_POOL_ADVISORY_COL", view(version), version, request.keys);
}

}  // namespace kestrelix
