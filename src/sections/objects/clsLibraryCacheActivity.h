#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// The library cache in the pair by namespace: gets and pins with their misses (%), reloads, and the locks
/// and pins of the cluster (stats$librarycache).
class clsLibraryCacheActivity : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(NAMESPACE, GET_REQUESTS, GET_PCT_MISS, PIN_REQUESTS, PIN_PCT_MISS, RELOADS, INVALIDATIONS,
                   GES_LOCK_REQUESTS, GES_PIN_REQUESTS, GES_PIN_RELEASES, GES_INVAL_REQUESTS,
                   GES_INVALIDATIONS)
  clsLibraryCacheActivity();
};

}  // namespace kestrelix
