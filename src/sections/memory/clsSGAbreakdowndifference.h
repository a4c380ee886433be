#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// Parts of the pools of the system global area at both ends of the pair (stats$sgastat): those outside of
/// any pool, the free memory, and the smallest of the others.
class clsSGAbreakdowndifference : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(POOL, NAME, BEGIN_MB, END_MB, PER_DIFF)
  clsSGAbreakdowndifference();
};

}  // namespace kestrelix
