// What the Sections on objects and on the cluster show when their statements fail: each getter names itself,
// and the grid keeps its former view.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cctype>

#include "sections/cluster_support.h"

namespace kestrelix::testing_support {
namespace {

using testing::ElementsAre;

std::string box(const std::string& className, const std::string& member) {
  return "[Critical] (" + className + "){" + member + "} Error";
}

/// Puts a view of that many rows into the grid, and tells it.
std::string formerView(ReportFixture& report, int rows) {
  layGrid(report.grid(), 6, rows);
  report.grid().Visible(true);
  for (int r = 1; r <= rows; ++r) report.grid().TextMatrix(r, 1, "former " + std::to_string(r));
  return printed(report.grid());
}

struct FailingList {
  const char* section;
  const char* className;
  std::string members;  ///< without the _ALL and _COL
  const char* table;
};
void PrintTo(const FailingList& failing, std::ostream* out) { *out << failing.section; }

class FailedList : public testing::TestWithParam<FailingList> {};

TEST_P(FailedList, showsTheBoxOfItsGetterInBothViews) {
  ClusterRepository repository;
  repository.transactions().without(GetParam().table);
  ReportFixture report(repository.write());
  report.open(0);
  const std::string former = formerView(report, 1);
  EXPECT_EQ(report.all(GetParam().section, 0), former);
  EXPECT_EQ(report.col(1), former);
  EXPECT_THAT(report.boxes(), ElementsAre(box(GetParam().className, GetParam().members + "_ALL"),
                                          box(GetParam().className, GetParam().members + "_COL")));
  EXPECT_TRUE(report.grid().Visible());
}

INSTANTIATE_TEST_SUITE_P(
    ObjectsAndCluster, FailedList,
    testing::Values(
        FailingList{"Segments by Logical Reads", "clsSegmentsby", "getSEGMENTS_BY_LOGICAL_READS",
                    "stats$seg_stat"},
        FailingList{"Segments by Physical Reads", "clsSegmentsby", "getSEGMENTS_BY_PHYSICAL_READS",
                    "stats$seg_stat"},
        FailingList{"Segments by Row Lock Waits", "clsSegmentsby", "getSEGMENTS_BY_ROW_LOCK_WAITS",
                    "stats$seg_stat"},
        FailingList{"Segments by ITL Waits", "clsSegmentsby", "getSEGMENTS_BY_ITL_WAITS", "stats$seg_stat"},
        FailingList{"Segments by Buffer Busy Waits", "clsSegmentsby", "getSEGMENTS_BY_BUFFER_BUSY_WAITS",
                    "stats$seg_stat"},
        FailingList{"Segments by GC Buffer Busy Waits", "clsSegmentsby",
                    "getSEGMENTS_BY_GLOBAL_CACHE_BUFFER_BUSY_WAITS", "stats$seg_stat"},
        FailingList{"Segments by CR Blocks Received", "clsSegmentsby", "getSEGMENTS_BY_CR_BLOCKS_RECEIVED",
                    "stats$seg_stat_obj"},
        FailingList{"Segments By CU Blocks Received", "clsSegmentsby",
                    "getSEGMENTS_BY_CURRENT_BLOCKS_RECEIVED", "stats$seg_stat_obj"},
        FailingList{"Dictionary Cache Stats[1]", "clsDictionaryCacheStats", "getDICTIONARY_CACHE_STATS_1",
                    "stats$rowcache_summary"},
        FailingList{"Dictionary Cache Stats[2]", "clsDictionaryCacheStats", "getDICTIONARY_CACHE_STATS_2",
                    "stats$rowcache_summary"},
        FailingList{"Library Cache Activity[1]", "clsLibraryCacheActivity", "getLIBRARY_CACHE_ACTIVITY_1",
                    "stats$librarycache"},
        FailingList{"Library Cache Activity[2]", "clsLibraryCacheActivity", "getLIBRARY_CACHE_ACTIVITY_2",
                    "stats$librarycache"},
        FailingList{"Resource Limit Stats", "clsResourceLimitStats", "getRESOURCE_LIMIT_STATS",
                    "stats$resource_limit"},
        FailingList{"init.ora Parameters", "clsinitParameters", "getINIT_PARAMETERS", "stats$parameter"},
        FailingList{"Global Enqueue Stats", "clsGlobalEnqueueStats", "getGLOBAL_ENQUEUE_STATS",
                    "stats$dlm_misc"},
        FailingList{"Global Cache Transfer Stats", "clsGlobalCacheTransferStats",
                    "getGLOBAL_CACHE_TRANSFER_STATS_Y", "stats$instance_cache_transfer"},
        FailingList{"Interconnect Ping Stats", "clsInterconnectPingStats", "getINTERCONNECT_PING_STATS",
                    "stats$interconnect_pings"}),
    [](const auto& tested) {
      std::string name;
      for (const char c : std::string(tested.param.section))
        if (std::isalnum(static_cast<unsigned char>(c)) != 0) name += c;
      return name;
    });

struct FailingMetrics {
  const char* className;
  const char* section;
  const char* table;                 ///< left out; null where empty tables are a failure as well
  std::vector<std::string> members;  ///< the first of each row, from the top
};
void PrintTo(const FailingMetrics& failing, std::ostream* out) { *out << failing.section; }

class FailedMetrics : public testing::TestWithParam<FailingMetrics> {};

TEST_P(FailedMetrics, eachRowsSeriesShowsTheBoxOfItsOwnGetterAndTheAllViewThatOfTheFirst) {
  const FailingMetrics& failing = GetParam();
  ClusterRepository repository;
  if (failing.table != nullptr) repository.without(failing.table);
  ReportFixture report(repository.write());
  report.open(0);
  const int rows = static_cast<int>(failing.members.size());
  const std::string former = formerView(report, rows + 1);
  std::vector<std::string> boxes{box(failing.className, failing.members.front())};
  EXPECT_EQ(report.all(failing.section, 0), former);
  for (int row = 1; row <= rows; ++row) {
    EXPECT_EQ(report.col(row), former);
    boxes.push_back(box(failing.className, failing.members[static_cast<std::size_t>(row - 1)]));
  }
  EXPECT_EQ(report.boxes(), boxes);
}

INSTANTIATE_TEST_SUITE_P(
    Cluster, FailedMetrics,
    testing::Values(
        FailingMetrics{"clsRACStatistics", "RAC Statistics", "stats$thread", {"getNUMBER_OF_INSTANCES"}},
        FailingMetrics{
            "clsGlobalCacheLoadProfile",
            "Global Cache Load Profile",
            nullptr,
            {"getGCBR_SEC", "getGCBS_SEC", "getGGMR_SEC", "getGGMS_SEC", "getDFW_SEC", "getEITKB_SEC"}},
        FailingMetrics{"clsGlobalCacheEfficiency",
                       "Global Cache Efficiency",
                       "stats$sysstat",
                       {"getLOCAL_CACHE", "getREMOTE_CACHE", "getDISK"}},
        FailingMetrics{"clsWorkloadCharacteristics",
                       "GCS/GES Workload Characteristics",
                       "stats$sysstat",
                       {"getAGEGT", "getAGCCRBRT", "getAGCCUBRT", "getAGCCRBBT", "getAGCCRBST", "getAGCCRBFT",
                        "getGCLFFCRBS", "getAGCCUBPT", "getAGCCUBST", "getAGCCUBFT", "getGCLFFCUBS"}},
        FailingMetrics{"clsMessagingStatistics",
                       "GCS/GES Messaging Statistics",
                       "stats$dlm_misc",
                       {"getAMSQT", "getAMSQTOK", "getAMRQT", "getAGCMPT", "getAGEMPT", "getPODSM",
                        "getPOISM", "getPOFCM"}},
        FailingMetrics{"clsGlobalCRServedStats",
                       "Global CR Served Stats",
                       "stats$cr_block_server",
                       {"getCR_REQUESTS", "getCURRENT_REQUESTS", "getDATA_REQUESTS", "getUNDO_REQUESTS",
                        "getTX_REQUESTS", "getCURRENT_RESULTS", "getPRIVATE_RESULTS", "getZERO_RESULTS",
                        "getDISK_READ_RESULTS", "getFAIL_RESULTS", "getFAIRNESS_DOWN_CONVERTS",
                        "getFAIRNESS_CLEARS", "getFREE_GC_ELEMENTS", "getFLUSHES", "getFLUSHES_QUEUED",
                        "getFLUSH_QUEUE_FULL", "getFLUSH_MAX_TIME", "getLIGHT_WORKS", "getERRORS"}},
        FailingMetrics{"clsGlobalCURRENTServedStats",
                       "Global CURRENT Served Stats",
                       "stats$current_block_server",
                       {"getPINS", "getFLUSHES", "getWRITES"}},
        FailingMetrics{
            "clsDynamicRemasteringStats",
            "Dynamic Remastering Stats",
            "stats$dynamic_remaster_stats",
            {"getREMASTER_OPERATIONS", "getREMASTER_TIME_SEC", "getREMASTERD_OBJECTS", "getQUIESCE_TIME_SEC",
             "getAFFINITY_OBJECTS_BEG", "getFREEZE_TIME_SEC", "getAFFINITY_OBJECTS_END",
             "getCLEANUP_TIME_SEC", "getREPLAYED_LOCKS_SENT", "getREPLAY_TIME_SEC", "getREPLAYED_LOCKS_RECVD",
             "getFIXWRITE_TIME_SEC", "getRESOURCES_CLEANED", "getSYNC_TIME_SEC"}}),
    [](const auto& tested) { return std::string(tested.param.className); });

}  // namespace
}  // namespace kestrelix::testing_support
