#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// The ten segments that were first in one statistic in the pair, with their other statistics and their share
/// of all segments, a percentage (stats$seg_stat, stats$seg_stat_obj). Nothing below snapshot level 7.
class clsSegmentsby : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(OWNER, TABLESPACE, OBJECT_NAME, SUBOBJECT_NAME, OBJECT_TYPE, LOGICAL_READS,
                   DB_BLOCK_CHANGES, PHYSICAL_READS, PHYSICAL_WRITES, DIRECT_PHYSICAL_READS,
                   DIRECT_PHYSICAL_WRITES, BUFFER_BUSY_WAITS, ROW_LOCK_WAITS, ITL_WAITS, GC_BUFFER_BUSY,
                   GC_CR_BLOCKS_RECEIVED, GC_CURRENT_BLOCKS_RECEIVED, GLOBAL_CACHE_CR_BLOCKS_SERVED,
                   GLOBAL_CACHE_CU_BLOCKS_SERVED, PCT_TOTAL)
  clsSegmentsby();
};

}  // namespace kestrelix
