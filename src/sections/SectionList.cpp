#include "sections/SectionList.h"

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

/// {text, code, versions, needs RAC, SQL buttons, section object, All view, Col view}
SectionList sectionList() {
  // clang-format off
  static const std::vector<SectionEntry> sections = {
      {"Snapshot", 0, kAllVersions, false, false, make<clsSnapshot>, gDispSnapshot_All, byRow(gDispSnapshot_Col)},
      {"Cache Sizes", 1, kAllVersions, false, false, make<clsCacheSize>, gDispCacheSize_All, byRow(gDispCacheSize_Col)},
      {"Load Profile", 2, kAllVersions, false, false, make<clsLoadProfile>, gDispLoadProfile_All, byRow(gDispLoadProfile_Col)},
      {"Instance Efficiency", 3, kAllVersions, false, false, make<clsInstanceEfficiency>, gDispInstanceEfficiency_All, byRow(gDispInstanceEfficiency_Col)},
      {"Top 5 Timed Events", 4, kAllVersions, false, false, make<clsTopNWaitEvents>, gDispTopNWaitEvents_All, byKeys({1}, gDispTopNWaitEvents_Col)},
      {"Host CPU", 5, V10_11, false, false, make<clsHostCPU>, gDispHostCPU_All, byRow(gDispHostCPU_Col)},
      {"Instance CPU", 6, V10_11, false, false, make<clsInstanceCPU>, gDispInstanceCPU_All, byRow(gDispInstanceCPU_Col)},
      {"Virtual Memory Paging", 7, V10_11, false, false, make<clsVirtualMemoryPaging>, gDispVirtualMemoryPaging_All, byRow(gDispVirtualMemoryPaging_Col)},
      {"Memory Statistics", 8, V10_11, false, false, make<clsMemoryStatistics>, gDispMemoryStatistics_All, byRow(gDispMemoryStatistics_Col)},
      {"Time Model System Stats", 9, V10_11, false, false, make<clsTimeModelSystemStats>, gDispTimeModelSystemStats_All, byKeys({1}, gDispTimeModelSystemStats_Col)},
      {"RAC Statistics", 10, V10_11, true, false, make<clsRACStatistics>, gDispRACStatistics_All, anyRow(gDispRACStatistics_Col)},
      {"Global Cache Load Profile", 11, V10_11, true, false, make<clsGlobalCacheLoadProfile>, gDispGlobalCacheLoadProfile_All, byRow(gDispGlobalCacheLoadProfile_Col)},
      {"Global Cache Efficiency", 12, V10_11, true, false, make<clsGlobalCacheEfficiency>, gDispGlobalCacheEfficiency_All, byRow(gDispGlobalCacheEfficiency_Col)},
      {"GCS/GES Workload Characteristics", 13, V10_11, true, false, make<clsWorkloadCharacteristics>, gDispWorkloadCharacteristics_All, byRow(gDispWorkloadCharacteristics_Col)},
      {"GCS/GES Messaging Statistics", 14, V10_11, true, false, make<clsMessagingStatistics>, gDispMessagingStatistics_All, byRow(gDispMessagingStatistics_Col)},
      {"Wait Events", 20, kAllVersions, false, false, make<clsWaitEvents>, gDispWaitEvents_All, byKeys({1}, gDispWaitEvents_Col)},
      {"Background Wait Events", 21, kAllVersions, false, false, make<clsBackgroundWaitEvents>, gDispBackgroundWaitEvents_All, byKeys({1}, gDispBackgroundWaitEvents_Col)},
      {"Foreground Wait Events", 22, V11, false, false, make<clsForegroundWaitEvents>, gDispForegroundWaitEvents_All, byKeys({1}, gDispForegroundWaitEvents_Col)},
      {"Wait Event Histogram", 23, V10_11, false, false, make<clsWaitEventHistogram>, gDispWaitEventHistogram_All, byKeys({1}, gDispWaitEventHistogram_Col)},
      {"SQL ordered by CPU TOTAL", 30, V10_11, false, true, make<clsSQLorderedby>, sqlTotal<gDispSQLorderedbyCPU_All>, byKeys({1}, gDispSQLorderedbyCPU_Col)},
      {"SQL ordered by CPU EXEC", 31, V10_11, false, true, make<clsSQLorderedby>, sqlExec<gDispSQLorderedbyCPU_All>, byKeys({1}, gDispSQLorderedbyCPU_Col)},
      {"SQL ordered by Elapsed TOTAL", 32, V10_11, false, true, make<clsSQLorderedby>, sqlTotal<gDispSQLorderedbyElapsed_All>, byKeys({1}, gDispSQLorderedbyElapsed_Col)},
      {"SQL ordered by Elapsed EXEC", 33, V10_11, false, true, make<clsSQLorderedby>, sqlExec<gDispSQLorderedbyElapsed_All>, byKeys({1}, gDispSQLorderedbyElapsed_Col)},
      {"SQL ordered by Gets TOTAL", 34, kAllVersions, false, true, make<clsSQLorderedby>, sqlTotal<gDispSQLorderedbyGets_All>, byKeys({1}, gDispSQLorderedbyGets_Col)},
      {"SQL ordered by Gets EXEC", 35, kAllVersions, false, true, make<clsSQLorderedby>, sqlExec<gDispSQLorderedbyGets_All>, byKeys({1}, gDispSQLorderedbyGets_Col)},
      {"SQL ordered by Reads TOTAL", 36, kAllVersions, false, true, make<clsSQLorderedby>, sqlTotal<gDispSQLorderedbyReads_All>, byKeys({1}, gDispSQLorderedbyReads_Col)},
      {"SQL ordered by Reads EXEC", 37, kAllVersions, false, true, make<clsSQLorderedby>, sqlExec<gDispSQLorderedbyReads_All>, byKeys({1}, gDispSQLorderedbyReads_Col)},
      {"SQL ordered by I/O Wait TOTAL", 38, V10_11, false, true, make<clsSQLorderedby>, sqlTotal<gDispSQLorderedbyIOWait_All>, byKeys({1}, gDispSQLorderedbyIOWait_Col)},
      {"SQL ordered by I/O Wait EXEC", 39, V10_11, false, true, make<clsSQLorderedby>, sqlExec<gDispSQLorderedbyIOWait_All>, byKeys({1}, gDispSQLorderedbyIOWait_Col)},
      {"SQL ordered by Cluster TOTAL", 40, V10_11, true, true, make<clsSQLorderedby>, sqlTotal<gDispSQLorderedbyCluster_All>, byKeys({1}, gDispSQLorderedbyCluster_Col)},
      {"SQL ordered by Cluster EXEC", 41, V10_11, true, true, make<clsSQLorderedby>, sqlExec<gDispSQLorderedbyCluster_All>, byKeys({1}, gDispSQLorderedbyCluster_Col)},
      {"SQL ordered by Executions", 42, kAllVersions, false, true, make<clsSQLorderedby>, gDispSQLorderedbyExecutions_All, byKeys({1}, gDispSQLorderedbyExecutions_Col)},
      {"SQL ordered by Parse Calls", 43, kAllVersions, false, true, make<clsSQLorderedby>, gDispSQLorderedbyParseCalls_All, byKeys({1}, gDispSQLorderedbyParseCalls_Col)},
      {"SQL ordered by Sharable Memory", 44, kAllVersions, false, true, make<clsSQLorderedby>, gDispSQLorderedbySharableMemory_All, byKeys({1}, gDispSQLorderedbySharableMemory_Col)},
      {"SQL ordered by Version Count", 45, kAllVersions, false, true, make<clsSQLorderedby>, gDispSQLorderedbyVersionCount_All, byKeys({1}, gDispSQLorderedbyVersionCount_Col)},
      {"Instance Activity Stats[1]", 50, kAllVersions, false, false, make<clsInstanceActivityStats>, gDispInstanceActivityStats1_All, byKeys({1}, gDispInstanceActivityStats1_Col)},
      {"Instance Activity Stats[2]", 51, V10_11, false, false, make<clsInstanceActivityStats>, gDispInstanceActivityStats2_All, byKeys({1}, gDispInstanceActivityStats2_Col)},
      {"Instance Activity Stats[3]", 52, V10_11, false, false, make<clsInstanceActivityStats>, gDispInstanceActivityStats3_All, byKeys({1}, gDispInstanceActivityStats3_Col)},
      {"OS Statistics", 60, V10_11, false, false, make<clsOSStatistics>, gDispOSStatistics_All, byKeys({1}, gDispOSStatistics_Col)},
      {"OS Statistics - detail", 61, V11, false, false, make<clsOSStatisticsdetail>, gDispOSStatisticsdetail_All, anyRow(gDispOSStatisticsdetail_Col)},
      {"IO Stat by Function - summary", 62, V11, false, false, make<clsIOStatbyFunctionsummary>, gDispIOStatbyFunctionsummary_All, byKeys({1}, gDispIOStatbyFunctionsummary_Col)},
      {"IO Stat by Function - detail", 63, V11, false, false, make<clsIOStatbyFunctiondetail>, gDispIOStatbyFunctiondetail_All, byKeys({1}, gDispIOStatbyFunctiondetail_Col)},
      {"Tablespace IO Stats", 64, kAllVersions, false, false, make<clsTablespaceIOStats>, gDispTablespaceIOStats_All, byKeys({1}, gDispTablespaceIOStats_Col)},
      {"File IO Stats", 65, kAllVersions, false, false, make<clsFileIOStats>, gDispFileIOStats_All, byKeys({2}, gDispFileIOStats_Col)},
      {"File Read Histogram Stats", 66, V10_11, false, false, make<clsFileReadHistogramStats>, gDispFileReadHistogramStats_All, byKeys({2}, gDispFileReadHistogramStats_Col)},
      {"Buffer Pool Statistics", 70, kAllVersions, false, false, make<clsBufferPoolStatistics>, gDispBufferPoolStatistics_All, byKeys({1}, gDispBufferPoolStatistics_Col)},
      {"Instance Recovery Stats", 71, kAllVersions, false, false, make<clsInstanceRecoveryStats>, gDispInstanceRecoveryStats_All, beginOrEnd({1}, gDispInstanceRecoveryStats_ColBegin, gDispInstanceRecoveryStats_ColEnd)},
      {"Memory Target Advice", 72, V11, false, false, make<clsMemoryTargetAdvice>, gDispMemoryTargetAdvice_All, byKeys({1, 2}, gDispMemoryTargetAdvice_Col)},
      {"Memory Dynamic Components", 73, V11, false, false, make<clsMemoryDynamicComponents>, gDispMemoryDynamicComponents_All, byKeys({1}, gDispMemoryDynamicComponents_Col)},
      {"Memory Resize Operations", 74, V11, false, false, make<clsMemoryResizeOperations>, gDispMemoryResizeOperations_All, byKeys({3}, gDispMemoryResizeOperations_Col)},
      {"Buffer Pool Advisory", 75, kAllVersions, false, false, make<clsBufferPoolAdvisory>, gDispBufferPoolAdvisory_All, byKeys({1, 2, 3}, gDispBufferPoolAdvisory_Col)},
      {"Buffer wait Statistics", 76, kAllVersions, false, false, make<clsBufferwaitStatistics>, gDispBufferwaitStatistics_All, byKeys({1}, gDispBufferwaitStatistics_Col)},
      {"PGA Aggr Target Stats[1]", 80, kAllVersions, false, false, make<clsPGAAggrTargetStats>, gDispPGAAggrTargetStats1_All, anyRow(gDispPGAAggrTargetStats1_Col)},
      {"PGA Aggr Target Stats[2]", 81, kAllVersions, false, false, make<clsPGAAggrTargetStats>, gDispPGAAggrTargetStats2_All, beginOrEnd({1}, gDispPGAAggrTargetStats2_ColBegin, gDispPGAAggrTargetStats2_ColEnd)},
      {"PGA Aggr Target Histogram", 82, kAllVersions, false, false, make<clsPGAAggrTargetHistogram>, gDispPGAAggrTargetHistogram_All, byKeys({1, 2}, gDispPGAAggrTargetHistogram_Col)},
      {"PGA Memory Advisory", 83, kAllVersions, false, false, make<clsPGAMemoryAdvisory>, gDispPGAMemoryAdvisory_All, byKeys({1, 2}, gDispPGAMemoryAdvisory_Col)},
      {"Process Memory Summary Stats", 84, V10_11, false, false, make<clsProcessMemorySummaryStats>, gDispProcessMemorySummaryStats_All, beginOrEnd({1, 2}, gDispProcessMemorySummaryStats_ColBegin, gDispProcessMemorySummaryStats_ColEnd)},
      {"Top Process Memory (by component)", 85, V10_11, false, false, make<clsTopProcessMemory>, gDispTopProcessMemory_All, beginOrEnd({1, 2, 3}, gDispTopProcessMemory_ColBegin, gDispTopProcessMemory_ColEnd)},
      {"Enqueue Activity", 90, kAllVersions, false, false, make<clsEnqueueactivity>, gDispEnqueueActivity_All, byKeys({1}, gDispEnqueueActivity_Col)},
      {"Rollback Segment Stats", 100, kAllVersions, false, false, make<clsRollbackSegmentStats>, gDispRollbackSegmentStats_All, byKeys({1}, gDispRollbackSegmentStats_Col)},
      {"Rollback Segment Storage", 101, kAllVersions, false, false, make<clsRollbackSegmentStorage>, gDispRollbackSegmentStorage_All, byKeys({1}, gDispRollbackSegmentStorage_Col)},
      {"Undo Segment Summary", 102, kAllVersions, false, false, make<clsUndoSegmentSummary>, gDispUndoSegmentSummary_All, anyRow(gDispUndoSegmentSummary_Col)},
      {"Undo Segment Stats", 103, kAllVersions, false, false, make<clsUndoSegmentStats>, gDispUndoSegmentStats_All, refused()},
      {"Latch Activity", 111, kAllVersions, false, false, make<clsLatchActivity>, gDispLatchActivity_All, byKeys({1}, gDispLatchActivity_Col)},
      {"Latch Sleep Breakdown", 112, kAllVersions, false, false, make<clsLatchSleepBreakdown>, gDispLatchSleepBreakdown_All, byKeys({1}, gDispLatchSleepBreakdown_Col)},
      {"Latch Miss Sources", 113, kAllVersions, false, false, make<clsLatchMissSources>, gDispLatchMissSources_All, byKeys({1}, gDispLatchMissSources_Col)},
      {"Mutex Sleep", 114, V10_11, false, false, make<clsMutexSleep>, gDispMutexSleep_All, byKeys({1}, gDispMutexSleep_Col)},
      {"Segments by Logical Reads", 120, kAllVersions, false, false, make<clsSegmentsby>, gDispSegmentsbyLogicalReads_All, byKeys({1, 3, 4, 5}, gDispSegmentsbyLogicalReads_Col)},
      {"Segments by Physical Reads", 121, kAllVersions, false, false, make<clsSegmentsby>, gDispSegmentsbyPhysicalReads_All, byKeys({1, 3, 4, 5}, gDispSegmentsbyPhysicalReads_Col)},
      {"Segments by Row Lock Waits", 122, kAllVersions, false, false, make<clsSegmentsby>, gDispSegmentsbyRowLockWaits_All, byKeys({1, 3, 4, 5}, gDispSegmentsbyRowLockWaits_Col)},
      {"Segments by ITL Waits", 123, kAllVersions, false, false, make<clsSegmentsby>, gDispSegmentsbyITLWaits_All, byKeys({1, 3, 4, 5}, gDispSegmentsbyITLWaits_Col)},
      {"Segments by Buffer Busy Waits", 124, kAllVersions, false, false, make<clsSegmentsby>, gDispSegmentsbyBufferBusyWaits_All, byKeys({1, 3, 4, 5}, gDispSegmentsbyBufferBusyWaits_Col)},
      {"Segments by GC Buffer Busy Waits", 130, V10_11, true, false, make<clsSegmentsby>, gDispSegmentsbyGCBufferBusyWaits_All, byKeys({1, 3, 4, 5}, gDispSegmentsbyGCBufferBusyWaits_Col)},
      {"Segments by CR Blocks Received", 131, V10_11, true, false, make<clsSegmentsby>, gDispSegmentsbyCRBlocksReceived_All, byKeys({1, 3, 4, 5}, gDispSegmentsbyCRBlocksReceived_Col)},
      {"Segments By CU Blocks Received", 132, V10_11, true, false, make<clsSegmentsby>, gDispSegmentsbyCUBlocksReceived_All, byKeys({1, 3, 4, 5}, gDispSegmentsbyCUBlocksReceived_Col)},
      {"Dictionary Cache Stats[1]", 140, kAllVersions, false, false, make<clsDictionaryCacheStats>, gDispDictionaryCacheStats1_All, byKeys({1}, gDispDictionaryCacheStats1_Col)},
      {"Dictionary Cache Stats[2]", 141, V10_11, true, false, make<clsDictionaryCacheStats>, gDispDictionaryCacheStats2_All, byKeys({1}, gDispDictionaryCacheStats2_Col)},
      {"Library Cache Activity[1]", 142, kAllVersions, false, false, make<clsLibraryCacheActivity>, gDispLibraryCacheActivity1_All, byKeys({1}, gDispLibraryCacheActivity1_Col)},
      {"Library Cache Activity[2]", 143, V10_11, true, false, make<clsLibraryCacheActivity>, gDispLibraryCacheActivity2_All, byKeys({1}, gDispLibraryCacheActivity2_Col)},
      {"Global Enqueue Stats", 150, V10_11, true, false, make<clsGlobalEnqueueStats>, gDispGlobalEnqueueStats_All, byKeys({1}, gDispGlobalEnqueueStats_Col)},
      {"Global CR Served Stats", 151, V10_11, true, false, make<clsGlobalCRServedStats>, gDispGlobalCRServedStats_All, byRow(gDispGlobalCRServedStats_Col)},
      {"Global CURRENT Served Stats", 152, V10_11, true, false, make<clsGlobalCURRENTServedStats>, gDispGlobalCURRENTServedStats_All, byRow(gDispGlobalCURRENTServedStats_Col)},
      {"Global Cache Transfer Stats", 153, V10_11, true, false, make<clsGlobalCacheTransferStats>, gDispGlobalCacheTransferStats_All, byKeys({2}, gDispGlobalCacheTransferStats_Col)},
      {"Interconnect Ping Stats", 154, V11, true, false, make<clsInterconnectPingStats>, gDispInterconnectPingStats_All, byKeys({1}, gDispInterconnectPingStats_Col)},
      {"Dynamic Remastering Stats", 155, V10_11, true, false, make<clsDynamicRemasteringStats>, gDispDynamicRemasteringStats_All, byRow(gDispDynamicRemasteringStats_Col)},
      {"Shared Pool Advisory", 160, kAllVersions, false, false, make<clsSharedPoolAdvisory>, gDispSharedPoolAdvisory_All, byKeys({1, 2}, gDispSharedPoolAdvisory_Col)},
      {"Java Pool Advisory", 161, V10_11, false, false, make<clsJavaPoolAdvisory>, gDispJavaPoolAdvisory_All, byKeys({1, 2}, gDispJavaPoolAdvisory_Col)},
      {"Cache Size Changes", 162, V10_11, false, false, make<clsCacheSizeChanges>, gDispCacheSizeChanges_All, byKeys({1}, gDispCacheSizeChanges_Col)},
      {"SGA Target Advisory", 163, V10_11, false, false, make<clsSGATargetAdvisory>, gDispSGATargetAdvisory_All, byKeys({1, 2}, gDispSGATargetAdvisory_Col)},
      {"SGA Memory Summary", 164, kAllVersions, false, false, make<clsSGAMemorySummary>, gDispSGAMemorySummary_All, byKeys({1}, gDispSGAMemorySummary_Col)},
      {"SGA breakdown difference", 165, kAllVersions, false, false, make<clsSGAbreakdowndifference>, gDispSGAbreakdowndifference_All, byKeys({1, 2}, gDispSGAbreakdowndifference_Col)},
      {"SQL Memory Statistics", 166, V10_11, false, false, make<clsSQLMemoryStatistics>, gDispSQLMemoryStatistics_All, byRow(gDispSQLMemoryStatistics_Col)},
      {"Resource Limit Stats", 170, kAllVersions, false, false, make<clsResourceLimitStats>, gDispResourceLimitStats_All, byKeys({1}, gDispResourceLimitStats_Col)},
      {"init.ora Parameters", 180, kAllVersions, false, false, make<clsinitParameters>, gDispinitParameters_All, byKeys({1}, gDispinitParameters_Col)},
  };
  // clang-format on
  return sections;
}

}  // namespace kestrelix
