#include "sections/cluster/ModuleDispDynamicRemasteringStats.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using D = clsDynamicRemasteringStats;

/// The labels of the Col views are those of another Section, "Global CR Served Stats", row by row. They have
/// always been so.
const MetricView kView{.headings = {"VALUE"},
                       .rows = {{.label = "Remaster Operations:",
                                 .member = "getREMASTER_OPERATIONS",
                                 .cells = {{"VALUE", &D::REMASTER_OPERATIONS}},
                                 .colLabel = "CR Block Requests"},
                                {.label = "Remaster Time(s):",
                                 .member = "getREMASTER_TIME_SEC",
                                 .cells = {{"VALUE", &D::REMASTER_TIME_SEC}},
                                 .colLabel = "CURRENT Block Requests"},
                                {.label = "Remastered Objects:",
                                 .member = "getREMASTERD_OBJECTS",
                                 .cells = {{"VALUE", &D::REMASTERD_OBJECTS}},
                                 .colLabel = "Data Block Requests"},
                                {.label = "Quiesce Time(s):",
                                 .member = "getQUIESCE_TIME_SEC",
                                 .cells = {{"VALUE", &D::QUIESCE_TIME_SEC}},
                                 .colLabel = "Undo Block Requests"},
                                {.label = "Affinity Objects (Beg):",
                                 .member = "getAFFINITY_OBJECTS_BEG",
                                 .cells = {{"VALUE", &D::AFFINITY_OBJECTS_BEG}},
                                 .colLabel = "TX Block Requests"},
                                {.label = "Freeze Time(s):",
                                 .member = "getFREEZE_TIME_SEC",
                                 .cells = {{"VALUE", &D::FREEZE_TIME_SEC}},
                                 .colLabel = "Current Results"},
                                {.label = "Affinity Objects (End):",
                                 .member = "getAFFINITY_OBJECTS_END",
                                 .cells = {{"VALUE", &D::AFFINITY_OBJECTS_END}},
                                 .colLabel = "Private results"},
                                {.label = "Cleanup Time(s):",
                                 .member = "getCLEANUP_TIME_SEC",
                                 .cells = {{"VALUE", &D::CLEANUP_TIME_SEC}},
                                 .colLabel = "Zero Results"},
                                {.label = "Replayed Locks Sent:",
                                 .member = "getREPLAYED_LOCKS_SENT",
                                 .cells = {{"VALUE", &D::REPLAYED_LOCKS_SENT}},
                                 .colLabel = "Disk Read Results"},
                                {.label = "Replay Time(s):",
                                 .member = "getREPLAY_TIME_SEC",
                                 .cells = {{"VALUE", &D::REPLAY_TIME_SEC}},
                                 .colLabel = "Fail Results"},
                                {.label = "Replayed Locks Recvd:",
                                 .member = "getREPLAYED_LOCKS_RECVD",
                                 .cells = {{"VALUE", &D::REPLAYED_LOCKS_RECVD}},
                                 .colLabel = "Fairness Down Converts"},
                                {.label = "Fixwrite Time(s):",
                                 .member = "getFIXWRITE_TIME_SEC",
                                 .cells = {{"VALUE", &D::FIXWRITE_TIME_SEC}},
                                 .colLabel = "Fairness Clears"},
                                {.label = "Resources Cleaned:",
                                 .member = "getRESOURCES_CLEANED",
                                 .cells = {{"VALUE", &D::RESOURCES_CLEANED}},
                                 .colLabel = "Free GC Elements"},
                                {.label = "Sync Time(s):",
                                 .member = "getSYNC_TIME_SEC",
                                 .cells = {{"VALUE", &D::SYNC_TIME_SEC}},
                                 .colLabel = "Flushes"}},
                       .headingsAloneOnRestart = true};

}  // namespace

void gDispDynamicRemasteringStats_All(Workspace& workspace, const std::string& version) {
  clsDynamicRemasteringStats object;
  renderMetricAll(workspace, object, kView, version);
}

void gDispDynamicRemasteringStats_Col(Workspace& workspace, const std::string& version,
                                      const ColRequest& request) {
  clsDynamicRemasteringStats object;
  renderMetricCol(workspace, object, kView, version, request.row);
}

}  // namespace kestrelix
