#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// What a global enqueue get and a global cache block took, in milliseconds, and which share of the served
/// blocks needed a log flush (%). Blank where there was nothing to divide by.
class clsWorkloadCharacteristics : public MetricSectionObject {
 public:
  KESTRELIX_FIELDS(AGEGT, AGCCRBRT, AGCCUBRT, AGCCRBBT, AGCCRBST, AGCCRBFT, GCLFFCRBS, AGCCUBPT, AGCCUBST,
                   AGCCUBFT, GCLFFCUBS)
  clsWorkloadCharacteristics();
};

}  // namespace kestrelix
