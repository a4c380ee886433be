#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// The pings to each other instance in the pair, of 500 bytes and of 8 KB: how many, their seconds, their
/// average and standard deviation in milliseconds (stats$interconnect_pings).
class clsInterconnectPingStats : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(TARGET_INSTANCE, CNT500B, WAIT500B, AV500B, SD500B, CNT8K, WAIT8K, AV8K, SD8K)
  clsInterconnectPingStats();
};

}  // namespace kestrelix
