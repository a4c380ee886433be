#include "sections/memory/ModuleDispTopProcessMemory.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using A = clsTopProcessMemory;

const ListView kView{{{"SNAP", &A::SNAP},
                      {"PID", &A::PID},
                      {"CATEGORY", &A::CATEGORY},
                      {"ALLOC(MB)", &A::ALLOC_MB},
                      {"USED(MB)", &A::USED_MB},
                      {"FREEABL(MB)", &A::FREE_MB},
                      {"MAX ALLOC(MB)", &A::MAX_ALLOC_MB},
                      {"HIST MAX ALLOC(MB)", &A::HIST_MAX_ALLOC_MB}},
                     3};

}  // namespace

void gDispTopProcessMemory_All(Workspace& workspace, const std::string& version) {
  clsTopProcessMemory object;
  renderListAll(workspace, object, "getTOP_PROCESS_MEMORY_ALL", kView, version, {"", "0", ""});
}

void gDispTopProcessMemory_ColBegin(Workspace& workspace, const std::string& version,
                                    const ColRequest& request) {
  clsTopProcessMemory object;
  renderListCol(workspace, object, "getTOP_PROCESS_MEMORY_COL", kView.with(OfPairs::StartTime), version,
                request.keys);
}

void gDispTopProcessMemory_ColEnd(Workspace& workspace, const std::string& version,
                                  const ColRequest& request) {
  clsTopProcessMemory object;
  renderListCol(workspace, object, "getTOP_PROCESS_MEMORY_COL", kView.with(OfPairs::EndTime), version,
                request.keys);
}

}  // namespace kestrelix
