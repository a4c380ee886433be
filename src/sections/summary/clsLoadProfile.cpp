#include "sections/summary/clsLoadProfile.h"

#include "sections/summary/snapshotFigures.h"

namespace kestrelix {
namespace {

/// The seconds of the pair aren't rounded: an hour is a trace over 3600, which settles ties downwards.
const std::string kDays = "(B.END_SNAP_TIME - A.START_SNAP_TIME)";
const std::string kSeconds = "(" + kDays + " * 1440 * 60)";

/// `amount` by `divisor` at two digits, blank if `zero` is 0.
std::string ratio(const std::string& amount, const std::string& divisor, const std::string& zero) {
  return "DECODE(" + zero + ",0,' ',ROUND(" + amount + " / " + divisor + ",2))";
}
std::string ratio(const std::string& amount, const std::string& divisor) {
  return ratio(amount, divisor, divisor);
}
std::string perSecond(const std::string& amount) { return ratio(amount, kSeconds, kDays); }
std::string perTransaction(const std::string& amount) { return ratio(amount, gain("TRANSACTIONS")); }

/// x_S and x_T of a statistic.
std::string rates(const std::string& alias, const std::string& name) {
  return fromStartAndEnd(
      perSecond(gain(alias)) + " AS " + alias + "_S, " + perTransaction(gain(alias)) + " AS " + alias + "_T",
      {statistic(alias, name), transactionCount()});
}

/// x_S, x_T, x_E and x_C, in seconds, of a figure of the time model.
std::string timeRates(const std::string& alias, const std::string& name) {
  const std::string seconds = gain(alias) + " / 1000000";
  return fromStartAndEnd(
      perSecond(seconds) + " AS " + alias + "_S, " + perTransaction(seconds) + " AS " + alias + "_T, " +
          ratio(seconds, gain("EXECUTE_COUNT")) + " AS " + alias + "_E, " +
          ratio(seconds, gain("USER_CALLS")) + " AS " + alias + "_C",
      {timeModel(alias, name), transactionCount(), statistic("EXECUTE_COUNT", "execute count"),
       statistic("USER_CALLS", "user calls")});
}

}  // namespace

clsLoadProfile::clsLoadProfile() : MetricSectionObject("clsLoadProfile", fieldNames()) {
  buildCommon();
  buildOfVersion11();
  order(V9_10, {"getREDO_SIZE", "getLOGICAL_READS", "getDB_BLOCK_CHANGES", "getPHYSICAL_READS",
                "getPHYSICAL_WRITES", "getUSER_CALLS", "getPARSE", "getPARSE_HARD", "getSORTS", "getLOGONS",
                "getEXECUTES", "getTRANSACTIONS", "getBLOCKS_CHANGED_P_READ", "getRECURSIVE_CALL",
                "getROLLBACK_P_TRAN", "getROWS_P_SORT"});
  order(V11, {"getDB_TIME", "getDB_CPU", "getREDO_SIZE", "getLOGICAL_READS", "getDB_BLOCK_CHANGES",
              "getPHYSICAL_READS", "getPHYSICAL_WRITES", "getUSER_CALLS", "getPARSE", "getPARSE_HARD",
              "getWA_MB_PROCESSED", "getLOGONS", "getEXECUTES", "getROLLBACKS", "getTRANSACTIONS"});
}

void clsLoadProfile::buildCommon() {
  metric("getREDO_SIZE", {Field::REDO_SIZE_S, Field::REDO_SIZE_T}, rates("REDO_SIZE", "redo size"));
  metric("getLOGICAL_READS", {Field::LOGICAL_READS_S, Field::LOGICAL_READS_T},
         rates("LOGICAL_READS", "session logical reads"));
  metric("getDB_BLOCK_CHANGES", {Field::DB_BLOCK_CHANGES_S, Field::DB_BLOCK_CHANGES_T},
         rates("DB_BLOCK_CHANGES", "db block changes"));
  metric("getPHYSICAL_READS", {Field::PHYSICAL_READS_S, Field::PHYSICAL_READS_T},
         rates("PHYSICAL_READS", "physical reads"));
  metric("getPHYSICAL_WRITES", {Field::PHYSICAL_WRITES_S, Field::PHYSICAL_WRITES_T},
         rates("PHYSICAL_WRITES", "physical writes"));
  metric("getUSER_CALLS", {Field::USER_CALLS_S, Field::USER_CALLS_T}, rates("USER_CALLS", "user calls"));
  metric("getPARSE", {Field::PARSE_S, Field::PARSE_T}, rates("PARSE", "parse count (total)"));
  metric("getPARSE_HARD", {Field::PARSE_HARD_S, Field::PARSE_HARD_T},
         rates("PARSE_HARD", "parse count (hard)"));
  // Sorts on disk aren't counted here.
  metric("getSORTS", {Field::SORTS_S, Field::SORTS_T}, rates("SORTS", "sorts (memory)"));
  metric("getLOGONS", {Field::LOGONS_S, Field::LOGONS_T}, rates("LOGONS", "logons cumulative"));
  metric("getEXECUTES", {Field::EXECUTES_S, Field::EXECUTES_T}, rates("EXECUTES", "execute count"));
  metric("getTRANSACTIONS", {Field::TRANSACTIONS_S},
         fromStartAndEnd(perSecond(gain("TRANSACTIONS")) + " AS TRANSACTIONS_S", {transactionCount()}));
  metric("getBLOCKS_CHANGED_P_READ", {Field::BLOCKS_CHANGED_P_READ},
         fromStartAndEnd(
             ratio("100 * " + gain("DB_BLOCK_CHANGES"), gain("LOGICAL_READS")) + " AS BLOCKS_CHANGED_P_READ",
             {statistic("DB_BLOCK_CHANGES", "db block changes"),
              statistic("LOGICAL_READS", "session logical reads")}));
  metric("getRECURSIVE_CALL", {Field::RECURSIVE_CALL},
         fromStartAndEnd(
             ratio("100 * " + gain("RECURSIVE_CALLS"),
                   "(" + gain("RECURSIVE_CALLS") + " + " + gain("USER_CALLS") + ")") +
                 " AS RECURSIVE_CALL",
             {statistic("RECURSIVE_CALLS", "recursive calls"), statistic("USER_CALLS", "user calls")}));
  metric("getROLLBACK_P_TRAN", {Field::ROLLBACK_P_TRAN},
         fromStartAndEnd(perTransaction("100 * " + gain("USER_ROLLBACKS")) + " AS ROLLBACK_P_TRAN",
                         {statistic("USER_ROLLBACKS", "user rollbacks"), transactionCount()}));
  metric("getROWS_P_SORT", {Field::ROWS_P_SORT},
         fromStartAndEnd(
             ratio(gain("SORTS_ROWS"), "(" + gain("SORTS_MEMORY") + " + " + gain("SORTS_DISK") + ")") +
                 " AS ROWS_P_SORT",
             {statistic("SORTS_MEMORY", "sorts (memory)"), statistic("SORTS_ROWS", "sorts (rows)"),
              statistic("SORTS_DISK", "sorts (disk)")}));
}

void clsLoadProfile::buildOfVersion11() {
  metric("getDB_TIME", {Field::DB_TIME_S, Field::DB_TIME_T, Field::DB_TIME_E, Field::DB_TIME_C},
         timeRates("DB_TIME", "DB time"))
      .only(V10_11);
  metric("getDB_CPU", {Field::DB_CPU_S, Field::DB_CPU_T, Field::DB_CPU_E, Field::DB_CPU_C},
         timeRates("DB_CPU", "DB CPU"))
      .only(V10_11);
  const std::string megabytes = gain("BYTES_PROCESSED") + " / 1024 / 1024";
  metric("getWA_MB_PROCESSED", {Field::WA_MB_PROCESSED_S, Field::WA_MB_PROCESSED_T},
         fromStartAndEnd(perSecond(megabytes) + " AS WA_MB_PROCESSED_S, " + perTransaction(megabytes) +
                             " AS WA_MB_PROCESSED_T",
                         {sessionMemory("BYTES_PROCESSED", "bytes processed"), transactionCount()}));
  metric("getROLLBACKS", {Field::ROLLBACK_S, Field::ROLLBACK_T}, rates("ROLLBACK", "user rollbacks"));
}

}  // namespace kestrelix
