#include "sections/objects/clsLibraryCacheActivity.h"

namespace kestrelix {
namespace {

/// Both lists go by the gets, that of the cluster too.
const std::string kJoin = R"sql(
      from stats$librarycache b, stats$librarycache e
     where b.snap_id = :B3
       and e.snap_id = :B4
       and e.dbid = :B1
       and b.dbid = e.dbid
       and e.instance_number = :B2
       and b.instance_number = e.instance_number
       and b.namespace = e.namespace
       and e.gets - b.gets > 0)sql";

const std::string kRequests = R"sql(
    select e.namespace AS NAMESPACE,
           e.gets - b.gets AS GET_REQUESTS,
           DECODE(e.gets,b.gets,' ',ROUND(100 - (e.gethits - b.gethits) * 100 / (e.gets - b.gets),1)) AS GET_PCT_MISS,
           e.pins - b.pins AS PIN_REQUESTS,
           DECODE(e.pins,b.pins,' ',ROUND(100 - (e.pinhits - b.pinhits) * 100 / (e.pins - b.pins),1)) AS PIN_PCT_MISS,
           e.reloads - b.reloads AS RELOADS,
           e.invalidations - b.invalidations AS INVALIDATIONS)sql" +
                              kJoin;

const std::string kLocks = R"sql(
    select e.namespace AS NAMESPACE,
           e.dlm_lock_requests - b.dlm_lock_requests AS GES_LOCK_REQUESTS,
           e.dlm_pin_requests - b.dlm_pin_requests AS GES_PIN_REQUESTS,
           e.dlm_pin_releases - b.dlm_pin_releases AS GES_PIN_RELEASES,
           e.dlm_invalidation_requests - b.dlm_invalidation_requests AS GES_INVAL_REQUESTS,
           e.dlm_invalidations - b.dlm_invalidations AS GES_INVALIDATIONS)sql" +
                           kJoin;

std::string byNamespace(const std::string& text) {
  return fold("select * from (" + text + ") Z where Z.NAMESPACE = :B5");
}

}  // namespace

clsLibraryCacheActivity::clsLibraryCacheActivity()
    : ListSectionObject("clsLibraryCacheActivity", fieldNames(), {argument("B5", ServerType::String)}) {
  const auto requests = {Field::NAMESPACE,    Field::GET_REQUESTS, Field::GET_PCT_MISS, Field::PIN_REQUESTS,
                         Field::PIN_PCT_MISS, Field::RELOADS,      Field::INVALIDATIONS};
  const auto locks = {Field::NAMESPACE,        Field::GES_LOCK_REQUESTS,  Field::GES_PIN_REQUESTS,
                      Field::GES_PIN_RELEASES, Field::GES_INVAL_REQUESTS, Field::GES_INVALIDATIONS};
  all("getLIBRARY_CACHE_ACTIVITY_1_ALL", fold(kRequests)).reading(requests);
  col("getLIBRARY_CACHE_ACTIVITY_1_COL", byNamespace(kRequests)).reading(requests);
  all("getLIBRARY_CACHE_ACTIVITY_2_ALL", fold(kLocks)).only(V10_11).reading(locks);
  col("getLIBRARY_CACHE_ACTIVITY_2_COL", byNamespace(kLocks)).only(V10_11).reading(locks);
}

}  // namespace kestrelix
