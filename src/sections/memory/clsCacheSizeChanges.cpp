#include "sections/memory/clsCacheSizeChanges.h"

namespace kestrelix {
namespace {

/// Each snapshot's value beside the one before of the same name; the first of each name has none and drops
/// out.
const char* const kStatement = R"sql(
    select decode(name, '__db_cache_size', 'Buffer Cache',
                        '__shared_pool_size', 'Shared Pool',
                        '__large_pool_size', 'Large Pool',
                        '__java_pool_size', 'Java Pool',
                        '__streams_pool_size', 'Streams Pool') AS CACHE,
           DECODE(start_value,null,' ',ROUND(start_value,2)) AS START_SIZE_MB,
           DECODE(end_value,null,' ',ROUND(end_value,2)) AS END_SIZE_MB,
           DECODE(end_value - start_value,null,' ',ROUND(end_value - start_value,2)) AS DIFF_SIZE_MB
      from
     (select name,
             to_number(value) / 1024 / 1024 AS end_value,
             to_number(lag(value, 1, null) over (order by name, snap_id)) / 1024 / 1024 AS start_value,
             lag(name, 1, null) over (order by name, snap_id) AS start_name
        from stats$parameter
       where snap_id between :B3 and :B4
         and dbid = :B1
         and instance_number = :B2
         and name in ('__shared_pool_size', '__db_cache_size', '__large_pool_size', '__java_pool_size',
                      '__streams_pool_size'))
     where name = start_name
     order by end_value desc)sql";

}  // namespace

clsCacheSizeChanges::clsCacheSizeChanges()
    : ListSectionObject("clsCacheSizeChanges", fieldNames(), {argument("B5", ServerType::String)}) {
  all("getCACHE_SIZE_CHANGES_ALL", fold(kStatement));
  col("getCACHE_SIZE_CHANGES_COL",
      fold(std::string("select * from (") + kStatement + ") Z where Z.CACHE = :B5"));
}

}  // namespace kestrelix
