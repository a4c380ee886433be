#include "sections/summary/ModuleDispLoadProfile.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using L = clsLoadProfile;

MetricRow rates(std::string label, std::string member, Accessor second, Accessor transaction) {
  return {std::move(label), std::move(member), {{"PER SECOND", second}, {"PER TRANSACTION", transaction}}};
}
MetricRow times(std::string label, std::string member, Accessor second, Accessor transaction,
                Accessor execution, Accessor call) {
  return {std::move(label),
          std::move(member),
          {{"PER SECOND", second},
           {"PER TRANSACTION", transaction},
           {"PER EXEC", execution},
           {"PER CALL", call}}};
}
MetricRow other(std::string label, std::string member, Accessor value) {
  return {std::move(label), std::move(member), {{"OTHER VALUE", value}}};
}

const MetricRow kRedo = rates("Redo size:", "getREDO_SIZE", &L::REDO_SIZE_S, &L::REDO_SIZE_T);
const MetricRow kReads =
    rates("Logical reads:", "getLOGICAL_READS", &L::LOGICAL_READS_S, &L::LOGICAL_READS_T);
const MetricRow kChanges =
    rates("Block changes:", "getDB_BLOCK_CHANGES", &L::DB_BLOCK_CHANGES_S, &L::DB_BLOCK_CHANGES_T);
const MetricRow kPhysicalReads =
    rates("Physical reads:", "getPHYSICAL_READS", &L::PHYSICAL_READS_S, &L::PHYSICAL_READS_T);
const MetricRow kPhysicalWrites =
    rates("Physical writes:", "getPHYSICAL_WRITES", &L::PHYSICAL_WRITES_S, &L::PHYSICAL_WRITES_T);
const MetricRow kUserCalls = rates("User calls:", "getUSER_CALLS", &L::USER_CALLS_S, &L::USER_CALLS_T);
const MetricRow kParses = rates("Parses:", "getPARSE", &L::PARSE_S, &L::PARSE_T);
const MetricRow kHardParses = rates("Hard parses:", "getPARSE_HARD", &L::PARSE_HARD_S, &L::PARSE_HARD_T);
const MetricRow kLogons = rates("Logons:", "getLOGONS", &L::LOGONS_S, &L::LOGONS_T);
const MetricRow kExecutes = rates("Executes:", "getEXECUTES", &L::EXECUTES_S, &L::EXECUTES_T);
const MetricRow kTransactions{"Transactions:", "getTRANSACTIONS", {{"PER SECOND", &L::TRANSACTIONS_S}}};

const MetricView kViewOf9And10{
    {"PER SECOND", "PER TRANSACTION", "OTHER VALUE"},
    {kRedo, kReads, kChanges, kPhysicalReads, kPhysicalWrites, kUserCalls, kParses, kHardParses,
     rates("Sorts:", "getSORTS", &L::SORTS_S, &L::SORTS_T), kLogons, kExecutes, kTransactions,
     other("% Blocks changed per Read:", "getBLOCKS_CHANGED_P_READ", &L::BLOCKS_CHANGED_P_READ),
     other("Rollback per transaction %:", "getROLLBACK_P_TRAN", &L::ROLLBACK_P_TRAN),
     other("Recursive Call %:", "getRECURSIVE_CALL", &L::RECURSIVE_CALL),
     other("Rows per Sort:", "getROWS_P_SORT", &L::ROWS_P_SORT)}};

const MetricView kViewOf11{
    {"PER SECOND", "PER TRANSACTION", "PER EXEC", "PER CALL"},
    {times("DB time(s):", "getDB_TIME", &L::DB_TIME_S, &L::DB_TIME_T, &L::DB_TIME_E, &L::DB_TIME_C),
     times("DB CPU(s):", "getDB_CPU", &L::DB_CPU_S, &L::DB_CPU_T, &L::DB_CPU_E, &L::DB_CPU_C), kRedo, kReads,
     kChanges, kPhysicalReads, kPhysicalWrites, kUserCalls, kParses, kHardParses,
     rates("W/A MB processed:", "getWA_MB_PROCESSED", &L::WA_MB_PROCESSED_S, &L::WA_MB_PROCESSED_T), kLogons,
     kExecutes, rates("Rollbacks:", "getROLLBACKS", &L::ROLLBACK_S, &L::ROLLBACK_T), kTransactions}};

const MetricView& view(const std::string& version) { return version == "11" ? kViewOf11 : kViewOf9And10; }

}  // namespace

void gDispLoadProfile_All(Workspace& workspace, const std::string& version) {
  clsLoadProfile object;
  renderMetricAll(workspace, object, view(version), version);
}

void gDispLoadProfile_Col(Workspace& workspace, const std::string& version, const ColRequest& request) {
  clsLoadProfile object;
  renderMetricCol(workspace, object, view(version), version, request.row);
}

}  // namespace kestrelix
