#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// Where the instance's time went in the pair, by statistic of the time model: seconds, and percent of DB
/// time for those that are part of it.
class clsTimeModelSystemStats : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(STATISTIC, TIME_VALUE, PER_DBTIME_VALUE)
  clsTimeModelSystemStats();
};

}  // namespace kestrelix
