#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// Single-block reads of the pair by file and by how long they took (stats$file_histogram), as counts.
class clsFileReadHistogramStats : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(TABLESPACE, FILENAME, TO2, TO4, TO8, TO16, TO32, OVER32)
  clsFileReadHistogramStats();
};

}  // namespace kestrelix
