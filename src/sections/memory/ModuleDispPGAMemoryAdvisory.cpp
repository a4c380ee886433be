#include "sections/memory/ModuleDispPGAMemoryAdvisory.h"

#include "sections/memory/clsPGAMemoryAdvisory.h"

namespace kestrelix {
namespace {

using F = clsPGAMemoryAdvisory::Field;

const ListView<clsPGAMemoryAdvisory> kView{
    .all = "getPGA_MEMORY_ADVISORY_ALL",
    .col = "getPGA_MEMORY_ADVISORY_COL",
    .columns = {{"PGA TARGET EST(MB)", F::PGA_TARGET_EST_MB, Kind::Key, unit::number},
                {"SIZE FACTR", F::SIZE_FACTR, Kind::Key, unit::number},
                {"W/A MB PROCESSED", F::W_A_MB_PROCESSED, Kind::Level, unit::megabytes},
                {"ESTD EXTRA W/A MB READ/WRITTEN TO DISK", F::W_A_MB_READ_WRITTEN_TO_DISK, Kind::Level,
                 unit::megabytes},
                {"ESTD PGA CACHE HIT%", F::CACHE_HIT_PAR, Kind::Share, unit::percent},
                {"ESTD PGA OVERALLOCK COUNT", F::OVERALLOC_COUNT, Kind::Level}},
    .keys = 2,
};

}  // namespace

std::vector<ReleaseViews> pgaMemoryAdvisoryViews() { return {viewsOf(kAllVersions, kView)}; }

}  // namespace kestrelix
