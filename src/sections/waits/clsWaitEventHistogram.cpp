#include "sections/waits/clsWaitEventHistogram.h"

namespace kestrelix {
namespace {

/// Waits of the spans that `bounds` meets, by their upper bound in milliseconds.
std::string bucket(const std::string& alias, const std::string& bounds) {
  return ", sum(case when (h.wait_time_milli " + bounds + ") then nvl(h.wait_count,0) else 0 end) AS " +
         alias;
}

/// Each event's waits by span, at one snapshot.
std::string bucketsAt(const std::string& snapshot) {
  return R"sql(
    (select * from
       (select /*+ inline ordered index(h) index(se) */
               h.snap_id AS snap_id,
               se.event AS event,
               sum(h.wait_count) AS total_waits)sql" +
         bucket("to1", "= 1") + bucket("to2", "= 2") + bucket("to4", "= 4") + bucket("to8", "= 8") +
         bucket("to16", "= 16") + bucket("to32", "= 32") + bucket("to1024", "between 64 and 1024") +
         bucket("over", "> 1024") + R"sql(,
               decode(i.event, null, 0, 99) AS idle
          from stats$event_histogram h, stats$system_event se, stats$idle_event i
         where se.event_id = h.event_id
           and se.snap_id = h.snap_id
           and i.event(+) = se.event
           and se.instance_number = :B2
           and se.dbid = :B1
           and h.instance_number = :B2
           and h.dbid = :B1
         group by h.snap_id, se.event, decode(i.event, null, 0, 99))
      where snap_id = )sql" +
         snapshot + ")";
}

const std::string kWaits = "(e.total_waits - nvl(b.total_waits,0))";

/// The waits at four digits: as they are, or in thousands, millions and so on.
std::string shortened() {
  std::string text = "case when " + kWaits + " <= 9999 then to_char(" + kWaits + ") || ' '";
  const std::pair<const char*, const char*> units[] = {
      {"1000", "K"}, {"1000000", "M"}, {"1000000000", "G"}, {"1000000000000", "T"}};
  for (const auto& [unit, letter] : units) {
    const std::string whole = "trunc(" + kWaits + "/" + unit + ")";
    text += " when " + whole + " <= 9999 then to_char(" + whole + ") || '" + letter + "'";
  }
  return text + " else substr(to_char(trunc(" + kWaits + "/1000000000000000)) || 'P', 1, 5) end";
}

/// A span's share of the waits, null where it has none.
std::string share(const std::string& span) {
  const std::string waits = "e." + span + " - nvl(b." + span + ",0)";
  return ", substr(to_char(decode(" + waits + ",0,to_number(NULL),(" + waits + ")*100/" + kWaits +
         "),'999.9MI'),1,5) AS " + span;
}

std::string histogramStatement(const std::string& key) {
  return fold(R"sql(
    select A.EVENT AS EVENT_NAME,
           A.total_waits AS TOTAL_WAITS,
           decode(A.TO1, null,' ',A.TO1) AS COL01MS,
           decode(A.TO2, null,' ',A.TO2) AS COL02MS,
           decode(A.TO4, null,' ',A.TO4) AS COL04MS,
           decode(A.TO8, null,' ',A.TO8) AS COL08MS,
           decode(A.TO16, null,' ',A.TO16) AS COL16MS,
           decode(A.TO32, null,' ',A.TO32) AS COL32MS,
           decode(A.TO1024, null,' ',A.TO1024) AS COL01S,
           decode(A.OVER, null,' ',A.OVER) AS COL01SOVER
      from (select e.event AS EVENT, )sql" +
              shortened() + " AS total_waits" + share("to1") + share("to2") + share("to4") + share("to8") +
              share("to16") + share("to32") + share("to1024") + share("over") + " from " + bucketsAt(":B3") +
              " b, " + bucketsAt(":B4") + R"sql( e
             where b.event(+) = e.event
               and (e.total_waits - nvl(b.total_waits,0)) > 0
             order by e.idle, e.event) A )sql" +
              key);
}

}  // namespace

clsWaitEventHistogram::clsWaitEventHistogram()
    : ListSectionObject("clsWaitEventHistogram", fieldNames(), {argument("ENAME", ServerType::String)}) {
  all("getWAIT_EVENT_HISTOGRAM", histogramStatement(""));
  col("getT_WAIT_EVENT_HISTOGRAM", histogramStatement("where A.EVENT = :ENAME"));
}

}  // namespace kestrelix
