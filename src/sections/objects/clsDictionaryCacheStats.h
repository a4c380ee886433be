#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// The caches of the data dictionary in the pair: what was asked of each, and what of that the cluster had to
/// lock (stats$rowcache_summary).
class clsDictionaryCacheStats : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(CACHE, GET_REQUESTS, GET_PCT_MISS, SCAN_REQS, SCAN_PCT_MISS, MOD_REQS, FINAL_USAGE,
                   GES_REQUESTS, GES_CONFLICTS, GES_RELEASES)
  clsDictionaryCacheStats();
};

}  // namespace kestrelix
