#include "sections/objects/clsDictionaryCacheStats.h"

namespace kestrelix {
namespace {

const std::string kJoin = R"sql(
      from stats$rowcache_summary b, stats$rowcache_summary e
     where b.snap_id = :B3
       and e.snap_id = :B4
       and b.dbid = :B1
       and e.dbid = :B1
       and b.dbid = e.dbid
       and b.instance_number = :B2
       and e.instance_number = :B2
       and b.instance_number = e.instance_number
       and b.parameter = e.parameter)sql";

const std::string kRequests = R"sql(
    select lower(b.parameter) AS CACHE,
           e.gets - b.gets AS GET_REQUESTS,
           DECODE(e.gets,b.gets,' ',ROUND((e.getmisses - b.getmisses) * 100 / (e.gets - b.gets),1)) AS GET_PCT_MISS,
           e.scans - b.scans AS SCAN_REQS,
           DECODE(e.scans,b.scans,' ',ROUND((e.scanmisses - b.scanmisses) * 100 / (e.scans - b.scans),1))
               AS SCAN_PCT_MISS,
           e.modifications - b.modifications AS MOD_REQS,
           e.usage AS FINAL_USAGE)sql" +
                              kJoin + " and e.gets - b.gets > 0";

const std::string kLocks = R"sql(
    select lower(b.parameter) AS CACHE,
           e.dlm_requests - b.dlm_requests AS GES_REQUESTS,
           e.dlm_conflicts - b.dlm_conflicts AS GES_CONFLICTS,
           e.dlm_releases - b.dlm_releases AS GES_RELEASES)sql" +
                           kJoin + " and e.dlm_requests - b.dlm_requests > 0";

std::string sorted(const std::string& caches) { return fold(caches + " order by CACHE"); }
std::string byCache(const std::string& caches) {
  return fold("select * from (" + caches + ") Z where Z.CACHE = :B5");
}

}  // namespace

clsDictionaryCacheStats::clsDictionaryCacheStats()
    : ListSectionObject("clsDictionaryCacheStats", fieldNames(), {argument("B5", ServerType::String)}) {
  const auto requests = {Field::CACHE,         Field::GET_REQUESTS, Field::GET_PCT_MISS, Field::SCAN_REQS,
                         Field::SCAN_PCT_MISS, Field::MOD_REQS,     Field::FINAL_USAGE};
  const auto locks = {Field::CACHE, Field::GES_REQUESTS, Field::GES_CONFLICTS, Field::GES_RELEASES};
  all("getDICTIONARY_CACHE_STATS_1_ALL", sorted(kRequests)).reading(requests);
  col("getDICTIONARY_CACHE_STATS_1_COL", byCache(kRequests)).reading(requests);
  all("getDICTIONARY_CACHE_STATS_2_ALL", sorted(kLocks)).only(V10_11).reading(locks);
  col("getDICTIONARY_CACHE_STATS_2_COL", byCache(kLocks)).only(V10_11).reading(locks);
}

}  // namespace kestrelix
