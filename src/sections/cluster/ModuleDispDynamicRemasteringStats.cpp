#include "sections/cluster/ModuleDispDynamicRemasteringStats.h"

#include "sections/cluster/clsDynamicRemasteringStats.h"

namespace kestrelix {
namespace {

using F = clsDynamicRemasteringStats::Field;

/// The labels of the Col views are those of another Section, "Global CR Served Stats", row by row. They have
/// always been so.
const MetricView<clsDynamicRemasteringStats> kView{
    .headings = {"VALUE"},
    .rows = {{.label = "Remaster Operations:",
              .member = "getREMASTER_OPERATIONS",
              .cells = {{"VALUE", F::REMASTER_OPERATIONS, Kind::Count}},
              .colLabel = "CR Block Requests"},
             {.label = "Remaster Time(s):",
              .member = "getREMASTER_TIME_SEC",
              .cells = {{"VALUE", F::REMASTER_TIME_SEC, Kind::Count, unit::seconds}},
              .colLabel = "CURRENT Block Requests"},
             {.label = "Remastered Objects:",
              .member = "getREMASTERD_OBJECTS",
              .cells = {{"VALUE", F::REMASTERD_OBJECTS, Kind::Count}},
              .colLabel = "Data Block Requests"},
             {.label = "Quiesce Time(s):",
              .member = "getQUIESCE_TIME_SEC",
              .cells = {{"VALUE", F::QUIESCE_TIME_SEC, Kind::Count, unit::seconds}},
              .colLabel = "Undo Block Requests"},
             {.label = "Affinity Objects (Beg):",
              .member = "getAFFINITY_OBJECTS_BEG",
              .cells = {{"VALUE", F::AFFINITY_OBJECTS_BEG, Kind::Level}},
              .colLabel = "TX Block Requests"},
             {.label = "Freeze Time(s):",
              .member = "getFREEZE_TIME_SEC",
              .cells = {{"VALUE", F::FREEZE_TIME_SEC, Kind::Count, unit::seconds}},
              .colLabel = "Current Results"},
             {.label = "Affinity Objects (End):",
              .member = "getAFFINITY_OBJECTS_END",
              .cells = {{"VALUE", F::AFFINITY_OBJECTS_END, Kind::Level}},
              .colLabel = "Private results"},
             {.label = "Cleanup Time(s):",
              .member = "getCLEANUP_TIME_SEC",
              .cells = {{"VALUE", F::CLEANUP_TIME_SEC, Kind::Count, unit::seconds}},
              .colLabel = "Zero Results"},
             {.label = "Replayed Locks Sent:",
              .member = "getREPLAYED_LOCKS_SENT",
              .cells = {{"VALUE", F::REPLAYED_LOCKS_SENT, Kind::Count}},
              .colLabel = "Disk Read Results"},
             {.label = "Replay Time(s):",
              .member = "getREPLAY_TIME_SEC",
              .cells = {{"VALUE", F::REPLAY_TIME_SEC, Kind::Count, unit::seconds}},
              .colLabel = "Fail Results"},
             {.label = "Replayed Locks Recvd:",
              .member = "getREPLAYED_LOCKS_RECVD",
              .cells = {{"VALUE", F::REPLAYED_LOCKS_RECVD, Kind::Count}},
              .colLabel = "Fairness Down Converts"},
             {.label = "Fixwrite Time(s):",
              .member = "getFIXWRITE_TIME_SEC",
              .cells = {{"VALUE", F::FIXWRITE_TIME_SEC, Kind::Count, unit::seconds}},
              .colLabel = "Fairness Clears"},
             {.label = "Resources Cleaned:",
              .member = "getRESOURCES_CLEANED",
              .cells = {{"VALUE", F::RESOURCES_CLEANED, Kind::Count}},
              .colLabel = "Free GC Elements"},
             {.label = "Sync Time(s):",
              .member = "getSYNC_TIME_SEC",
              .cells = {{"VALUE", F::SYNC_TIME_SEC, Kind::Count, unit::seconds}},
              .colLabel = "Flushes"}},
    .headingsAloneOnRestart = true};

}  // namespace

std::vector<ReleaseViews> dynamicRemasteringStatsViews() { return {viewsOf(kAllVersions, kView)}; }

}  // namespace kestrelix
