#include "sections/memory/ModuleDispTopProcessMemory.h"

#include "sections/memory/clsTopProcessMemory.h"

namespace kestrelix {
namespace {

using F = clsTopProcessMemory::Field;

const ListView<clsTopProcessMemory> kView{
    .all = "getTOP_PROCESS_MEMORY_ALL",
    .col = "getTOP_PROCESS_MEMORY_COL",
    .columns = {{"SNAP", F::SNAP, Kind::Key},
                {"PID", F::PID, Kind::Key, unit::number},
                {"CATEGORY", F::CATEGORY, Kind::Key},
                {"ALLOC(MB)", F::ALLOC_MB, Kind::Level, unit::megabytes},
                {"USED(MB)", F::USED_MB, Kind::Level, unit::megabytes},
                {"FREEABL(MB)", F::FREE_MB, Kind::Level, unit::megabytes},
                {"MAX ALLOC(MB)", F::MAX_ALLOC_MB, Kind::Level, unit::megabytes},
                {"HIST MAX ALLOC(MB)", F::HIST_MAX_ALLOC_MB, Kind::Level, unit::megabytes}},
    .keys = 3,
    .ofPairs = OfPairs::SnapshotOfRow,
    .allArguments = {"", "0", ""},
};

}  // namespace

std::vector<ReleaseViews> topProcessMemoryViews() { return {viewsOf(kAllVersions, kView)}; }

}  // namespace kestrelix
