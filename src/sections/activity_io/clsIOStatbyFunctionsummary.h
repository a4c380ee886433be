#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// Reads, writes and waits of the pair by database function (stats$iostat_function), as totals and rates with
/// a unit behind each figure.
class clsIOStatbyFunctionsummary : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(FUNC, DATA_READ, RRPS, MBRPS, DATA_WRIT, WRPS, MBWPS, ATPW, WAITS)
  clsIOStatbyFunctionsummary();
};

}  // namespace kestrelix
