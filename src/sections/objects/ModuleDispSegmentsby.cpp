#include "sections/objects/ModuleDispSegmentsby.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using S = clsSegmentsby;

const ViewColumn kLogicalReads{"LOGICAL READS", &S::LOGICAL_READS};
const ViewColumn kDbBlockChanges{"DB BLOCK CHANGES", &S::DB_BLOCK_CHANGES};
const ViewColumn kPhysicalReads{"PHYSICAL READS", &S::PHYSICAL_READS};
const ViewColumn kPhysicalWrites{"PHYSICAL WRITES", &S::PHYSICAL_WRITES};
const ViewColumn kDirectPhysicalReads{"DIRECT READS", &S::DIRECT_PHYSICAL_READS};
const ViewColumn kDirectPhysicalWrites{"DIRECT WRITES", &S::DIRECT_PHYSICAL_WRITES};
const ViewColumn kBufferBusyWaits{"BUFFER BUSY_WAITS", &S::BUFFER_BUSY_WAITS};
const ViewColumn kRowLockWaits{"ROW LOCK WAITS", &S::ROW_LOCK_WAITS};
const ViewColumn kItlWaits{"ITL WAITS", &S::ITL_WAITS};
const ViewColumn kGcBufferBusy{"GC BUFFER BUSY", &S::GC_BUFFER_BUSY};
const ViewColumn kGcCrBlocksReceived{"GC CR BLOCKS RECEIVED", &S::GC_CR_BLOCKS_RECEIVED};
const ViewColumn kGcCurrentBlocksReceived{"GC CURRENT BLOCKS RECEIVED", &S::GC_CURRENT_BLOCKS_RECEIVED};
const ViewColumn kGlobalCacheCrBlocksServed{"GLOBAL CACHE CR BLOCKS SERVED",
                                            &S::GLOBAL_CACHE_CR_BLOCKS_SERVED};
const ViewColumn kGlobalCacheCuBlocksServed{"GLOBAL CACHE CU BLOCKS SERVED",
                                            &S::GLOBAL_CACHE_CU_BLOCKS_SERVED};

/// The five names, the ranked statistic and its share, then the others. The names are the keys of a series,
/// but for the tablespace.
ListView ranking(const ViewColumn& ranked, const std::vector<ViewColumn>& others) {
  ListView view{.columns = {{"OWNER", &S::OWNER},
                            {"TABLESPACE", &S::TABLESPACE},
                            {"OBJECT NAME", &S::OBJECT_NAME},
                            {"SUB OBJECT NAME", &S::SUBOBJECT_NAME},
                            {"OBJECT TYPE", &S::OBJECT_TYPE},
                            ranked,
                            {"PCT TOTAL", &S::PCT_TOTAL}},
                .keys = 5};
  view.columns.insert(view.columns.end(), others.begin(), others.end());
  return view;
}

const ListView kByLogicalReads =
    ranking(kLogicalReads, {kDbBlockChanges, kPhysicalReads, kPhysicalWrites, kDirectPhysicalReads,
                            kDirectPhysicalWrites, kBufferBusyWaits, kRowLockWaits, kItlWaits});
const ListView kByPhysicalReads =
    ranking(kPhysicalReads, {kPhysicalWrites, kLogicalReads, kDbBlockChanges, kDirectPhysicalReads,
                             kDirectPhysicalWrites, kBufferBusyWaits, kRowLockWaits, kItlWaits});
const ListView kByRowLockWaits =
    ranking(kRowLockWaits, {kLogicalReads, kDbBlockChanges, kPhysicalReads, kPhysicalWrites,
                            kDirectPhysicalReads, kDirectPhysicalWrites, kBufferBusyWaits, kItlWaits});
const ListView kByITLWaits =
    ranking(kItlWaits, {kLogicalReads, kDbBlockChanges, kPhysicalReads, kPhysicalWrites, kDirectPhysicalReads,
                        kDirectPhysicalWrites, kBufferBusyWaits, kRowLockWaits});
const ListView kByBufferBusyWaits =
    ranking(kBufferBusyWaits, {kLogicalReads, kDbBlockChanges, kPhysicalReads, kPhysicalWrites,
                               kDirectPhysicalReads, kDirectPhysicalWrites, kRowLockWaits, kItlWaits});
const ListView kByGCBufferBusyWaits =
    ranking(kGcBufferBusy,
            {kGcCrBlocksReceived, kGcCurrentBlocksReceived, kGlobalCacheCrBlocksServed,
             kGlobalCacheCuBlocksServed, kLogicalReads, kDbBlockChanges, kPhysicalReads, kPhysicalWrites,
             kDirectPhysicalReads, kDirectPhysicalWrites, kBufferBusyWaits, kRowLockWaits, kItlWaits});
const ListView kByCRBlocksReceived =
    ranking(kGcCrBlocksReceived,
            {kGcBufferBusy, kGcCurrentBlocksReceived, kGlobalCacheCrBlocksServed, kGlobalCacheCuBlocksServed,
             kLogicalReads, kDbBlockChanges, kPhysicalReads, kPhysicalWrites, kDirectPhysicalReads,
             kDirectPhysicalWrites, kBufferBusyWaits, kRowLockWaits, kItlWaits});
