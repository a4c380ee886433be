#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// Waits for buffers in the pair by the class of the block (stats$waitstat).
class clsBufferwaitStatistics : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(CLASSNAME, ICNT, ITIM, IAVG)
  clsBufferwaitStatistics();
};

}  // namespace kestrelix
