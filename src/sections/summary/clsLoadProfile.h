#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// Workload of the pair: each figure per second (_S), per transaction (_T), and from version 11 on some also
/// per execution (_E) and per user call (_C), and a few ratios; two digits, blank where the divisor is 0.
class clsLoadProfile : public MetricSectionObject {
 public:
  KESTRELIX_FIELDS(REDO_SIZE_S, REDO_SIZE_T, LOGICAL_READS_S, LOGICAL_READS_T, DB_BLOCK_CHANGES_S,
                   DB_BLOCK_CHANGES_T, PHYSICAL_READS_S, PHYSICAL_READS_T, PHYSICAL_WRITES_S,
                   PHYSICAL_WRITES_T, USER_CALLS_S, USER_CALLS_T, PARSE_S, PARSE_T, PARSE_HARD_S,
                   PARSE_HARD_T, SORTS_S, SORTS_T, LOGONS_S, LOGONS_T, EXECUTES_S, EXECUTES_T, TRANSACTIONS_S,
                   BLOCKS_CHANGED_P_READ, RECURSIVE_CALL, ROLLBACK_P_TRAN, ROWS_P_SORT, DB_TIME_S, DB_TIME_T,
                   DB_TIME_E, DB_TIME_C, DB_CPU_S, DB_CPU_T, DB_CPU_E, DB_CPU_C, WA_MB_PROCESSED_S,
                   WA_MB_PROCESSED_T, ROLLBACK_S, ROLLBACK_T)
  clsLoadProfile();

 private:
  void buildCommon();
  void buildOfVersion11();
};

}  // namespace kestrelix
