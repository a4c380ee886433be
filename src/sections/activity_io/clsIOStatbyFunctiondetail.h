#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// Small and large reads and writes of the pair by database function (stats$iostat_function), with a unit
/// behind each figure.
class clsIOStatbyFunctiondetail : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(FUNC, S_RR, L_RR, S_RM, L_RM, S_WR, L_WR, S_WM, L_WM)
  clsIOStatbyFunctiondetail();
};

}  // namespace kestrelix
