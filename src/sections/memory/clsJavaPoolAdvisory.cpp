#include "sections/memory/clsJavaPoolAdvisory.h"

#include "sections/memory/libraryCacheAdvice.h"

namespace kestrelix {

clsJavaPoolAdvisory::clsJavaPoolAdvisory()
    : ListSectionObject("clsJavaPoolAdvisory", fieldNames(),
                        {argument("B5", ServerType::Number), argument("B6", ServerType::Number)}) {
  // An unused Java pool is advised on all the same, with nothing in it.
  const std::string advice =
      libraryCacheAdvice("java", "JP", LoadTimes::Told) + " and estd_lc_memory_objects > 0";
  all("getJAVA_POOL_ADVISORY_ALL", fold(advice + " order by java_pool_size_for_estimate"));
  col("getJAVA_POOL_ADVISORY_COL",
      fold("select * from (" + advice + ") Z where Z.JAVA_POOL_SIZE_MB = :B5 and Z.JP_SIZE_FACTR = :B6"));
}

}  // namespace kestrelix
