#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// Buffers, hit ratio, gets, reads, writes and waits of each buffer pool in the pair
/// (stats$buffer_pool_statistics).
class clsBufferPoolStatistics : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(NAME, BUFFERS, POOL_HIT, BUFFER_GETS, PHYSICAL_READS, PHYSICAL_WRITE, FREE_BUFFER_WAITS,
                   WRITE_COMPLETE_WAIT, BUFFER_BUSY_WAITS)
  clsBufferPoolStatistics();
};

}  // namespace kestrelix
