#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// SQL statements of the pair ranked by one measure (stats$sql_summary): ten members, each with a statement
/// by the measure, most with one by the measure per execution, and one for a single statement over the pairs.
/// Binds beside the pair: B5 the hash of that single statement, PAR the least share of the total in percent,
/// TOP_NUM the limit of rows.
class clsSQLorderedby : public SectionObject {
 public:
  KESTRELIX_FIELDS(OLD_HASH_VALUE, HASH_VALUE, ADDRESS, EXECUTIONS, TOTAL_DB_CPU, TOTAL_DB_TIME,
                   TOTAL_LOGICAL_READS, TOTAL_PHYSICAL_READS, TOTAL_EXECUTE_COUNT, TOTAL_PARSE_COUNT,
                   SHARED_POOL_SIZE, TOTAL_PRE, CPU_TIME, CPU_TIME_PEXEC, ELAPSED_TIME, ELAPSED_TIME_PEXEC,
                   BUFFER_GETS, BUFFER_GETS_PEXEC, DISK_READS, DISK_READS_PEXEC, ROWS_PROCESSED,
                   ROWS_PROCESSED_PEXEC, IO_WAIT_TIME, IO_WAIT_TIME_PEXEC, PARSE_CALLS, SHARABLE_MEM,
                   MAX_SHARABLE_MEM, LAST_SHARABLE_MEM, VERSION_COUNT, MAX_VERSION_COUNT, LAST_VERSION_COUNT,
                   DELTA_VERSION_COUNT, CLUSTER_WAIT_TIME, CLUSTER_WAIT_PRE_ELAPSED, CLUSTER_WAIT_TIME_PEXEC,
                   MODULE)
  clsSQLorderedby();
};

}  // namespace kestrelix
