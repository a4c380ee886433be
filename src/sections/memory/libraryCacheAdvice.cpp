#include "sections/memory/libraryCacheAdvice.h"

namespace kestrelix {

std::string libraryCacheAdvice(const std::string& pool, const std::string& letters, LoadTimes times) {
  const std::string upper = pool == "java" ? "JAVA" : "SHARED";
  const std::string loadTimes = times == LoadTimes::Missing ? "" : R"sql(
           estd_lc_load_time AS EST_LC_LOAD_TIME_SEC,
           ROUND(estd_lc_load_time_factor,1) AS EST_LC_LOAD_TIME_FACTR,)sql";
  return "select " + pool + "_pool_size_for_estimate AS " + upper + "_POOL_SIZE_MB, ROUND(" + pool +
         "_pool_size_factor,1) AS " + letters + R"sql(_SIZE_FACTR,
           estd_lc_size AS EST_LC_SIZE_MB,
           estd_lc_memory_objects AS EST_LC_MEM_OBJ,
           estd_lc_time_saved AS EST_LC_TIME_SAVED_SEC,
           ROUND(estd_lc_time_saved_factor,1) AS EST_LC_TIME_SAVED_FACTR,)sql" +
         loadTimes + R"sql(
           estd_lc_memory_object_hits AS EST_LC_MEM_OBJ_HITS
      from stats$)sql" +
         pool + R"sql(_pool_advice
     where snap_id = :B4
       and dbid = :B1
       and instance_number = :B2)sql";
}

}  // namespace kestrelix
