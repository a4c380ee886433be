#include "sections/waits/clsTopNWaitEvents.h"

#include "sections/shared/totals.h"

namespace kestrelix {
namespace {

/// `filter` is applied behind the sort: the row limit of the All view, the event of a Col view.
std::string topStatement(const std::string& filter) {
  return fold(R"sql(
    select event AS EVENT_NAME,
           DECODE(waits , null, ' ', waits) AS WAITS_VALUE,
           DECODE(time , null, ' ', ROUND(time,0)) AS TIME_SECOND,
           DECODE(avwait, null, ' ', ROUND(avwait,0)) AS AVWAIT_VALUE,
           DECODE(pctwtt, null, ' ', ROUND(pctwtt,1)) AS PCTWTT_VALUE
      from (select event, waits, time, avwait, pctwtt
              from (select e.event AS event,
                           e.total_waits - nvl(b.total_waits,0) AS waits,
                           (e.time_waited_micro - nvl(b.time_waited_micro,0)) / 1000000 AS time,
                           decode(e.total_waits - nvl(b.total_waits,0), 0, to_number(NULL),
                                  ((e.time_waited_micro - nvl(b.time_waited_micro,0)) / 1000)
                                  / (e.total_waits - nvl(b.total_waits,0))) AS avwait,
                           decode(:TWT + :TCPU * 10000, 0, 0,
                                  100 * (e.time_waited_micro - nvl(b.time_waited_micro,0))
                                  / (:TWT + :TCPU * 10000)) AS pctwtt
                      from stats$system_event b, stats$system_event e
                     where b.snap_id(+) = :B3
                       and e.snap_id = :B4
                       and b.dbid(+) = :B1
                       and e.dbid = :B1
                       and b.instance_number(+) = :B2
                       and e.instance_number = :B2
                       and b.event(+) = e.event
                       and e.total_waits > nvl(b.total_waits,0)
                       and e.event not in (select event from stats$idle_event)
                    union all
                    select 'CPU time' AS event,
                           to_number(null) AS waits,
                           :TCPU / 100 AS time,
                           to_number(null) AS avwait,
                           decode(:TWT + :TCPU * 10000, 0, 0,
                                  100 * :TCPU * 10000 / (:TWT + :TCPU * 10000)) AS pctwtt
                      from dual
                     where :TCPU > 0
                     order by time desc, waits desc)
              )sql" +
              filter + ")");
}

}  // namespace

clsTopNWaitEvents::clsTopNWaitEvents()
    : ListSectionObject("clsTopNWaitEvents", fieldNames(),
                        {argument("B5", ServerType::Number), argument("B6", ServerType::String),
                         totalWaitTime(), totalCpu()}) {
  all("getTOP_N_WAIT_EVENTS", topStatement("where rownum <= :B5"));
  col("getTOP_T_WAIT_EVENTS", topStatement("where event = :B6"));
}

}  // namespace kestrelix
