#include "sections/memory/clsSharedPoolAdvisory.h"

#include "sections/memory/libraryCacheAdvice.h"

namespace kestrelix {
namespace {

const char* const kSort = " order by shared_pool_size_for_estimate";

std::string key(const std::string& text) {
  return fold("select * from (" + text + ") Z where Z.SHARED_POOL_SIZE_MB = :B5 and Z.SP_SIZE_FACTR = :B6");
}

}  // namespace

clsSharedPoolAdvisory::clsSharedPoolAdvisory()
    : ListSectionObject("clsSharedPoolAdvisory", fieldNames(),
                        {argument("B5", ServerType::Number), argument("B6", ServerType::Number)}) {
  const std::string advice = libraryCacheAdvice("shared", "SP", LoadTimes::Told);
  all("getSHARED_POOL_ADVISORY_ALL", fold(advice + kSort)).only(V10_11);
  col("getSHARED_POOL_ADVISORY_COL", key(advice)).only(V10_11);
  const std::string adviceOf9 = libraryCacheAdvice("shared", "SP", LoadTimes::Missing);
  const auto of9 = {Field::SHARED_POOL_SIZE_MB, Field::SP_SIZE_FACTR,         Field::EST_LC_SIZE_MB,
                    Field::EST_LC_MEM_OBJ,      Field::EST_LC_TIME_SAVED_SEC, Field::EST_LC_TIME_SAVED_FACTR,
                    Field::EST_LC_MEM_OBJ_HITS};
  all("getSHARED_POOL_ADVISORY_ALL", fold(adviceOf9 + kSort)).only(V9).reading(of9);
  col("getSHARED_POOL_ADVISORY_COL", key(adviceOf9)).only(V9).reading(of9);
}

}  // namespace kestrelix