const ListView kByCUBlocksReceived =
    ranking(kGcCurrentBlocksReceived,
            {kGcBufferBusy, kGcCrBlocksReceived, kGlobalCacheCrBlocksServed, kGlobalCacheCuBlocksServed,
             kLogicalReads, kDbBlockChanges, kPhysicalReads, kPhysicalWrites, kDirectPhysicalReads,
             kDirectPhysicalWrites, kBufferBusyWaits, kRowLockWaits, kItlWaits});

}  // namespace

void gDispSegmentsbyLogicalReads_All(Workspace& workspace, const std::string& version) {
  clsSegmentsby object;
  renderListAll(workspace, object, "getSEGMENTS_BY_LOGICAL_READS_ALL", kByLogicalReads, version);
}

void gDispSegmentsbyLogicalReads_Col(Workspace& workspace, const std::string& version,
                                     const ColRequest& request) {
  clsSegmentsby object;
  renderListCol(workspace, object, "getSEGMENTS_BY_LOGICAL_READS_COL", kByLogicalReads, version,
                request.keys);
}

void gDispSegmentsbyPhysicalReads_All(Workspace& workspace, const std::string& version) {
  clsSegmentsby object;
  renderListAll(workspace, object, "getSEGMENTS_BY_PHYSICAL_READS_ALL", kByPhysicalReads, version);
}

void gDispSegmentsbyPhysicalReads_Col(Workspace& workspace, const std::string& version,
                                      const ColRequest& request) {
  clsSegmentsby object;
  renderListCol(workspace, object, "getSEGMENTS_BY_PHYSICAL_READS_COL", kByPhysicalReads, version,
                request.keys);
}

void gDispSegmentsbyRowLockWaits_All(Workspace& workspace, const std::string& version) {
  clsSegmentsby object;
  renderListAll(workspace, object, "getSEGMENTS_BY_ROW_LOCK_WAITS_ALL", kByRowLockWaits, version);
}

void gDispSegmentsbyRowLockWaits_Col(Workspace& workspace, const std::string& version,
                                     const ColRequest& request) {
  clsSegmentsby object;
  renderListCol(workspace, object, "getSEGMENTS_BY_ROW_LOCK_WAITS_COL", kByRowLockWaits, version,
                request.keys);
}

void gDispSegmentsbyITLWaits_All(Workspace& workspace, const std::string& version) {
  clsSegmentsby object;
  renderListAll(workspace, object, "getSEGMENTS_BY_ITL_WAITS_ALL", kByITLWaits, version);
}

void gDispSegmentsbyITLWaits_Col(Workspace& workspace, const std::string& version,
                                 const ColRequest& request) {
  clsSegmentsby object;
  renderListCol(workspace, object, "getSEGMENTS_BY_ITL_WAITS_COL", kByITLWaits, version, request.keys);
}

void gDispSegmentsbyBufferBusyWaits_All(Workspace& workspace, const std::string& version) {
  clsSegmentsby object;
  renderListAll(workspace, object, "getSEGMENTS_BY_BUFFER_BUSY_WAITS_ALL", kByBufferBusyWaits, version);
}

void gDispSegmentsbyBufferBusyWaits_Col(Workspace& workspace, const std::string& version,
                                        const ColRequest& request) {
  clsSegmentsby object;
  renderListCol(workspace, object, "getSEGMENTS_BY_BUFFER_BUSY_WAITS_COL", kByBufferBusyWaits, version,
                request.keys);
}

void gDispSegmentsbyGCBufferBusyWaits_All(Workspace& workspace, const std::string& version) {
  clsSegmentsby object;
  renderListAll(workspace, object, "getSEGMENTS_BY_GLOBAL_CACHE_BUFFER_BUSY_WAITS_ALL", kByGCBufferBusyWaits,
                version);
}

void gDispSegmentsbyGCBufferBusyWaits_Col(Workspace& workspace, const std::string& version,
                                          const ColRequest& request) {
  clsSegmentsby object;
  renderListCol(workspace, object, "getSEGMENTS_BY_GLOBAL_CACHE_BUFFER_BUSY_WAITS_COL", kByGCBufferBusyWaits,
                version, request.keys);
}

void gDispSegmentsbyCRBlocksReceived_All(Workspace& workspace, const std::string& version) {
  clsSegmentsby object;
  renderListAll(workspace, object, "getSEGMENTS_BY_CR_BLOCKS_RECEIVED_ALL", kByCRBlocksReceived, version);
}

void gDispSegmentsbyCRBlocksReceived_Col(Workspace& workspace, const std::string& version,
                                         const ColRequest& request) {
  clsSegmentsby object;
  renderListCol(workspace, object, "getSEGMENTS_BY_CR_BLOCKS_RECEIVED_COL", kByCRBlocksReceived, version,
                request.keys);
}

void gDispSegmentsbyCUBlocksReceived_All(Workspace& workspace, const std::string& version) {
  clsSegmentsby object;
  renderListAll(workspace, object, "getSEGMENTS_BY_CURRENT_BLOCKS_RECEIVED_ALL", kByCUBlocksReceived,
                version);
}

void gDispSegmentsbyCUBlocksReceived_Col(Workspace& workspace, const std::string& version,
                                         const ColRequest& request) {
  clsSegmentsby object;
  renderListCol(workspace, object, "getSEGMENTS_BY_CURRENT_BLOCKS_RECEIVED_COL", kByCUBlocksReceived, version,
                request.keys);
}

}  // namespace kestrelix
