// The renderers by their own names, for whoever wants one Section and not the one that a list has selected.
// Each is a reading of the Section's row.
#pragma once

#include "report/reading.h"
#include "sections/SectionList.h"

namespace kestrelix {

// clang-format off
inline ReportTable gDispSnapshot_All(const ReportSource& from, int pair) { return readAll(from, section("Snapshot"), pair); }
inline ReportTable gDispSnapshot_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Snapshot"), asked); }
inline ReportTable gDispCacheSize_All(const ReportSource& from, int pair) { return readAll(from, section("Cache Sizes"), pair); }
inline ReportTable gDispCacheSize_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Cache Sizes"), asked); }
inline ReportTable gDispLoadProfile_All(const ReportSource& from, int pair) { return readAll(from, section("Load Profile"), pair); }
inline ReportTable gDispLoadProfile_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Load Profile"), asked); }
inline ReportTable gDispInstanceEfficiency_All(const ReportSource& from, int pair) { return readAll(from, section("Instance Efficiency"), pair); }
inline ReportTable gDispInstanceEfficiency_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Instance Efficiency"), asked); }
inline ReportTable gDispTopNWaitEvents_All(const ReportSource& from, int pair) { return readAll(from, section("Top 5 Timed Events"), pair); }
inline ReportTable gDispTopNWaitEvents_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Top 5 Timed Events"), asked); }
inline ReportTable gDispHostCPU_All(const ReportSource& from, int pair) { return readAll(from, section("Host CPU"), pair); }
inline ReportTable gDispHostCPU_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Host CPU"), asked); }
inline ReportTable gDispInstanceCPU_All(const ReportSource& from, int pair) { return readAll(from, section("Instance CPU"), pair); }
inline ReportTable gDispInstanceCPU_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Instance CPU"), asked); }
inline ReportTable gDispVirtualMemoryPaging_All(const ReportSource& from, int pair) { return readAll(from, section("Virtual Memory Paging"), pair); }
inline ReportTable gDispVirtualMemoryPaging_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Virtual Memory Paging"), asked); }
inline ReportTable gDispMemoryStatistics_All(const ReportSource& from, int pair) { return readAll(from, section("Memory Statistics"), pair); }
inline ReportTable gDispMemoryStatistics_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Memory Statistics"), asked); }
inline ReportTable gDispTimeModelSystemStats_All(const ReportSource& from, int pair) { return readAll(from, section("Time Model System Stats"), pair); }
inline ReportTable gDispTimeModelSystemStats_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Time Model System Stats"), asked); }
inline ReportTable gDispRACStatistics_All(const ReportSource& from, int pair) { return readAll(from, section("RAC Statistics"), pair); }
inline ReportTable gDispRACStatistics_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("RAC Statistics"), asked); }
inline ReportTable gDispGlobalCacheLoadProfile_All(const ReportSource& from, int pair) { return readAll(from, section("Global Cache Load Profile"), pair); }
inline ReportTable gDispGlobalCacheLoadProfile_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Global Cache Load Profile"), asked); }
inline ReportTable gDispGlobalCacheEfficiency_All(const ReportSource& from, int pair) { return readAll(from, section("Global Cache Efficiency"), pair); }
inline ReportTable gDispGlobalCacheEfficiency_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Global Cache Efficiency"), asked); }
inline ReportTable gDispWorkloadCharacteristics_All(const ReportSource& from, int pair) { return readAll(from, section("GCS/GES Workload Characteristics"), pair); }
inline ReportTable gDispWorkloadCharacteristics_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("GCS/GES Workload Characteristics"), asked); }
inline ReportTable gDispMessagingStatistics_All(const ReportSource& from, int pair) { return readAll(from, section("GCS/GES Messaging Statistics"), pair); }
inline ReportTable gDispMessagingStatistics_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("GCS/GES Messaging Statistics"), asked); }
inline ReportTable gDispWaitEvents_All(const ReportSource& from, int pair) { return readAll(from, section("Wait Events"), pair); }
inline ReportTable gDispWaitEvents_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Wait Events"), asked); }
inline ReportTable gDispBackgroundWaitEvents_All(const ReportSource& from, int pair) { return readAll(from, section("Background Wait Events"), pair); }
inline ReportTable gDispBackgroundWaitEvents_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Background Wait Events"), asked); }
inline ReportTable gDispForegroundWaitEvents_All(const ReportSource& from, int pair) { return readAll(from, section("Foreground Wait Events"), pair); }
inline ReportTable gDispForegroundWaitEvents_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Foreground Wait Events"), asked); }
inline ReportTable gDispWaitEventHistogram_All(const ReportSource& from, int pair) { return readAll(from, section("Wait Event Histogram"), pair); }
inline ReportTable gDispWaitEventHistogram_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Wait Event Histogram"), asked); }
inline ReportTable gDispSQLorderedbyCPU_All(const ReportSource& from, int pair, bool isTotal) { return readAll(from, section(isTotal ? "SQL ordered by CPU TOTAL" : "SQL ordered by CPU EXEC"), pair); }
inline ReportTable gDispSQLorderedbyCPU_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("SQL ordered by CPU TOTAL"), asked); }
inline ReportTable gDispSQLorderedbyElapsed_All(const ReportSource& from, int pair, bool isTotal) { return readAll(from, section(isTotal ? "SQL ordered by Elapsed TOTAL" : "SQL ordered by Elapsed EXEC"), pair); }
inline ReportTable gDispSQLorderedbyElapsed_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("SQL ordered by Elapsed TOTAL"), asked); }
inline ReportTable gDispSQLorderedbyGets_All(const ReportSource& from, int pair, bool isTotal) { return readAll(from, section(isTotal ? "SQL ordered by Gets TOTAL" : "SQL ordered by Gets EXEC"), pair); }
inline ReportTable gDispSQLorderedbyGets_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("SQL ordered by Gets TOTAL"), asked); }
inline ReportTable gDispSQLorderedbyReads_All(const ReportSource& from, int pair, bool isTotal) { return readAll(from, section(isTotal ? "SQL ordered by Reads TOTAL" : "SQL ordered by Reads EXEC"), pair); }
inline ReportTable gDispSQLorderedbyReads_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("SQL ordered by Reads TOTAL"), asked); }
inline ReportTable gDispSQLorderedbyIOWait_All(const ReportSource& from, int pair, bool isTotal) { return readAll(from, section(isTotal ? "SQL ordered by I/O Wait TOTAL" : "SQL ordered by I/O Wait EXEC"), pair); }
inline ReportTable gDispSQLorderedbyIOWait_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("SQL ordered by I/O Wait TOTAL"), asked); }
inline ReportTable gDispSQLorderedbyCluster_All(const ReportSource& from, int pair, bool isTotal) { return readAll(from, section(isTotal ? "SQL ordered by Cluster TOTAL" : "SQL ordered by Cluster EXEC"), pair); }
inline ReportTable gDispSQLorderedbyCluster_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("SQL ordered by Cluster TOTAL"), asked); }
inline ReportTable gDispSQLorderedbyExecutions_All(const ReportSource& from, int pair) { return readAll(from, section("SQL ordered by Executions"), pair); }
inline ReportTable gDispSQLorderedbyExecutions_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("SQL ordered by Executions"), asked); }
inline ReportTable gDispSQLorderedbyParseCalls_All(const ReportSource& from, int pair) { return readAll(from, section("SQL ordered by Parse Calls"), pair); }
inline ReportTable gDispSQLorderedbyParseCalls_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("SQL ordered by Parse Calls"), asked); }
inline ReportTable gDispSQLorderedbySharableMemory_All(const ReportSource& from, int pair) { return readAll(from, section("SQL ordered by Sharable Memory"), pair); }
inline ReportTable gDispSQLorderedbySharableMemory_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("SQL ordered by Sharable Memory"), asked); }
inline ReportTable gDispSQLorderedbyVersionCount_All(const ReportSource& from, int pair) { return readAll(from, section("SQL ordered by Version Count"), pair); }
inline ReportTable gDispSQLorderedbyVersionCount_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("SQL ordered by Version Count"), asked); }
inline ReportTable gDispInstanceActivityStats1_All(const ReportSource& from, int pair) { return readAll(from, section("Instance Activity Stats[1]"), pair); }
inline ReportTable gDispInstanceActivityStats1_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Instance Activity Stats[1]"), asked); }
inline ReportTable gDispInstanceActivityStats2_All(const ReportSource& from, int pair) { return readAll(from, section("Instance Activity Stats[2]"), pair); }
inline ReportTable gDispInstanceActivityStats2_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Instance Activity Stats[2]"), asked); }
inline ReportTable gDispInstanceActivityStats3_All(const ReportSource& from, int pair) { return readAll(from, section("Instance Activity Stats[3]"), pair); }
inline ReportTable gDispInstanceActivityStats3_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Instance Activity Stats[3]"), asked); }
inline ReportTable gDispOSStatistics_All(const ReportSource& from, int pair) { return readAll(from, section("OS Statistics"), pair); }
inline ReportTable gDispOSStatistics_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("OS Statistics"), asked); }
inline ReportTable gDispOSStatisticsdetail_All(const ReportSource& from, int pair) { return readAll(from, section("OS Statistics - detail"), pair); }
inline ReportTable gDispOSStatisticsdetail_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("OS Statistics - detail"), asked); }
inline ReportTable gDispIOStatbyFunctionsummary_All(const ReportSource& from, int pair) { return readAll(from, section("IO Stat by Function - summary"), pair); }
inline ReportTable gDispIOStatbyFunctionsummary_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("IO Stat by Function - summary"), asked); }
inline ReportTable gDispIOStatbyFunctiondetail_All(const ReportSource& from, int pair) { return readAll(from, section("IO Stat by Function - detail"), pair); }
inline ReportTable gDispIOStatbyFunctiondetail_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("IO Stat by Function - detail"), asked); }
inline ReportTable gDispTablespaceIOStats_All(const ReportSource& from, int pair) { return readAll(from, section("Tablespace IO Stats"), pair); }
inline ReportTable gDispTablespaceIOStats_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Tablespace IO Stats"), asked); }
inline ReportTable gDispFileIOStats_All(const ReportSource& from, int pair) { return readAll(from, section("File IO Stats"), pair); }
inline ReportTable gDispFileIOStats_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("File IO Stats"), asked); }
inline ReportTable gDispFileReadHistogramStats_All(const ReportSource& from, int pair) { return readAll(from, section("File Read Histogram Stats"), pair); }
inline ReportTable gDispFileReadHistogramStats_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("File Read Histogram Stats"), asked); }
inline ReportTable gDispBufferPoolStatistics_All(const ReportSource& from, int pair) { return readAll(from, section("Buffer Pool Statistics"), pair); }
inline ReportTable gDispBufferPoolStatistics_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Buffer Pool Statistics"), asked); }
inline ReportTable gDispInstanceRecoveryStats_All(const ReportSource& from, int pair) { return readAll(from, section("Instance Recovery Stats"), pair); }
inline ReportTable gDispInstanceRecoveryStats_ColBegin(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Instance Recovery Stats"), asked); }
inline ReportTable gDispInstanceRecoveryStats_ColEnd(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Instance Recovery Stats"), asked); }
inline ReportTable gDispMemoryTargetAdvice_All(const ReportSource& from, int pair) { return readAll(from, section("Memory Target Advice"), pair); }
inline ReportTable gDispMemoryTargetAdvice_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Memory Target Advice"), asked); }
inline ReportTable gDispMemoryDynamicComponents_All(const ReportSource& from, int pair) { return readAll(from, section("Memory Dynamic Components"), pair); }
inline ReportTable gDispMemoryDynamicComponents_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Memory Dynamic Components"), asked); }
inline ReportTable gDispMemoryResizeOperations_All(const ReportSource& from, int pair) { return readAll(from, section("Memory Resize Operations"), pair); }
inline ReportTable gDispMemoryResizeOperations_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Memory Resize Operations"), asked); }
inline ReportTable gDispBufferPoolAdvisory_All(const ReportSource& from, int pair) { return readAll(from, section("Buffer Pool Advisory"), pair); }
inline ReportTable gDispBufferPoolAdvisory_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Buffer Pool Advisory"), asked); }
inline ReportTable gDispBufferwaitStatistics_All(const ReportSource& from, int pair) { return readAll(from, section("Buffer wait Statistics"), pair); }
inline ReportTable gDispBufferwaitStatistics_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Buffer wait Statistics"), asked); }
inline ReportTable gDispPGAAggrTargetStats1_All(const ReportSource& from, int pair) { return readAll(from, section("PGA Aggr Target Stats[1]"), pair); }
inline ReportTable gDispPGAAggrTargetStats1_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("PGA Aggr Target Stats[1]"), asked); }
inline ReportTable gDispPGAAggrTargetStats2_All(const ReportSource& from, int pair) { return readAll(from, section("PGA Aggr Target Stats[2]"), pair); }
inline ReportTable gDispPGAAggrTargetStats2_ColBegin(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("PGA Aggr Target Stats[2]"), asked); }
inline ReportTable gDispPGAAggrTargetStats2_ColEnd(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("PGA Aggr Target Stats[2]"), asked); }
inline ReportTable gDispPGAAggrTargetHistogram_All(const ReportSource& from, int pair) { return readAll(from, section("PGA Aggr Target Histogram"), pair); }
inline ReportTable gDispPGAAggrTargetHistogram_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("PGA Aggr Target Histogram"), asked); }
inline ReportTable gDispPGAMemoryAdvisory_All(const ReportSource& from, int pair) { return readAll(from, section("PGA Memory Advisory"), pair); }
inline ReportTable gDispPGAMemoryAdvisory_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("PGA Memory Advisory"), asked); }
inline ReportTable gDispProcessMemorySummaryStats_All(const ReportSource& from, int pair) { return readAll(from, section("Process Memory Summary Stats"), pair); }
inline ReportTable gDispProcessMemorySummaryStats_ColBegin(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Process Memory Summary Stats"), asked); }
inline ReportTable gDispProcessMemorySummaryStats_ColEnd(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Process Memory Summary Stats"), asked); }
inline ReportTable gDispTopProcessMemory_All(const ReportSource& from, int pair) { return readAll(from, section("Top Process Memory (by component)"), pair); }
inline ReportTable gDispTopProcessMemory_ColBegin(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Top Process Memory (by component)"), asked); }
inline ReportTable gDispTopProcessMemory_ColEnd(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Top Process Memory (by component)"), asked); }
inline ReportTable gDispEnqueueActivity_All(const ReportSource& from, int pair) { return readAll(from, section("Enqueue Activity"), pair); }
inline ReportTable gDispEnqueueActivity_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Enqueue Activity"), asked); }
inline ReportTable gDispRollbackSegmentStats_All(const ReportSource& from, int pair) { return readAll(from, section("Rollback Segment Stats"), pair); }
inline ReportTable gDispRollbackSegmentStats_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Rollback Segment Stats"), asked); }
inline ReportTable gDispRollbackSegmentStorage_All(const ReportSource& from, int pair) { return readAll(from, section("Rollback Segment Storage"), pair); }
inline ReportTable gDispRollbackSegmentStorage_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Rollback Segment Storage"), asked); }
inline ReportTable gDispUndoSegmentSummary_All(const ReportSource& from, int pair) { return readAll(from, section("Undo Segment Summary"), pair); }
inline ReportTable gDispUndoSegmentSummary_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Undo Segment Summary"), asked); }
inline ReportTable gDispUndoSegmentStats_All(const ReportSource& from, int pair) { return readAll(from, section("Undo Segment Stats"), pair); }
inline ReportTable gDispLatchActivity_All(const ReportSource& from, int pair) { return readAll(from, section("Latch Activity"), pair); }
inline ReportTable gDispLatchActivity_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Latch Activity"), asked); }
inline ReportTable gDispLatchSleepBreakdown_All(const ReportSource& from, int pair) { return readAll(from, section("Latch Sleep Breakdown"), pair); }
inline ReportTable gDispLatchSleepBreakdown_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Latch Sleep Breakdown"), asked); }
inline ReportTable gDispLatchMissSources_All(const ReportSource& from, int pair) { return readAll(from, section("Latch Miss Sources"), pair); }
inline ReportTable gDispLatchMissSources_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Latch Miss Sources"), asked); }
inline ReportTable gDispMutexSleep_All(const ReportSource& from, int pair) { return readAll(from, section("Mutex Sleep"), pair); }
inline ReportTable gDispMutexSleep_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Mutex Sleep"), asked); }
inline ReportTable gDispSegmentsbyLogicalReads_All(const ReportSource& from, int pair) { return readAll(from, section("Segments by Logical Reads"), pair); }
inline ReportTable gDispSegmentsbyLogicalReads_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Segments by Logical Reads"), asked); }
inline ReportTable gDispSegmentsbyPhysicalReads_All(const ReportSource& from, int pair) { return readAll(from, section("Segments by Physical Reads"), pair); }
inline ReportTable gDispSegmentsbyPhysicalReads_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Segments by Physical Reads"), asked); }
inline ReportTable gDispSegmentsbyRowLockWaits_All(const ReportSource& from, int pair) { return readAll(from, section("Segments by Row Lock Waits"), pair); }
inline ReportTable gDispSegmentsbyRowLockWaits_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Segments by Row Lock Waits"), asked); }
inline ReportTable gDispSegmentsbyITLWaits_All(const ReportSource& from, int pair) { return readAll(from, section("Segments by ITL Waits"), pair); }
inline ReportTable gDispSegmentsbyITLWaits_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Segments by ITL Waits"), asked); }
inline ReportTable gDispSegmentsbyBufferBusyWaits_All(const ReportSource& from, int pair) { return readAll(from, section("Segments by Buffer Busy Waits"), pair); }
inline ReportTable gDispSegmentsbyBufferBusyWaits_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Segments by Buffer Busy Waits"), asked); }
inline ReportTable gDispSegmentsbyGCBufferBusyWaits_All(const ReportSource& from, int pair) { return readAll(from, section("Segments by GC Buffer Busy Waits"), pair); }
inline ReportTable gDispSegmentsbyGCBufferBusyWaits_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Segments by GC Buffer Busy Waits"), asked); }
inline ReportTable gDispSegmentsbyCRBlocksReceived_All(const ReportSource& from, int pair) { return readAll(from, section("Segments by CR Blocks Received"), pair); }
inline ReportTable gDispSegmentsbyCRBlocksReceived_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Segments by CR Blocks Received"), asked); }
inline ReportTable gDispSegmentsbyCUBlocksReceived_All(const ReportSource& from, int pair) { return readAll(from, section("Segments By CU Blocks Received"), pair); }
inline ReportTable gDispSegmentsbyCUBlocksReceived_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Segments By CU Blocks Received"), asked); }
inline ReportTable gDispDictionaryCacheStats1_All(const ReportSource& from, int pair) { return readAll(from, section("Dictionary Cache Stats[1]"), pair); }
inline ReportTable gDispDictionaryCacheStats1_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Dictionary Cache Stats[1]"), asked); }
inline ReportTable gDispDictionaryCacheStats2_All(const ReportSource& from, int pair) { return readAll(from, section("Dictionary Cache Stats[2]"), pair); }
inline ReportTable gDispDictionaryCacheStats2_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Dictionary Cache Stats[2]"), asked); }
inline ReportTable gDispLibraryCacheActivity1_All(const ReportSource& from, int pair) { return readAll(from, section("Library Cache Activity[1]"), pair); }
inline ReportTable gDispLibraryCacheActivity1_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Library Cache Activity[1]"), asked); }
inline ReportTable gDispLibraryCacheActivity2_All(const ReportSource& from, int pair) { return readAll(from, section("Library Cache Activity[2]"), pair); }
inline ReportTable gDispLibraryCacheActivity2_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Library Cache Activity[2]"), asked); }
inline ReportTable gDispGlobalEnqueueStats_All(const ReportSource& from, int pair) { return readAll(from, section("Global Enqueue Stats"), pair); }
inline ReportTable gDispGlobalEnqueueStats_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Global Enqueue Stats"), asked); }
inline ReportTable gDispGlobalCRServedStats_All(const ReportSource& from, int pair) { return readAll(from, section("Global CR Served Stats"), pair); }
inline ReportTable gDispGlobalCRServedStats_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Global CR Served Stats"), asked); }
inline ReportTable gDispGlobalCURRENTServedStats_All(const ReportSource& from, int pair) { return readAll(from, section("Global CURRENT Served Stats"), pair); }
inline ReportTable gDispGlobalCURRENTServedStats_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Global CURRENT Served Stats"), asked); }
inline ReportTable gDispGlobalCacheTransferStats_All(const ReportSource& from, int pair) { return readAll(from, section("Global Cache Transfer Stats"), pair); }
inline ReportTable gDispGlobalCacheTransferStats_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Global Cache Transfer Stats"), asked); }
inline ReportTable gDispInterconnectPingStats_All(const ReportSource& from, int pair) { return readAll(from, section("Interconnect Ping Stats"), pair); }
inline ReportTable gDispInterconnectPingStats_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Interconnect Ping Stats"), asked); }
inline ReportTable gDispDynamicRemasteringStats_All(const ReportSource& from, int pair) { return readAll(from, section("Dynamic Remastering Stats"), pair); }
inline ReportTable gDispDynamicRemasteringStats_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Dynamic Remastering Stats"), asked); }
inline ReportTable gDispSharedPoolAdvisory_All(const ReportSource& from, int pair) { return readAll(from, section("Shared Pool Advisory"), pair); }
inline ReportTable gDispSharedPoolAdvisory_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Shared Pool Advisory"), asked); }
inline ReportTable gDispJavaPoolAdvisory_All(const ReportSource& from, int pair) { return readAll(from, section("Java Pool Advisory"), pair); }
inline ReportTable gDispJavaPoolAdvisory_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Java Pool Advisory"), asked); }
inline ReportTable gDispCacheSizeChanges_All(const ReportSource& from, int pair) { return readAll(from, section("Cache Size Changes"), pair); }
inline ReportTable gDispCacheSizeChanges_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Cache Size Changes"), asked); }
inline ReportTable gDispSGATargetAdvisory_All(const ReportSource& from, int pair) { return readAll(from, section("SGA Target Advisory"), pair); }
inline ReportTable gDispSGATargetAdvisory_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("SGA Target Advisory"), asked); }
inline ReportTable gDispSGAMemorySummary_All(const ReportSource& from, int pair) { return readAll(from, section("SGA Memory Summary"), pair); }
inline ReportTable gDispSGAMemorySummary_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("SGA Memory Summary"), asked); }
inline ReportTable gDispSGAbreakdowndifference_All(const ReportSource& from, int pair) { return readAll(from, section("SGA breakdown difference"), pair); }
inline ReportTable gDispSGAbreakdowndifference_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("SGA breakdown difference"), asked); }
inline ReportTable gDispSQLMemoryStatistics_All(const ReportSource& from, int pair) { return readAll(from, section("SQL Memory Statistics"), pair); }
inline ReportTable gDispSQLMemoryStatistics_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("SQL Memory Statistics"), asked); }
inline ReportTable gDispResourceLimitStats_All(const ReportSource& from, int pair) { return readAll(from, section("Resource Limit Stats"), pair); }
inline ReportTable gDispResourceLimitStats_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("Resource Limit Stats"), asked); }
inline ReportTable gDispinitParameters_All(const ReportSource& from, int pair) { return readAll(from, section("init.ora Parameters"), pair); }
inline ReportTable gDispinitParameters_Col(const ReportSource& from, const ColRequest& asked) { return readCol(from, section("init.ora Parameters"), asked); }
// clang-format on

}  // namespace kestrelix
