#include "sections/waits/clsForegroundWaitEvents.h"

#include "sections/shared/totals.h"

namespace kestrelix {
namespace {

/// Without transactions the waits of each are a division by zero, unlike in the other lists of events.
const char* const kStatement = R"sql(
    select e.event AS EVENT_NAME,
           e.total_waits_fg - nvl(b.total_waits_fg,0) AS WAITS,
           decode((e.total_waits_fg - nvl(b.total_waits_fg,0)), 0, ' ',
                  ROUND(100*(e.total_timeouts_fg - nvl(b.total_timeouts_fg,0))
                        / (e.total_waits_fg - nvl(b.total_waits_fg,0)))) AS PCTTO,
           ROUND((e.time_waited_micro_fg - nvl(b.time_waited_micro_fg,0)) / 1000000) AS TIME_SEC,
           decode((e.total_waits_fg - nvl(b.total_waits_fg,0)), 0, ' ',
                  ROUND(((e.time_waited_micro_fg - nvl(b.time_waited_micro_fg,0)) / 1000)
                        / (e.total_waits_fg - nvl(b.total_waits_fg,0)))) AS AVWT_FMT,
           ROUND((e.total_waits_fg - nvl(b.total_waits_fg,0)) / :TRAN,1) AS TXWAITS,
           decode(:TWT + :TCPU * 10000, 0, '0',
                  decode(i.event, null,
                         to_char(ROUND(100* (e.time_waited_micro_fg - nvl(b.time_waited_micro_fg,0))
                                       / (:TWT + :TCPU * 10000),1)),
                         ' ')) AS PCTTCT,
           decode(i.event, null, 0, 99) AS IDLE
      from stats$system_event b, stats$system_event e, stats$idle_event i
     where b.snap_id(+) = :B3
       and e.snap_id = :B4
       and b.dbid(+) = :B1
       and e.dbid = :B1
       and b.instance_number(+) = :B2
       and e.instance_number = :B2
       and b.event(+) = e.event
       and i.event(+) = e.event
       and e.total_waits_fg > nvl(b.total_waits_fg,0)
       and (:TIMSTAT in ('FALSE', 'INCONSISTENT')
            or (:TIMSTAT = 'TRUE'
                and ((e.time_waited_micro_fg - nvl(b.time_waited_micro_fg,0)) / 1000000 ) >= .001))
     order by IDLE, (e.time_waited_micro_fg - nvl(b.time_waited_micro_fg,0)) desc, WAITS desc)sql";

}  // namespace

clsForegroundWaitEvents::clsForegroundWaitEvents()
    : ListSectionObject("clsForegroundWaitEvents", fieldNames(),
                        {argument("B5", ServerType::String), transactions(), timedStatistics(),
                         totalWaitTime(), totalCpu()}) {
  all("getFOREGROUND_WAIT_EVENTS_ALL", fold(kStatement));
  col("getFOREGROUND_WAIT_EVENTS_COL",
      fold("select * from ( " + fold(kStatement) + ") Z where Z.EVENT_NAME = :B5"));
}

}  // namespace kestrelix
