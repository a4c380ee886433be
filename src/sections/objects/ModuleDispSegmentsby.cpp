#include "sections/objects/ModuleDispSegmentsby.h"

#include "sections/objects/clsSegmentsby.h"

namespace kestrelix {
namespace {

using F = clsSegmentsby::Field;
using C = Column<clsSegmentsby>;

const C kLogicalReads{"LOGICAL READS", F::LOGICAL_READS, Kind::Count, unit::blocks};
const C kDbBlockChanges{"DB BLOCK CHANGES", F::DB_BLOCK_CHANGES, Kind::Count, unit::blocks};
const C kPhysicalReads{"PHYSICAL READS", F::PHYSICAL_READS, Kind::Count, unit::blocks};
const C kPhysicalWrites{"PHYSICAL WRITES", F::PHYSICAL_WRITES, Kind::Count, unit::blocks};
const C kDirectPhysicalReads{"DIRECT READS", F::DIRECT_PHYSICAL_READS, Kind::Count, unit::blocks};
const C kDirectPhysicalWrites{"DIRECT WRITES", F::DIRECT_PHYSICAL_WRITES, Kind::Count, unit::blocks};
const C kBufferBusyWaits{"BUFFER BUSY_WAITS", F::BUFFER_BUSY_WAITS, Kind::Count};
const C kRowLockWaits{"ROW LOCK WAITS", F::ROW_LOCK_WAITS, Kind::Count};
const C kItlWaits{"ITL WAITS", F::ITL_WAITS, Kind::Count};
const C kGcBufferBusy{"GC BUFFER BUSY", F::GC_BUFFER_BUSY, Kind::Count};
const C kGcCrBlocksReceived{"GC CR BLOCKS RECEIVED", F::GC_CR_BLOCKS_RECEIVED, Kind::Count, unit::blocks};
const C kGcCurrentBlocksReceived{"GC CURRENT BLOCKS RECEIVED", F::GC_CURRENT_BLOCKS_RECEIVED, Kind::Count,
                                 unit::blocks};
const C kGlobalCacheCrBlocksServed{"GLOBAL CACHE CR BLOCKS SERVED", F::GLOBAL_CACHE_CR_BLOCKS_SERVED,
                                   Kind::Count, unit::blocks};
const C kGlobalCacheCuBlocksServed{"GLOBAL CACHE CU BLOCKS SERVED", F::GLOBAL_CACHE_CU_BLOCKS_SERVED,
                                   Kind::Count, unit::blocks};

/// The five names, the ranked statistic and its share, then the others. The names are the keys of a series,
/// but for the tablespace.
ListView<clsSegmentsby> ranking(const std::string& members, const C& ranked, const std::vector<C>& others) {
  ListView<clsSegmentsby> view{
      .all = "get" + members + "_ALL",
      .col = "get" + members + "_COL",
      .columns = {{"OWNER", F::OWNER, Kind::Key},
                  {"TABLESPACE", F::TABLESPACE, Kind::Key},
                  {"OBJECT NAME", F::OBJECT_NAME, Kind::Key},
                  {"SUB OBJECT NAME", F::SUBOBJECT_NAME, Kind::Key},
                  {"OBJECT TYPE", F::OBJECT_TYPE, Kind::Key},
                  ranked,
                  {"PCT TOTAL", F::PCT_TOTAL, Kind::Share, unit::percent}},
      .keys = 5,
  };
  view.columns.insert(view.columns.end(), others.begin(), others.end());
  return view;
}

const ListView<clsSegmentsby> kByLogicalReads =
    ranking("SEGMENTS_BY_LOGICAL_READS", kLogicalReads,
            {kDbBlockChanges, kPhysicalReads, kPhysicalWrites, kDirectPhysicalReads, kDirectPhysicalWrites,
             kBufferBusyWaits, kRowLockWaits, kItlWaits});
const ListView<clsSegmentsby> kByPhysicalReads =
    ranking("SEGMENTS_BY_PHYSICAL_READS", kPhysicalReads,
            {kPhysicalWrites, kLogicalReads, kDbBlockChanges, kDirectPhysicalReads, kDirectPhysicalWrites,
             kBufferBusyWaits, kRowLockWaits, kItlWaits});
const ListView<clsSegmentsby> kByRowLockWaits =
    ranking("SEGMENTS_BY_ROW_LOCK_WAITS", kRowLockWaits,
            {kLogicalReads, kDbBlockChanges, kPhysicalReads, kPhysicalWrites, kDirectPhysicalReads,
             kDirectPhysicalWrites, kBufferBusyWaits, kItlWaits});
const ListView<clsSegmentsby> kByITLWaits =
    ranking("SEGMENTS_BY_ITL_WAITS", kItlWaits,
            {kLogicalReads, kDbBlockChanges, kPhysicalReads, kPhysicalWrites, kDirectPhysicalReads,
             kDirectPhysicalWrites, kBufferBusyWaits, kRowLockWaits});
const ListView<clsSegmentsby> kByBufferBusyWaits =
    ranking("SEGMENTS_BY_BUFFER_BUSY_WAITS", kBufferBusyWaits,
            {kLogicalReads, kDbBlockChanges, kPhysicalReads, kPhysicalWrites, kDirectPhysicalReads,
             kDirectPhysicalWrites, kRowLockWaits, kItlWaits});
const ListView<clsSegmentsby> kByGCBufferBusyWaits =
    ranking("SEGMENTS_BY_GLOBAL_CACHE_BUFFER_BUSY_WAITS", kGcBufferBusy,
            {kGcCrBlocksReceived, kGcCurrentBlocksReceived, kGlobalCacheCrBlocksServed,
             kGlobalCacheCuBlocksServed, kLogicalReads, kDbBlockChanges, kPhysicalReads, kPhysicalWrites,
             kDirectPhysicalReads, kDirectPhysicalWrites, kBufferBusyWaits, kRowLockWaits, kItlWaits});
const ListView<clsSegmentsby> kByCRBlocksReceived =
    ranking("SEGMENTS_BY_CR_BLOCKS_RECEIVED", kGcCrBlocksReceived,
            {kGcBufferBusy, kGcCurrentBlocksReceived, kGlobalCacheCrBlocksServed, kGlobalCacheCuBlocksServed,
             kLogicalReads, kDbBlockChanges, kPhysicalReads, kPhysicalWrites, kDirectPhysicalReads,
             kDirectPhysicalWrites, kBufferBusyWaits, kRowLockWaits, kItlWaits});
const ListView<clsSegmentsby> kByCUBlocksReceived =
    ranking("SEGMENTS_BY_CURRENT_BLOCKS_RECEIVED", kGcCurrentBlocksReceived,
            {kGcBufferBusy, kGcCrBlocksReceived, kGlobalCacheCrBlocksServed, kGlobalCacheCuBlocksServed,
             kLogicalReads, kDbBlockChanges, kPhysicalReads, kPhysicalWrites, kDirectPhysicalReads,
             kDirectPhysicalWrites, kBufferBusyWaits, kRowLockWaits, kItlWaits});

}  // namespace

std::vector<ReleaseViews> segmentsbyLogicalReadsViews() { return {viewsOf(kAllVersions, kByLogicalReads)}; }
std::vector<ReleaseViews> segmentsbyPhysicalReadsViews() { return {viewsOf(kAllVersions, kByPhysicalReads)}; }
std::vector<ReleaseViews> segmentsbyRowLockWaitsViews() { return {viewsOf(kAllVersions, kByRowLockWaits)}; }
std::vector<ReleaseViews> segmentsbyITLWaitsViews() { return {viewsOf(kAllVersions, kByITLWaits)}; }
std::vector<ReleaseViews> segmentsbyBufferBusyWaitsViews() {
  return {viewsOf(kAllVersions, kByBufferBusyWaits)};
}
std::vector<ReleaseViews> segmentsbyGCBufferBusyWaitsViews() {
  return {viewsOf(kAllVersions, kByGCBufferBusyWaits)};
}
std::vector<ReleaseViews> segmentsbyCRBlocksReceivedViews() {
  return {viewsOf(kAllVersions, kByCRBlocksReceived)};
}
std::vector<ReleaseViews> segmentsbyCUBlocksReceivedViews() {
  return {viewsOf(kAllVersions, kByCUBlocksReceived)};
}

}  // namespace kestrelix
