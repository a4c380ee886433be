#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// Blocks and messages that the instance exchanged with the others, per second and per transaction, and the
/// traffic of the interconnect in KB per second. A pair without a second or a transaction is a failure.
class clsGlobalCacheLoadProfile : public MetricSectionObject {
 public:
  KESTRELIX_FIELDS(GCBR_SEC, GCBR_TRAN, GCBS_SEC, GCBS_TRAN, GGMR_SEC, GGMR_TRAN, GGMS_SEC, GGMS_TRAN,
                   DFW_SEC, DFW_TRAN, EITKB_SEC)
  clsGlobalCacheLoadProfile();
};

}  // namespace kestrelix
