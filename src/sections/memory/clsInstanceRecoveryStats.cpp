#include "sections/memory/clsInstanceRecoveryStats.h"

namespace kestrelix {
namespace {

std::string snapshot(const std::string& letter, const std::string& alias, const std::string& bind) {
  const std::pair<const char*, const char*> columns[] = {
      {"target_mttr", "TARGT_MTTR_SEC"},
      {"estimated_mttr", "ESTD_MTTR_SEC"},
      {"recovery_estimated_ios", "RECOVERY_ESTD_IOS"},
      {"actual_redo_blks", "ACTUAL_REDO_BLKS"},
      {"target_redo_blks", "TARGET_REDO_BLKS"},
      {"log_file_size_redo_blks", "LOG_FILE_SIZE_REDO_BLKS"},
      {"log_chkpt_timeout_redo_blks", "LOG_CKPT_TIMEOUT_REDO_BLKS"},
      {"log_chkpt_interval_redo_blks", "LOG_CKPT_INTERVAL_REDO_BLKS"}};
  std::string text = "select '" + letter + "' AS SNAP";
  for (const auto& [column, name] : columns)
    text += ", DECODE(" + std::string(column) + ",null,' '," + column + ") AS " + name;
  return text + ", snap_id AS SNAP_ID from stats$instance_recovery " + alias + " where " + alias +
         ".snap_id = " + bind + " and " + alias + ".dbid = :B1 and " + alias + ".instance_number = :B2";
}

}  // namespace

clsInstanceRecoveryStats::clsInstanceRecoveryStats()
    : ListSectionObject("clsInstanceRecoveryStats", fieldNames(), {argument("B5", ServerType::String)}) {
  const std::string both =
      snapshot("B", "b", ":B3") + " union all " + snapshot("E", "e", ":B4") + " order by SNAP_ID";
  all("getINSTANCE_RECOVERY_STATS_ALL", fold(both)).acrossRestarts();
  col("getINSTANCE_RECOVERY_STATS_COL", fold("select * from (" + both + ") Z where Z.SNAP = :B5"))
      .acrossRestarts();
}

}  // namespace kestrelix
