#include "sections/cluster/ModuleDispGlobalCRServedStats.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using C = clsGlobalCRServedStats;

const MetricView kView{
    .headings = {"TOTAL"},
    .rows =
        {{.label = "CR Block Requests", .member = "getCR_REQUESTS", .cells = {{"TOTAL", &C::CR_REQUESTS}}},
         {.label = "CURRENT Block Requests",
          .member = "getCURRENT_REQUESTS",
          .cells = {{"TOTAL", &C::CURRENT_REQUESTS}}},
         {.label = "Data Block Requests",
          .member = "getDATA_REQUESTS",
          .cells = {{"TOTAL", &C::DATA_REQUESTS}}},
         {.label = "Undo Block Requests",
          .member = "getUNDO_REQUESTS",
          .cells = {{"TOTAL", &C::UNDO_REQUESTS}}},
         {.label = "TX Block Requests", .member = "getTX_REQUESTS", .cells = {{"TOTAL", &C::TX_REQUESTS}}},
         {.label = "Current Results",
          .member = "getCURRENT_RESULTS",
          .cells = {{"TOTAL", &C::CURRENT_RESULTS}}},
         {.label = "Private results",
          .member = "getPRIVATE_RESULTS",
          .cells = {{"TOTAL", &C::PRIVATE_RESULTS}}},
         {.label = "Zero Results", .member = "getZERO_RESULTS", .cells = {{"TOTAL", &C::ZERO_RESULTS}}},
         {.label = "Disk Read Results",
          .member = "getDISK_READ_RESULTS",
          .cells = {{"TOTAL", &C::DISK_READ_RESULTS}}},
         {.label = "Fail Results", .member = "getFAIL_RESULTS", .cells = {{"TOTAL", &C::FAIL_RESULTS}}},
         {.label = "Fairness Down Converts",
          .member = "getFAIRNESS_DOWN_CONVERTS",
          .cells = {{"TOTAL", &C::FAIRNESS_DOWN_CONVERTS}}},
         {.label = "Fairness Clears",
          .member = "getFAIRNESS_CLEARS",
          .cells = {{"TOTAL", &C::FAIRNESS_CLEARS}}},
         {.label = "Free GC Elements",
          .member = "getFREE_GC_ELEMENTS",
          .cells = {{"TOTAL", &C::FREE_GC_ELEMENTS}}},
         {.label = "Flushes", .member = "getFLUSHES", .cells = {{"TOTAL", &C::FLUSHES}}},
         {.label = "Flushes Queued", .member = "getFLUSHES_QUEUED", .cells = {{"TOTAL", &C::FLUSHES_QUEUED}}},
         {.label = "Flush Queue Full",
          .member = "getFLUSH_QUEUE_FULL",
          .cells = {{"TOTAL", &C::FLUSH_QUEUE_FULL}}},
         {.label = "Flush Max Time (us)",
          .member = "getFLUSH_MAX_TIME",
          .cells = {{"TOTAL", &C::FLUSH_MAX_TIME}}},
         {.label = "Light Works", .member = "getLIGHT_WORKS", .cells = {{"TOTAL", &C::LIGHT_WORKS}}},
         {.label = "Errors", .member = "getERRORS", .cells = {{"TOTAL", &C::ERRORS}}}},
    .headingsAloneOnRestart = true,
    .nameHeading = "STATISTIC"};

}  // namespace

void gDispGlobalCRServedStats_All(Workspace& workspace, const std::string& version) {
  clsGlobalCRServedStats object;
  renderMetricAll(workspace, object, kView, version);
}

void gDispGlobalCRServedStats_Col(Workspace& workspace, const std::string& version,
                                  const ColRequest& request) {
  clsGlobalCRServedStats object;
  renderMetricCol(workspace, object, kView, version, request.row);
}

}  // namespace kestrelix
