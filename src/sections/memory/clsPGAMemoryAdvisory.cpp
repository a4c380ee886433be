#include "sections/memory/clsPGAMemoryAdvisory.h"

namespace kestrelix {
namespace {

const char* const kStatement = R"sql(
    select ROUND(pga_target_for_estimate / 1024 / 1024) AS PGA_TARGET_EST_MB,
           ROUND(pga_target_factor,1) AS SIZE_FACTR,
           ROUND(bytes_processed / 1024 / 1024,1) AS W_A_MB_PROCESSED,
           ROUND(estd_extra_bytes_rw / 1024 / 1024,1) AS W_A_MB_READ_WRITTEN_TO_DISK,
           ROUND(estd_pga_cache_hit_percentage,1) AS CACHE_HIT_PAR,
           estd_overalloc_count AS OVERALLOC_COUNT
      from stats$pga_target_advice e
     where snap_id = :B4
       and dbid = :B1
       and instance_number = :B2
     order by pga_target_for_estimate)sql";

}  // namespace

clsPGAMemoryAdvisory::clsPGAMemoryAdvisory()
    : ListSectionObject("clsPGAMemoryAdvisory", fieldNames(),
                        {argument("B5", ServerType::Number), argument("B6", ServerType::Number)}) {
  all("getPGA_MEMORY_ADVISORY_ALL", fold(kStatement));
  col("getPGA_MEMORY_ADVISORY_COL", fold(std::string("select * from (") + kStatement +
                                         ") Z where Z.PGA_TARGET_EST_MB = :B5 and Z.SIZE_FACTR = :B6"));
}

}  // namespace kestrelix
