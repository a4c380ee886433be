#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// The enqueues that were waited for in the pair (stats$enqueue_statistics, stats$enqueue_stat before release
/// 10; the names of the types are those of the server logged on to, v$lock_type).
class clsEnqueueactivity : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(ENQUEUE_TYPE, REQUESTS, SUCC_GETS, FAILED_GETS, WAITS, WT_TIME_SEC, AV_WT_TIME_MS)
  clsEnqueueactivity();
};

}  // namespace kestrelix
