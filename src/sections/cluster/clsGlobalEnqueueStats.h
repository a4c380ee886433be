#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// The growth of every statistic of the lock manager in the pair, in all, per second and per transaction
/// (stats$dlm_misc). Those that stood still show as well.
class clsGlobalEnqueueStats : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(STATISTIC, TOTAL, PER_SECOND, PER_TRANS)
  clsGlobalEnqueueStats();
};

}  // namespace kestrelix
