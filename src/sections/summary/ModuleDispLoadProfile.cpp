#include "sections/summary/ModuleDispLoadProfile.h"

#include "sections/summary/clsLoadProfile.h"

namespace kestrelix {
namespace {

using F = clsLoadProfile::Field;
using Row = MetricRow<clsLoadProfile>;

Row rates(std::string label, std::string member, F second, F transaction, std::string_view in = unit::none) {
  return {
      .label = std::move(label),
      .member = std::move(member),
      .cells = {{"PER SECOND", second, Kind::Rate, in}, {"PER TRANSACTION", transaction, Kind::Ratio, in}}};
}
Row times(std::string label, std::string member, F second, F transaction, F execution, F call) {
  return {.label = std::move(label),
          .member = std::move(member),
          .cells = {{"PER SECOND", second, Kind::Rate, unit::seconds},
                    {"PER TRANSACTION", transaction, Kind::Ratio, unit::seconds},
                    {"PER EXEC", execution, Kind::Ratio, unit::seconds},
                    {"PER CALL", call, Kind::Ratio, unit::seconds}}};
}
Row other(std::string label, std::string member, F value, Kind kind, std::string_view in = unit::none) {
  return {
      .label = std::move(label), .member = std::move(member), .cells = {{"OTHER VALUE", value, kind, in}}};
}

const Row kRedo = rates("Redo size:", "getREDO_SIZE", F::REDO_SIZE_S, F::REDO_SIZE_T, unit::bytes);
const Row kReads =
    rates("Logical reads:", "getLOGICAL_READS", F::LOGICAL_READS_S, F::LOGICAL_READS_T, unit::blocks);
const Row kChanges = rates("Block changes:", "getDB_BLOCK_CHANGES", F::DB_BLOCK_CHANGES_S,
                           F::DB_BLOCK_CHANGES_T, unit::blocks);
const Row kPhysicalReads =
    rates("Physical reads:", "getPHYSICAL_READS", F::PHYSICAL_READS_S, F::PHYSICAL_READS_T, unit::blocks);
const Row kPhysicalWrites =
    rates("Physical writes:", "getPHYSICAL_WRITES", F::PHYSICAL_WRITES_S, F::PHYSICAL_WRITES_T, unit::blocks);
const Row kUserCalls = rates("User calls:", "getUSER_CALLS", F::USER_CALLS_S, F::USER_CALLS_T);
const Row kParses = rates("Parses:", "getPARSE", F::PARSE_S, F::PARSE_T);
const Row kHardParses = rates("Hard parses:", "getPARSE_HARD", F::PARSE_HARD_S, F::PARSE_HARD_T);
const Row kLogons = rates("Logons:", "getLOGONS", F::LOGONS_S, F::LOGONS_T);
const Row kExecutes = rates("Executes:", "getEXECUTES", F::EXECUTES_S, F::EXECUTES_T);
const Row kTransactions{.label = "Transactions:",
                        .member = "getTRANSACTIONS",
                        .cells = {{"PER SECOND", F::TRANSACTIONS_S, Kind::Rate}}};

const MetricView<clsLoadProfile> kViewOf9And10{
    .headings = {"PER SECOND", "PER TRANSACTION", "OTHER VALUE"},
    .rows = {kRedo, kReads, kChanges, kPhysicalReads, kPhysicalWrites, kUserCalls, kParses, kHardParses,
             rates("Sorts:", "getSORTS", F::SORTS_S, F::SORTS_T), kLogons, kExecutes, kTransactions,
             other("% Blocks changed per Read:", "getBLOCKS_CHANGED_P_READ", F::BLOCKS_CHANGED_P_READ,
                   Kind::Share, unit::percent),
             other("Rollback per transaction %:", "getROLLBACK_P_TRAN", F::ROLLBACK_P_TRAN, Kind::Share,
                   unit::percent),
             other("Recursive Call %:", "getRECURSIVE_CALL", F::RECURSIVE_CALL, Kind::Share, unit::percent),
             other("Rows per Sort:", "getROWS_P_SORT", F::ROWS_P_SORT, Kind::Ratio)}};

const MetricView<clsLoadProfile> kViewOf11{
    .headings = {"PER SECOND", "PER TRANSACTION", "PER EXEC", "PER CALL"},
    .rows = {times("DB time(s):", "getDB_TIME", F::DB_TIME_S, F::DB_TIME_T, F::DB_TIME_E, F::DB_TIME_C),
             times("DB CPU(s):", "getDB_CPU", F::DB_CPU_S, F::DB_CPU_T, F::DB_CPU_E, F::DB_CPU_C), kRedo,
             kReads, kChanges, kPhysicalReads, kPhysicalWrites, kUserCalls, kParses, kHardParses,
             rates("W/A MB processed:", "getWA_MB_PROCESSED", F::WA_MB_PROCESSED_S, F::WA_MB_PROCESSED_T,
                   unit::megabytes),
             kLogons, kExecutes, rates("Rollbacks:", "getROLLBACKS", F::ROLLBACK_S, F::ROLLBACK_T),
             kTransactions}};

}  // namespace

std::vector<ReleaseViews> loadProfileViews() {
  return {viewsOf(V9_10, kViewOf9And10), viewsOf(V11, kViewOf11)};
}

}  // namespace kestrelix
