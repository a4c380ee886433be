#include "sections/waits/waitEventsStatement.h"

#include "report/statement.h"

namespace kestrelix {

std::string waitEventsStatement(const std::string& table, Timers timers, const std::string& tail) {
  const std::string leftOut = timers == Timers::Listed ? "" : R"sql(
         and e.event not in ('smon timer','pmon timer','dispatcher timer','dispatcher listen timer','rdbms ipc message'))sql";
  return fold(R"sql(
    select A.EVENT AS EVENT_NAME,
           A.WAITS AS WAITS_VALUE,
           DECODE(A.pctto,null,' ',ROUND(A.pctto)) AS TIME_OUTS_VALUE,
           DECODE(A.time,null,' ',ROUND(A.time)) AS TOTAL_WAIT_TIME_VALUSE,
           DECODE(A.avwt_fmt,null,' ',ROUND(A.avwt_fmt)) AS AVG_WAIT_VALUE,
           DECODE(A.txwaits,null,' ',ROUND(A.txwaits,1)) AS WAITS_TXN_VALUE
      from
     (select e.event AS EVENT,
             e.total_waits - nvl(b.total_waits,0) AS Waits,
             decode((e.total_waits - nvl(b.total_waits,0)),0,to_number(null),
                    100*(e.total_timeouts - nvl(b.total_timeouts,0))
                    / (e.total_waits - nvl(b.total_waits,0))) AS pctto,
             (e.time_waited_micro - nvl(b.time_waited_micro,0))/1000000 AS time,
             decode((e.total_waits - nvl(b.total_waits,0)),0,to_number(NULL),
                    ((e.time_waited_micro - nvl(b.time_waited_micro,0)) / 1000)
                    / (e.total_waits - nvl(b.total_waits,0))) AS avwt_fmt,
             decode(:TRAN,0,to_number(null),(e.total_waits - nvl(b.total_waits,0)) / :TRAN) AS txwaits,
             decode(i.event, null, 0, 99) AS idle
        from )sql" +
              table + " b, " + table + R"sql( e, stats$idle_event i
       where b.snap_id(+) = :B3
         and e.snap_id = :B4
         and b.dbid(+) = :B1
         and e.dbid = :B1
         and b.instance_number(+) = :B2
         and e.instance_number = :B2
         and b.event(+) = e.event
         and e.total_waits > nvl(b.total_waits,0)
         and (:TIMSTAT in ('FALSE', 'INCONSISTENT')
              or (:TIMSTAT = 'TRUE'
                  and ((e.time_waited_micro - nvl(b.time_waited_micro,0)) / 1000000 ) >= .001)))sql" +
              leftOut + R"sql(
         and i.event(+) = e.event) A )sql" +
              tail);
}

}  // namespace kestrelix
