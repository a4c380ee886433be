#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// System statistics of the instance in the pair (stats$sysstat): those that count up, with their rates, and
/// the four that are levels; and the log switches of its redo thread (stats$thread).
class clsInstanceActivityStats : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(STATISTIC, TOTAL, PER_SECOND, PER_TRANS, START_VALUE, END_VALUE, PER_HOUR)
  clsInstanceActivityStats();
};

}  // namespace kestrelix
