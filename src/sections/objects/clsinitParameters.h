#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// The parameters that are not at their defaults or changed in the pair (stats$parameter). The end value is
/// blank where it is the start value.
class clsinitParameters : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(PARAMETER_NAME, BEGIN_VALUE, END_VALUE)
  clsinitParameters();
};

}  // namespace kestrelix
