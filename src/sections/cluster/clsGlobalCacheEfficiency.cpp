#include "sections/cluster/clsGlobalCacheEfficiency.h"

#include "sections/cluster/deltaBlocks.h"

namespace kestrelix {

clsGlobalCacheEfficiency::clsGlobalCacheEfficiency()
    : MetricSectionObject("clsGlobalCacheEfficiency", fieldNames()) {
  metric("getLOCAL_CACHE", {Field::LOCAL_CACHE},
         selectFromBlocks("ROUND(100 * (1 - (phyrc + gccrrv + gccurv) / gets),2) AS LOCAL_CACHE",
                          {"phyrc", "gccrrv", "gccurv", "gets"}));
  metric("getREMOTE_CACHE", {Field::REMOTE_CACHE},
         selectFromBlocks("ROUND(100 * (gccurv + gccrrv) / gets,2) AS REMOTE_CACHE",
                          {"gccurv", "gccrrv", "gets"}));
  metric("getDISK", {Field::DISK},
         selectFromBlocks("ROUND(100 * phyrc / gets,2) AS DISK", {"phyrc", "gets"}));
}

}  // namespace kestrelix
