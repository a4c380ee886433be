#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// What the database time of the pair would have been with other sizes of the instance's memory
/// (stats$memory_target_advice): the growth of the estimate, all of it where the advice began anew in the
/// pair.
class clsMemoryTargetAdvice : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(MS, MSF, EDBT, AV)
  clsMemoryTargetAdvice();
};

}  // namespace kestrelix
