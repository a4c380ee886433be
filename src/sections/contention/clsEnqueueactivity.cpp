#include "sections/contention/clsEnqueueactivity.h"

namespace kestrelix {
namespace {

const std::string kCounters = R"sql(
           e.total_req# - nvl(b.total_req#,0) AS REQUESTS,
           e.succ_req# - nvl(b.succ_req#,0) AS SUCC_GETS,
           e.failed_req# - nvl(b.failed_req#,0) AS FAILED_GETS,
           e.total_wait# - nvl(b.total_wait#,0) AS WAITS,
           ROUND((e.cum_wait_time - nvl(b.cum_wait_time,0)) / 1000) AS WT_TIME_SEC,)sql";

const std::string kJoin = R"sql(
     where b.snap_id(+) = :B3
       and e.snap_id = :B4
       and b.dbid(+) = :B1
       and e.dbid = :B1
       and b.dbid(+) = e.dbid
       and b.instance_number(+) = :B2
       and e.instance_number = :B2
       and b.instance_number(+) = e.instance_number
       and b.eq_type(+) = e.eq_type
       and e.total_wait# - nvl(b.total_wait#,0) > 0)sql";

const std::string kSort = " order by ((e.cum_wait_time - nvl(b.cum_wait_time,0)) / 1000) desc, WAITS desc";

/// The type is composed of its two letters, its name and, unless it is plain contention, the reason in
/// brackets.
const std::string kNamed = R"sql(
    select /*+ ordered */
           e.eq_type || '-' || to_char(nvl(l.name,' '))
           || decode( upper(e.req_reason), 'CONTENTION', null, '-', null, ' ('||e.req_reason||')') AS ENQUEUE_TYPE,)sql" +
                           kCounters + R"sql(
           ROUND(decode(e.total_wait# - nvl(b.total_wait#,0),0,to_number(NULL),
                        (e.cum_wait_time - nvl(b.cum_wait_time,0))
                        / (e.total_wait# - nvl(b.total_wait#,0))),2) AS AV_WT_TIME_MS
      from stats$enqueue_statistics e, stats$enqueue_statistics b, v$lock_type l)sql" +
                           kJoin + R"sql(
       and b.req_reason(+) = e.req_reason
       and l.type(+) = e.eq_type)sql";

const std::string kPlain = "select e.eq_type AS ENQUEUE_TYPE," + kCounters + R"sql(
           DECODE(e.total_wait# - nvl(b.total_wait#,0),0,' ',
                  ROUND((e.cum_wait_time - nvl(b.cum_wait_time,0))
                        / (e.total_wait# - nvl(b.total_wait#,0)),2)) AS AV_WT_TIME_MS
      from stats$enqueue_stat b, stats$enqueue_stat e)sql" +
                           kJoin;

std::string byType(const std::string& enqueues) {
  return fold("select * from (" + enqueues + ") Z where Z.ENQUEUE_TYPE = :B5");
}

}  // namespace

clsEnqueueactivity::clsEnqueueactivity()
    : ListSectionObject("clsEnqueueActivity", fieldNames(), {argument("B5", ServerType::String)}) {
  all("getENQUEUE_ACTIVITY_ALL", fold(kNamed + kSort)).only(V10_11);
  all("getENQUEUE_ACTIVITY_ALL", fold(kPlain + kSort)).only(V9);
  col("getENQUEUE_ACTIVITY_COL", byType(kNamed)).only(V10_11);
  col("getENQUEUE_ACTIVITY_COL", byType(kPlain)).only(V9);
}

}  // namespace kestrelix
