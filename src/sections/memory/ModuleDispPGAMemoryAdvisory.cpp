#include "sections/memory/ModuleDispPGAMemoryAdvisory.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using A = clsPGAMemoryAdvisory;

const ListView kView{{{"PGA TARGET EST(MB)", &A::PGA_TARGET_EST_MB},
                      {"SIZE FACTR", &A::SIZE_FACTR},
                      {"W/A MB PROCESSED", &A::W_A_MB_PROCESSED},
                      {"ESTD EXTRA W/A MB READ/WRITTEN TO DISK", &A::W_A_MB_READ_WRITTEN_TO_DISK},
                      {"ESTD PGA CACHE HIT%", &A::CACHE_HIT_PAR},
                      {"ESTD PGA OVERALLOCK COUNT", &A::OVERALLOC_COUNT}},
                     2};

}  // namespace

void gDispPGAMemoryAdvisory_All(Workspace& workspace, const std::string& version) {
  clsPGAMemoryAdvisory object;
  renderListAll(workspace, object, "getPGA_MEMORY_ADVISORY_ALL", kView, version);
}

void gDispPGAMemoryAdvisory_Col(Workspace& workspace, const std::string& version, const ColRequest& request) {
  clsPGAMemoryAdvisory object;
  renderListCol(workspace, object, "getPGA_MEMORY_ADVISORY_COL", kView, version, request.keys);
}

}  // namespace kestrelix
