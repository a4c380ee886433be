#include "sections/contention/clsRollbackSegmentStorage.h"

namespace kestrelix {
namespace {

/// An optimal size of -4096 means that there is none.
const std::string kSegments = R"sql(
    select b.usn AS USN,
           e.rssize AS RSSIZE,
           e.aveactive AS ACTIVE,
           NVL(decode(e.optsize, -4096, null,e.optsize),' ') AS OPTSIZE,
           e.hwmsize AS HWMSIZE
      from stats$rollstat b, stats$rollstat e
     where b.snap_id = :B3
       and e.snap_id = :B4
       and b.dbid = :B1
       and e.dbid = :B1
       and b.dbid = e.dbid
       and b.instance_number = :B2
       and e.instance_number = :B2
       and b.instance_number = e.instance_number
       and e.usn = b.usn)sql";

}  // namespace

clsRollbackSegmentStorage::clsRollbackSegmentStorage()
    : ListSectionObject("clsRollbackSegmentStorage", fieldNames(), {argument("B5", ServerType::Number)}) {
  all("getROLLBACK_SEGMENT_STORAGE_ALL", fold(kSegments + " order by e.usn"));
  col("getROLLBACK_SEGMENT_STORAGE_COL", fold("select * from (" + kSegments + ") Z where Z.USN = :B5"));
}

}  // namespace kestrelix
