#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// The blocks that other instances sent in the pair, by class: consistent read and current ones, and the
/// percentages that came at once, after a wait for a busy block, or over a congested way
/// (stats$instance_cache_transfer). The Y members tell the sending instances apart, the N members don't.
class clsGlobalCacheTransferStats : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(INST, BLOCK_CLASS, TOTCR, CR_BLKIMM, CR_BLKBUS, CR_BLKCGT, TOTCU, CU_BLKIMM, CU_BLKBUS,
                   CU_BLKCGT)
  clsGlobalCacheTransferStats();
};

}  // namespace kestrelix
