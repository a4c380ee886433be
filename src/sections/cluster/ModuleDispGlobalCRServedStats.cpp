#include "sections/cluster/ModuleDispGlobalCRServedStats.h"

#include "sections/cluster/clsGlobalCRServedStats.h"

namespace kestrelix {
namespace {

using F = clsGlobalCRServedStats::Field;

const MetricView<clsGlobalCRServedStats> kView{
    .headings = {"TOTAL"},
    .rows = {{.label = "CR Block Requests",
              .member = "getCR_REQUESTS",
              .cells = {{"TOTAL", F::CR_REQUESTS, Kind::Count}}},
             {.label = "CURRENT Block Requests",
              .member = "getCURRENT_REQUESTS",
              .cells = {{"TOTAL", F::CURRENT_REQUESTS, Kind::Count}}},
             {.label = "Data Block Requests",
              .member = "getDATA_REQUESTS",
              .cells = {{"TOTAL", F::DATA_REQUESTS, Kind::Count}}},
             {.label = "Undo Block Requests",
              .member = "getUNDO_REQUESTS",
              .cells = {{"TOTAL", F::UNDO_REQUESTS, Kind::Count}}},
             {.label = "TX Block Requests",
              .member = "getTX_REQUESTS",
              .cells = {{"TOTAL", F::TX_REQUESTS, Kind::Count}}},
             {.label = "Current Results",
              .member = "getCURRENT_RESULTS",
              .cells = {{"TOTAL", F::CURRENT_RESULTS, Kind::Count}}},
             {.label = "Private results",
              .member = "getPRIVATE_RESULTS",
              .cells = {{"TOTAL", F::PRIVATE_RESULTS, Kind::Count}}},
             {.label = "Zero Results",
              .member = "getZERO_RESULTS",
              .cells = {{"TOTAL", F::ZERO_RESULTS, Kind::Count}}},
             {.label = "Disk Read Results",
              .member = "getDISK_READ_RESULTS",
              .cells = {{"TOTAL", F::DISK_READ_RESULTS, Kind::Count}}},
             {.label = "Fail Results",
              .member = "getFAIL_RESULTS",
              .cells = {{"TOTAL", F::FAIL_RESULTS, Kind::Count}}},
             {.label = "Fairness Down Converts",
              .member = "getFAIRNESS_DOWN_CONVERTS",
              .cells = {{"TOTAL", F::FAIRNESS_DOWN_CONVERTS, Kind::Count}}},
             {.label = "Fairness Clears",
              .member = "getFAIRNESS_CLEARS",
              .cells = {{"TOTAL", F::FAIRNESS_CLEARS, Kind::Count}}},
             {.label = "Free GC Elements",
              .member = "getFREE_GC_ELEMENTS",
              .cells = {{"TOTAL", F::FREE_GC_ELEMENTS, Kind::Count}}},
             {.label = "Flushes", .member = "getFLUSHES", .cells = {{"TOTAL", F::FLUSHES, Kind::Count}}},
             {.label = "Flushes Queued",
              .member = "getFLUSHES_QUEUED",
              .cells = {{"TOTAL", F::FLUSHES_QUEUED, Kind::Count}}},
             {.label = "Flush Queue Full",
              .member = "getFLUSH_QUEUE_FULL",
              .cells = {{"TOTAL", F::FLUSH_QUEUE_FULL, Kind::Count}}},
             {.label = "Flush Max Time (us)",
              .member = "getFLUSH_MAX_TIME",
              .cells = {{"TOTAL", F::FLUSH_MAX_TIME, Kind::Count, unit::microseconds}}},
             {.label = "Light Works",
              .member = "getLIGHT_WORKS",
              .cells = {{"TOTAL", F::LIGHT_WORKS, Kind::Count}}},
             {.label = "Errors", .member = "getERRORS", .cells = {{"TOTAL", F::ERRORS, Kind::Count}}}},
    .headingsAloneOnRestart = true,
    .nameHeading = "STATISTIC"};

}  // namespace

std::vector<ReleaseViews> globalCRServedStatsViews() { return {viewsOf(kAllVersions, kView)}; }

}  // namespace kestrelix
