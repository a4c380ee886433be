#include "sections/memory/clsSGAMemorySummary.h"

namespace kestrelix {
namespace {

const char* const kStatement = R"sql(
    select e.name AS SGA_REGIONS,
           ROUND(b.value / 1024 / 1024,2) AS START_SIZE_MB,
           ROUND(e.value / 1024 / 1024,2) AS END_SIZE_MB,
           DECODE(e.value - b.value,0,' ',ROUND((e.value - b.value) / 1024 / 1024,2)) AS DIFF_SIZE_MB
      from stats$sga b, stats$sga e
     where e.snap_id = :B4
       and e.dbid = :B1
       and e.instance_number = :B2
       and b.snap_id = :B3
       and b.dbid = :B1
       and b.instance_number = :B2
       and b.name = e.name
     order by SGA_REGIONS)sql";

}  // namespace

clsSGAMemorySummary::clsSGAMemorySummary()
    : ListSectionObject("clsSGAMemorySummary", fieldNames(), {argument("B5", ServerType::String)}) {
  all("getSGA_MEMORY_SUMMARY_ALL", fold(kStatement));
  col("getSGA_MEMORY_SUMMARY_COL",
      fold(std::string("select * from (") + kStatement + ") Z where Z.SGA_REGIONS = :B5"));
}

}  // namespace kestrelix
