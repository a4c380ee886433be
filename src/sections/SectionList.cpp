#include "sections/SectionList.h"

#include <stdexcept>

#include "sections/activity_io/ModuleDispFileIOStats.h"
#include "sections/activity_io/ModuleDispFileReadHistogramStats.h"
#include "sections/activity_io/ModuleDispIOStatbyFunctiondetail.h"
#include "sections/activity_io/ModuleDispIOStatbyFunctionsummary.h"
#include "sections/activity_io/ModuleDispInstanceActivityStats.h"
#include "sections/activity_io/ModuleDispOSStatistics.h"
#include "sections/activity_io/ModuleDispOSStatisticsdetail.h"
#include "sections/activity_io/ModuleDispTablespaceIOStats.h"
#include "sections/cluster/ModuleDispDynamicRemasteringStats.h"
#include "sections/cluster/ModuleDispGlobalCRServedStats.h"
#include "sections/cluster/ModuleDispGlobalCURRENTServedStats.h"
#include "sections/cluster/ModuleDispGlobalCacheEfficiency.h"
#include "sections/cluster/ModuleDispGlobalCacheLoadProfile.h"
#include "sections/cluster/ModuleDispGlobalCacheTransferStats.h"
#include "sections/cluster/ModuleDispGlobalEnqueueStats.h"
#include "sections/cluster/ModuleDispInterconnectPingStats.h"
#include "sections/cluster/ModuleDispMessagingStatistics.h"
#include "sections/cluster/ModuleDispRACStatistics.h"
#include "sections/cluster/ModuleDispWorkloadCharacteristics.h"
#include "sections/contention/ModuleDispEnqueueActivity.h"
#include "sections/contention/ModuleDispLatchActivity.h"
#include "sections/contention/ModuleDispLatchMissSources.h"
#include "sections/contention/ModuleDispLatchSleepBreakdown.h"
#include "sections/contention/ModuleDispMutexSleep.h"
#include "sections/contention/ModuleDispRollbackSegmentStats.h"
#include "sections/contention/ModuleDispRollbackSegmentStorage.h"
#include "sections/contention/ModuleDispUndoSegmentStats.h"
#include "sections/contention/ModuleDispUndoSegmentSummary.h"
#include "sections/memory/ModuleDispBufferPoolAdvisory.h"
#include "sections/memory/ModuleDispBufferPoolStatistics.h"
#include "sections/memory/ModuleDispBufferwaitStatistics.h"
#include "sections/memory/ModuleDispCacheSizeChanges.h"
#include "sections/memory/ModuleDispInstanceRecoveryStats.h"
#include "sections/memory/ModuleDispJavaPoolAdvisory.h"
#include "sections/memory/ModuleDispMemoryDynamicComponents.h"
#include "sections/memory/ModuleDispMemoryResizeOperations.h"
#include "sections/memory/ModuleDispMemoryTargetAdvice.h"
#include "sections/memory/ModuleDispPGAAggrTargetHistogram.h"
#include "sections/memory/ModuleDispPGAAggrTargetStats.h"
#include "sections/memory/ModuleDispPGAMemoryAdvisory.h"
#include "sections/memory/ModuleDispProcessMemorySummaryStats.h"
#include "sections/memory/ModuleDispSGAMemorySummary.h"
#include "sections/memory/ModuleDispSGATargetAdvisory.h"
#include "sections/memory/ModuleDispSGAbreakdowndifference.h"
#include "sections/memory/ModuleDispSQLMemoryStatistics.h"
#include "sections/memory/ModuleDispSharedPoolAdvisory.h"
#include "sections/memory/ModuleDispTopProcessMemory.h"
#include "sections/objects/ModuleDispDictionaryCacheStats.h"
#include "sections/objects/ModuleDispLibraryCacheActivity.h"
#include "sections/objects/ModuleDispResourceLimitStats.h"
#include "sections/objects/ModuleDispSegmentsby.h"
#include "sections/objects/ModuleDispinitParameters.h"
#include "sections/sql/ModuleDispSQLorderedby.h"
#include "sections/summary/ModuleDispCacheSize.h"
#include "sections/summary/ModuleDispHostCPU.h"
#include "sections/summary/ModuleDispInstanceCPU.h"
#include "sections/summary/ModuleDispInstanceEfficiency.h"
#include "sections/summary/ModuleDispLoadProfile.h"
#include "sections/summary/ModuleDispMemoryStatistics.h"
#include "sections/summary/ModuleDispSnapshot.h"
#include "sections/summary/ModuleDispTimeModelSystemStats.h"
#include "sections/summary/ModuleDispVirtualMemoryPaging.h"
#include "sections/waits/ModuleDispBackgroundWaitEvents.h"
#include "sections/waits/ModuleDispForegroundWaitEvents.h"
#include "sections/waits/ModuleDispTopNWaitEvents.h"
#include "sections/waits/ModuleDispWaitEventHistogram.h"
#include "sections/waits/ModuleDispWaitEvents.h"

