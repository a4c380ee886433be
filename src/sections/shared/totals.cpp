#include "sections/shared/totals.h"

namespace kestrelix {

Bind totalWaitTime() {
  const auto waited = [](const std::string& snapshot) {
    return R"sql(
      (select sum(se.time_waited_micro) AS TWT
         from stats$system_event se
        where se.dbid = :B1
          and se.instance_number = :B2
          and se.snap_id = )sql" +
           snapshot + R"sql(
          and se.event not in (select event from stats$idle_event)))sql";
  };
  return {"TWT", ServerType::Number, "getTWT",
          fold("select e.TWT - b.TWT AS TWT from " + waited(":B3") + " b," + waited(":B4") + " e")};
}

Bind totalCpu() {
  const auto used = [](const std::string& snapshot) {
    return R"sql(
      (select ss.value AS TCPU
         from stats$snapshot st, stats$sysstat ss
        where st.dbid = :B1
          and st.instance_number = :B2
          and st.snap_id = )sql" +
           snapshot + R"sql(
          and ss.dbid(+) = st.dbid
          and ss.instance_number(+) = st.instance_number
          and ss.snap_id(+) = st.snap_id
          and ss.name = 'CPU used by this session'))sql";
  };
  return {"TCPU", ServerType::Number, "getTCPU",
          fold("select e.TCPU - b.TCPU AS TCPU from " + used(":B3") + " b," + used(":B4") + " e")};
}

Bind timedStatistics() {
  const auto parameter = [](const std::string& value, const std::string& snapshot) {
    return "(select " + value + R"sql( AS VALUE
         from stats$parameter pa
        where pa.dbid = :B1
          and pa.instance_number = :B2
          and pa.snap_id = )sql" +
           snapshot + R"sql(
          and pa.name in ('__' || 'timed_statistics', 'timed_statistics')))sql";
  };
  // A missing parameter is null at the start and a word at the end, so that it equals nothing.
  return {"TIMSTAT", ServerType::String, "getTIMSTAT",
          fold("select decode(a.VALUE,b.VALUE,'TRUE','FALSE') AS TIMSTAT from " +
               parameter("max(pa.value)", ":B3") + " a," + parameter("nvl(max(pa.value),'MISSING')", ":B4") +
               " b")};
}

std::string transactionsSelect(const std::string& alias) {
  const auto ended = [](const std::string& snapshot) {
    return R"sql(
      (select st.DBID, st.INSTANCE_NUMBER, syc.VALUE + syr.VALUE AS TRAN
         from stats$snapshot st, stats$sysstat syc, stats$sysstat syr
        where st.DBID = syc.DBID
          and st.INSTANCE_NUMBER = syc.INSTANCE_NUMBER
          and st.SNAP_ID = syc.SNAP_ID
          and st.DBID = syr.DBID
          and st.INSTANCE_NUMBER = syr.INSTANCE_NUMBER
          and st.SNAP_ID = syr.SNAP_ID
          and st.DBID = :B1
          and st.INSTANCE_NUMBER = :B2
          and st.SNAP_ID = )sql" +
           snapshot + R"sql(
          and syc.NAME = 'user commits'
          and syr.NAME = 'user rollbacks'))sql";
  };
  return "select b.TRAN - a.TRAN AS " + alias + " from " + ended(":B3") + " a," + ended(":B4") + R"sql( b
     where a.DBID = b.DBID
       and a.INSTANCE_NUMBER = b.INSTANCE_NUMBER)sql";
}

Bind transactions() { return {"TRAN", ServerType::Number, "getTRAN", fold(transactionsSelect("TRAN"))}; }

std::string elapsedSeconds(const std::string& inOrder) {
  return fold(R"sql(
    select ROUND(((e.snap_time - b.snap_time) * 1440 * 60), 0) AS ELA
      from stats$snapshot b, stats$snapshot e
     where b.snap_id = :B3
       and e.snap_id = :B4
       and b.dbid = :B1
       and e.dbid = :B1
       and b.instance_number = :B2
       and e.instance_number = :B2
       and )sql" +
              inOrder);
}

Bind elapsed() { return {"ela", ServerType::Number, "getELA", elapsedSeconds("b.snap_time <= e.snap_time")}; }

}  // namespace kestrelix
