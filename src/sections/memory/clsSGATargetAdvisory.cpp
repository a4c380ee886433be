#include "sections/memory/clsSGATargetAdvisory.h"

namespace kestrelix {
namespace {

const char* const kStatement = R"sql(
    select sga_size AS SGA_TARGET_SIZE_MB,
           ROUND(sga_size_factor,1) AS SGA_SIZE_FACTOR,
           estd_db_time AS EST_DB_TIME_SEC,
           ROUND(estd_db_time_factor,1) AS EST_DB_TIME_FACTOR,
           estd_physical_reads AS EST_PHYSICAL_READS
      from stats$sga_target_advice
     where snap_id = :B4
       and dbid = :B1
       and instance_number = :B2
     order by sga_size)sql";

}  // namespace

clsSGATargetAdvisory::clsSGATargetAdvisory()
    : ListSectionObject("clsSGATargetAdvisory", fieldNames(),
                        {argument("B5", ServerType::Number), argument("B6", ServerType::Number)}) {
  all("getSGA_TARGET_ADVISORY_ALL", fold(kStatement));
  col("getSGA_TARGET_ADVISORY_COL", fold(std::string("select * from (") + kStatement +
                                         ") Z where Z.SGA_TARGET_SIZE_MB = :B5 and Z.SGA_SIZE_FACTOR = :B6"));
}

}  // namespace kestrelix
