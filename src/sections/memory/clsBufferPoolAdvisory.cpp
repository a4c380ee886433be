#include "sections/memory/clsBufferPoolAdvisory.h"

#include "sections/shared/bufferPools.h"

namespace kestrelix {
namespace {

std::vector<Bind> keysAndSizes() {
  std::vector<Bind> all{argument("B5", ServerType::String), argument("B6", ServerType::Number),
                        argument("B7", ServerType::Number), blockSize()};
  for (Bind& bind : cacheSizes()) all.push_back(std::move(bind));
  return all;
}

/// Where the advice has no factor, the estimated size over the cache's size; megabytes times 1024 over bytes,
/// as it has always been.
std::string sizeFactor() {
  const std::pair<const char*, const char*> caches[] = {
      {"2k", "k2_cache"},   {"4k", "k4_cache"}, {"8k", "k8_cache"}, {"16k", "k16_cache"},
      {"32k", "k32_cache"}, {"D", "def_cache"}, {"K", "kee_cache"}, {"R", "rec_cache"}};
  std::string text = "ROUND(decode(size_factor,null,decode(" + poolName();
  for (const auto& [pool, cache] : caches)
    text += ",'" + std::string(pool) + "',size_for_estimate * 1024 / :" + cache;
  return text + "),size_factor),1)";
}

std::string statement(const std::string& estimates) {
  return "select " + poolName() + " AS POOL, size_for_estimate AS SIZE_FOR_EST_MB, " + sizeFactor() +
         " AS SIZE_FACTR, " + estimates + R"sql(
      from stats$db_cache_advice
     where snap_id = :B4
       and dbid = :B1
       and instance_number = :B2
       and estd_physical_reads > 0)sql";
}

const char* const kEstimates = R"sql(
           ROUND(buffers_for_estimate / 1000) AS BUFFER_THOUSANDS,
           ROUND(estd_physical_read_factor,1) AS EST_PHYS_READ_FACTR,
           ROUND(estd_physical_reads / 1000) AS ESTIMATED_PHYS_READS_THOUSANDS,
           estd_physical_read_time AS EST_PHYS_READ_TIME,
           estd_pct_of_db_time_for_reads AS EST_PAR_DB_TIME_FOR_READS)sql";
/// Whole counts here, in spite of the names.
const char* const kEstimatesOf9 = R"sql(
           buffers_for_estimate AS BUFFER_THOUSANDS,
           estd_physical_read_factor AS EST_PHYS_READ_FACTR,
           estd_physical_reads AS ESTIMATED_PHYS_READS_THOUSANDS)sql";

/// Pools of the default block size first.
const char* const kSort = " order by decode(block_size, :bs, 1, 2), block_size, name, buffers_for_estimate";

std::string key(const std::string& text) {
  return fold("select * from (" + text +
              ") Z where Z.POOL = :B5 and Z.SIZE_FOR_EST_MB = :B6 and Z.SIZE_FACTR = :B7");
}

}  // namespace

clsBufferPoolAdvisory::clsBufferPoolAdvisory()
    : ListSectionObject("clsBufferPoolAdvisory", fieldNames(), keysAndSizes()) {
  add({.member = "getCACHE_SIZE", .text = cacheSizesStatement("__db_cache_size"), .fetch = Fetch::Binds})
      .only(V10_11);
  add({.member = "getCACHE_SIZE", .text = cacheSizesStatement("db_cache_size"), .fetch = Fetch::Binds})
      .only(V9);

  all("getBUFFER_POOL_ADVISORY_ALL", fold(statement(kEstimates) + kSort)).only(V10_11);
  col("getBUFFER_POOL_ADVISORY_COL", key(statement(kEstimates) + kSort)).only(V10_11);
  const auto of9 = {Field::POOL,
                    Field::SIZE_FOR_EST_MB,
                    Field::SIZE_FACTR,
                    Field::BUFFER_THOUSANDS,
                    Field::EST_PHYS_READ_FACTR,
                    Field::ESTIMATED_PHYS_READS_THOUSANDS};
  all("getBUFFER_POOL_ADVISORY_ALL", fold(statement(kEstimatesOf9) + kSort)).only(V9).reading(of9);
  col("getBUFFER_POOL_ADVISORY_COL", key(statement(kEstimatesOf9))).only(V9).reading(of9);
}

}  // namespace kestrelix