namespace kestrelix {

SectionList sectionList() {
  // clang-format off
  static const std::vector<Section> sections = {
      {.text = "Snapshot", .code = 0, .versions = kAllVersions, .col = byRow(), .views = snapshotViews()},
      {.text = "Cache Sizes", .code = 1, .versions = kAllVersions, .col = byRow(), .views = cacheSizeViews()},
      {.text = "Load Profile", .code = 2, .versions = kAllVersions, .col = byRow(), .views = loadProfileViews()},
      {.text = "Instance Efficiency", .code = 3, .versions = kAllVersions, .col = byRow(), .views = instanceEfficiencyViews()},
      {.text = "Top 5 Timed Events", .code = 4, .versions = kAllVersions, .col = byCells({1}), .views = topNWaitEventsViews()},
      {.text = "Host CPU", .code = 5, .versions = V10_11, .col = byRow(), .views = hostCPUViews()},
      {.text = "Instance CPU", .code = 6, .versions = V10_11, .col = byRow(), .views = instanceCPUViews()},
      {.text = "Virtual Memory Paging", .code = 7, .versions = V10_11, .col = byRow(), .views = virtualMemoryPagingViews()},
      {.text = "Memory Statistics", .code = 8, .versions = V10_11, .col = byRow(), .views = memoryStatisticsViews()},
      {.text = "Time Model System Stats", .code = 9, .versions = V10_11, .col = byCells({1}), .views = timeModelSystemStatsViews()},
      {.text = "RAC Statistics", .code = 10, .versions = V10_11, .needsRac = true, .col = anyRow(), .views = racStatisticsViews()},
      {.text = "Global Cache Load Profile", .code = 11, .versions = V10_11, .needsRac = true, .col = byRow(), .views = globalCacheLoadProfileViews()},
      {.text = "Global Cache Efficiency", .code = 12, .versions = V10_11, .needsRac = true, .col = byRow(), .views = globalCacheEfficiencyViews()},
      {.text = "GCS/GES Workload Characteristics", .code = 13, .versions = V10_11, .needsRac = true, .col = byRow(), .views = workloadCharacteristicsViews()},
      {.text = "GCS/GES Messaging Statistics", .code = 14, .versions = V10_11, .needsRac = true, .col = byRow(), .views = messagingStatisticsViews()},
      {.text = "Wait Events", .code = 20, .versions = kAllVersions, .col = byCells({1}), .views = waitEventsViews()},
      {.text = "Background Wait Events", .code = 21, .versions = kAllVersions, .col = byCells({1}), .views = backgroundWaitEventsViews()},
      {.text = "Foreground Wait Events", .code = 22, .versions = V11, .col = byCells({1}), .views = foregroundWaitEventsViews()},
      {.text = "Wait Event Histogram", .code = 23, .versions = V10_11, .col = byCells({1}), .views = waitEventHistogramViews()},
      {.text = "SQL ordered by CPU TOTAL", .code = 30, .versions = V10_11, .sqlButtons = true, .col = byCells({1}), .views = sqlRankingViews("CPU", "TOTAL")},
      {.text = "SQL ordered by CPU EXEC", .code = 31, .versions = V10_11, .sqlButtons = true, .col = byCells({1}), .views = sqlRankingViews("CPU", "EXEC")},
      {.text = "SQL ordered by Elapsed TOTAL", .code = 32, .versions = V10_11, .sqlButtons = true, .col = byCells({1}), .views = sqlRankingViews("ELAPSED", "TOTAL")},
      {.text = "SQL ordered by Elapsed EXEC", .code = 33, .versions = V10_11, .sqlButtons = true, .col = byCells({1}), .views = sqlRankingViews("ELAPSED", "EXEC")},
      {.text = "SQL ordered by Gets TOTAL", .code = 34, .versions = kAllVersions, .sqlButtons = true, .col = byCells({1}), .views = sqlRankingViews("GETS", "TOTAL")},
      {.text = "SQL ordered by Gets EXEC", .code = 35, .versions = kAllVersions, .sqlButtons = true, .col = byCells({1}), .views = sqlRankingViews("GETS", "EXEC")},
      {.text = "SQL ordered by Reads TOTAL", .code = 36, .versions = kAllVersions, .sqlButtons = true, .col = byCells({1}), .views = sqlRankingViews("READS", "TOTAL")},
      {.text = "SQL ordered by Reads EXEC", .code = 37, .versions = kAllVersions, .sqlButtons = true, .col = byCells({1}), .views = sqlRankingViews("READS", "EXEC")},
      {.text = "SQL ordered by I/O Wait TOTAL", .code = 38, .versions = V10_11, .sqlButtons = true, .col = byCells({1}), .views = sqlRankingViews("IO_WAIT", "TOTAL")},
      {.text = "SQL ordered by I/O Wait EXEC", .code = 39, .versions = V10_11, .sqlButtons = true, .col = byCells({1}), .views = sqlRankingViews("IO_WAIT", "EXEC")},
      {.text = "SQL ordered by Cluster TOTAL", .code = 40, .versions = V10_11, .needsRac = true, .sqlButtons = true, .col = byCells({1}), .views = sqlRankingViews("CLUSTER", "TOTAL")},
      {.text = "SQL ordered by Cluster EXEC", .code = 41, .versions = V10_11, .needsRac = true, .sqlButtons = true, .col = byCells({1}), .views = sqlRankingViews("CLUSTER", "EXEC")},
      {.text = "SQL ordered by Executions", .code = 42, .versions = kAllVersions, .sqlButtons = true, .col = byCells({1}), .views = sqlRankingViews("EXECUTIONS", "TOTAL")},
      {.text = "SQL ordered by Parse Calls", .code = 43, .versions = kAllVersions, .sqlButtons = true, .col = byCells({1}), .views = sqlRankingViews("PARSE_CALLS", "TOTAL")},
      {.text = "SQL ordered by Sharable Memory", .code = 44, .versions = kAllVersions, .sqlButtons = true, .col = byCells({1}), .views = sqlRankingViews("SHARABLE_MEMORY", "TOTAL")},
      {.text = "SQL ordered by Version Count", .code = 45, .versions = kAllVersions, .sqlButtons = true, .col = byCells({1}), .views = sqlRankingViews("VERSION_COUNT", "TOTAL")},
      {.text = "Instance Activity Stats[1]", .code = 50, .versions = kAllVersions, .col = byCells({1}), .views = instanceActivityStats1Views()},
      {.text = "Instance Activity Stats[2]", .code = 51, .versions = V10_11, .col = byCells({1}), .views = instanceActivityStats2Views()},
      {.text = "Instance Activity Stats[3]", .code = 52, .versions = V10_11, .col = byCells({1}), .views = instanceActivityStats3Views()},
      {.text = "OS Statistics", .code = 60, .versions = V10_11, .col = byCells({1}), .views = osStatisticsViews()},
      {.text = "OS Statistics - detail", .code = 61, .versions = V11, .col = anyRow(), .views = osStatisticsdetailViews()},
      {.text = "IO Stat by Function - summary", .code = 62, .versions = V11, .col = byCells({1}), .views = ioStatbyFunctionsummaryViews()},
      {.text = "IO Stat by Function - detail", .code = 63, .versions = V11, .col = byCells({1}), .views = ioStatbyFunctiondetailViews()},
      {.text = "Tablespace IO Stats", .code = 64, .versions = kAllVersions, .col = byCells({1}), .views = tablespaceIOStatsViews()},
      {.text = "File IO Stats", .code = 65, .versions = kAllVersions, .col = byCells({2}), .views = fileIOStatsViews()},
      {.text = "File Read Histogram Stats", .code = 66, .versions = V10_11, .col = byCells({2}), .views = fileReadHistogramStatsViews()},
      {.text = "Buffer Pool Statistics", .code = 70, .versions = kAllVersions, .col = byCells({1}), .views = bufferPoolStatisticsViews()},
      {.text = "Instance Recovery Stats", .code = 71, .versions = kAllVersions, .col = byEnds({1}), .views = instanceRecoveryStatsViews()},
      {.text = "Memory Target Advice", .code = 72, .versions = V11, .col = byCells({1, 2}), .views = memoryTargetAdviceViews()},
      {.text = "Memory Dynamic Components", .code = 73, .versions = V11, .col = byCells({1}), .views = memoryDynamicComponentsViews()},
      {.text = "Memory Resize Operations", .code = 74, .versions = V11, .col = byCells({3}), .views = memoryResizeOperationsViews()},
      {.text = "Buffer Pool Advisory", .code = 75, .versions = kAllVersions, .col = byCells({1, 2, 3}), .views = bufferPoolAdvisoryViews()},
      {.text = "Buffer wait Statistics", .code = 76, .versions = kAllVersions, .col = byCells({1}), .views = bufferwaitStatisticsViews()},
      {.text = "PGA Aggr Target Stats[1]", .code = 80, .versions = kAllVersions, .col = anyRow(), .views = pgaAggrTargetStats1Views()},
      {.text = "PGA Aggr Target Stats[2]", .code = 81, .versions = kAllVersions, .col = byEnds({1}), .views = pgaAggrTargetStats2Views()},
      {.text = "PGA Aggr Target Histogram", .code = 82, .versions = kAllVersions, .col = byCells({1, 2}), .views = pgaAggrTargetHistogramViews()},
      {.text = "PGA Memory Advisory", .code = 83, .versions = kAllVersions, .col = byCells({1, 2}), .views = pgaMemoryAdvisoryViews()},
      {.text = "Process Memory Summary Stats", .code = 84, .versions = V10_11, .col = byEnds({1, 2}), .views = processMemorySummaryStatsViews()},
      {.text = "Top Process Memory (by component)", .code = 85, .versions = V10_11, .col = byEnds({1, 2, 3}), .views = topProcessMemoryViews()},
      {.text = "Enqueue Activity", .code = 90, .versions = kAllVersions, .col = byCells({1}), .views = enqueueActivityViews()},
      {.text = "Rollback Segment Stats", .code = 100, .versions = kAllVersions, .col = byCells({1}), .views = rollbackSegmentStatsViews()},
      {.text = "Rollback Segment Storage", .code = 101, .versions = kAllVersions, .col = byCells({1}), .views = rollbackSegmentStorageViews()},
      {.text = "Undo Segment Summary", .code = 102, .versions = kAllVersions, .col = anyRow(), .views = undoSegmentSummaryViews()},
      {.text = "Undo Segment Stats", .code = 103, .versions = kAllVersions, .col = refused(), .views = undoSegmentStatsViews()},
      {.text = "Latch Activity", .code = 111, .versions = kAllVersions, .col = byCells({1}), .views = latchActivityViews()},
      {.text = "Latch Sleep Breakdown", .code = 112, .versions = kAllVersions, .col = byCells({1}), .views = latchSleepBreakdownViews()},
      {.text = "Latch Miss Sources", .code = 113, .versions = kAllVersions, .col = byCells({1}), .views = latchMissSourcesViews()},
      {.text = "Mutex Sleep", .code = 114, .versions = V10_11, .col = byCells({1}), .views = mutexSleepViews()},
      {.text = "Segments by Logical Reads", .code = 120, .versions = kAllVersions, .col = byCells({1, 3, 4, 5}), .views = segmentsbyLogicalReadsViews()},
      {.text = "Segments by Physical Reads", .code = 121, .versions = kAllVersions, .col = byCells({1, 3, 4, 5}), .views = segmentsbyPhysicalReadsViews()},
      {.text = "Segments by Row Lock Waits", .code = 122, .versions = kAllVersions, .col = byCells({1, 3, 4, 5}), .views = segmentsbyRowLockWaitsViews()},
      {.text = "Segments by ITL Waits", .code = 123, .versions = kAllVersions, .col = byCells({1, 3, 4, 5}), .views = segmentsbyITLWaitsViews()},
      {.text = "Segments by Buffer Busy Waits", .code = 124, .versions = kAllVersions, .col = byCells({1, 3, 4, 5}), .views = segmentsbyBufferBusyWaitsViews()},
      {.text = "Segments by GC Buffer Busy Waits", .code = 130, .versions = V10_11, .needsRac = true, .col = byCells({1, 3, 4, 5}), .views = segmentsbyGCBufferBusyWaitsViews()},
      {.text = "Segments by CR Blocks Received", .code = 131, .versions = V10_11, .needsRac = true, .col = byCells({1, 3, 4, 5}), .views = segmentsbyCRBlocksReceivedViews()},
      {.text = "Segments By CU Blocks Received", .code = 132, .versions = V10_11, .needsRac = true, .col = byCells({1, 3, 4, 5}), .views = segmentsbyCUBlocksReceivedViews()},
      {.text = "Dictionary Cache Stats[1]", .code = 140, .versions = kAllVersions, .col = byCells({1}), .views = dictionaryCacheStats1Views()},
      {.text = "Dictionary Cache Stats[2]", .code = 141, .versions = V10_11, .needsRac = true, .col = byCells({1}), .views = dictionaryCacheStats2Views()},
      {.text = "Library Cache Activity[1]", .code = 142, .versions = kAllVersions, .col = byCells({1}), .views = libraryCacheActivity1Views()},
      {.text = "Library Cache Activity[2]", .code = 143, .versions = V10_11, .needsRac = true, .col = byCells({1}), .views = libraryCacheActivity2Views()},
      {.text = "Global Enqueue Stats", .code = 150, .versions = V10_11, .needsRac = true, .col = byCells({1}), .views = globalEnqueueStatsViews()},
      {.text = "Global CR Served Stats", .code = 151, .versions = V10_11, .needsRac = true, .col = byRow(), .views = globalCRServedStatsViews()},
      {.text = "Global CURRENT Served Stats", .code = 152, .versions = V10_11, .needsRac = true, .col = byRow(), .views = globalCURRENTServedStatsViews()},
      {.text = "Global Cache Transfer Stats", .code = 153, .versions = V10_11, .needsRac = true, .col = byCells({2}), .views = globalCacheTransferStatsViews()},
      {.text = "Interconnect Ping Stats", .code = 154, .versions = V11, .needsRac = true, .col = byCells({1}), .views = interconnectPingStatsViews()},
      {.text = "Dynamic Remastering Stats", .code = 155, .versions = V10_11, .needsRac = true, .col = byRow(), .views = dynamicRemasteringStatsViews()},
      {.text = "Shared Pool Advisory", .code = 160, .versions = kAllVersions, .col = byCells({1, 2}), .views = sharedPoolAdvisoryViews()},
      {.text = "Java Pool Advisory", .code = 161, .versions = V10_11, .col = byCells({1, 2}), .views = javaPoolAdvisoryViews()},
      {.text = "Cache Size Changes", .code = 162, .versions = V10_11, .col = byCells({1}), .views = cacheSizeChangesViews()},
      {.text = "SGA Target Advisory", .code = 163, .versions = V10_11, .col = byCells({1, 2}), .views = sgaTargetAdvisoryViews()},
      {.text = "SGA Memory Summary", .code = 164, .versions = kAllVersions, .col = byCells({1}), .views = sgaMemorySummaryViews()},
      {.text = "SGA breakdown difference", .code = 165, .versions = kAllVersions, .col = byCells({1, 2}), .views = sgaBreakdowndifferenceViews()},
      {.text = "SQL Memory Statistics", .code = 166, .versions = V10_11, .col = byRow(), .views = sqlMemoryStatisticsViews()},
      {.text = "Resource Limit Stats", .code = 170, .versions = kAllVersions, .col = byCells({1}), .views = resourceLimitStatsViews()},
      {.text = "init.ora Parameters", .code = 180, .versions = kAllVersions, .col = byCells({1}), .views = initParametersViews()},
  };
  // clang-format on
  return sections;
}

const Section& section(std::string_view text) {
  const Section* const found = findSection(sectionList(), text);
  if (found == nullptr) throw std::out_of_range("there is no Section " + std::string(text));
  return *found;
}

}  // namespace kestrelix
