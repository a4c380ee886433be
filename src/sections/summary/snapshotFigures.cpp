#include "sections/summary/snapshotFigures.h"

#include "report/statement.h"

namespace kestrelix {
namespace {

std::string replaced(std::string text, const std::string& from, const std::string& to) {
  for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
    text.replace(at, from.size(), to);
  return text;
}

/// One end of the pair.
std::string end(const std::string& prefix, const std::string& bind, const std::vector<Figure>& figures) {
  std::string columns = "select sn.DBID, sn.INSTANCE_NUMBER, sn.SNAP_TIME AS " + prefix + "SNAP_TIME";
  std::string tables = " from stats$snapshot sn";
  std::string conditions = " where sn.DBID = :B1 and sn.INSTANCE_NUMBER = :B2 and sn.SNAP_ID = " + bind;
  int number = 0;
  for (const Figure& figure : figures) {
    const std::string f = "f" + std::to_string(++number);
    const std::string mark = figure.mayBeMissing ? "(+)" : "";
    columns += ", " + f + "." + figure.value + " AS " + prefix + figure.alias;
    tables += ", " + replaced(figure.source, ":SNAP", bind) + " " + f;
    for (const char* key : {"DBID", "INSTANCE_NUMBER", "SNAP_ID"})
      conditions += " and " + f + "." + key + mark + " = sn." + key;
    if (!figure.name.empty()) conditions += " and " + f + ".NAME" + mark + " = '" + figure.name + "'";
  }
  return columns + tables + conditions;
}

}  // namespace

Figure statistic(const std::string& alias, const std::string& name) { return {alias, "stats$sysstat", name}; }

Figure transactionCount() {
  return {"TRANSACTIONS", R"sql(
    (select st.DBID, st.INSTANCE_NUMBER, st.SNAP_TIME, st.SNAP_ID, SUM(ss.VALUE) AS VALUE
       from stats$snapshot st, stats$sysstat ss
      where st.DBID = :B1
        and st.INSTANCE_NUMBER = :B2
        and st.SNAP_ID = :SNAP
        and ss.DBID = st.DBID
        and ss.INSTANCE_NUMBER = st.INSTANCE_NUMBER
        and ss.SNAP_ID = st.SNAP_ID
        and ss.NAME in ('user commits','user rollbacks')
      group by st.DBID, st.INSTANCE_NUMBER, st.SNAP_TIME, st.SNAP_ID))sql"};
}

Figure timeModel(const std::string& alias, const std::string& name) {
  return {alias, R"sql(
    (select tm.DBID, tm.INSTANCE_NUMBER, tm.SNAP_ID, tn.STAT_NAME AS NAME, tm.VALUE
       from stats$sys_time_model tm, stats$time_model_statname tn
      where tm.DBID = :B1
        and tm.INSTANCE_NUMBER = :B2
        and tm.SNAP_ID = :SNAP
        and tn.STAT_ID = tm.STAT_ID))sql",
          name};
}

Figure hostStatistic(const std::string& alias, const std::string& name) {
  return {alias, R"sql(
    (select os.DBID, os.INSTANCE_NUMBER, os.SNAP_ID, na.STAT_NAME AS NAME, os.VALUE
       from stats$osstat os, stats$osstatname na
      where os.DBID = :B1
        and os.INSTANCE_NUMBER = :B2
        and os.SNAP_ID = :SNAP
        and na.OSSTAT_ID = os.OSSTAT_ID))sql",
          name};
}

Figure hostStatisticIfAny(const std::string& alias, const std::string& name) {
  Figure figure = hostStatistic(alias, name);
  figure.mayBeMissing = true;
  return figure;
}

Figure sessionMemory(const std::string& alias, const std::string& name) {
  return {alias, "stats$pgastat", name};
}

Figure aggregate(const std::string& alias, const std::string& expression, const std::string& table,
                 const std::string& condition) {
  return {alias, "(select DBID, INSTANCE_NUMBER, SNAP_ID, " + expression + " AS VALUE from " + table +
                     " where DBID = :B1 and INSTANCE_NUMBER = :B2 and SNAP_ID = :SNAP" +
                     (condition.empty() ? "" : " and " + condition) +
                     " group by DBID, INSTANCE_NUMBER, SNAP_ID)"};
}

std::string fromStartAndEnd(const std::string& columns, const std::vector<Figure>& figures,
                            const std::string& join) {
  return fold("select " + columns + " from (" + end("START_", ":B3", figures) + ") A, (" +
              end("END_", ":B4", figures) + ") B where " + join);
}

std::string gain(const std::string& alias) { return "(B.END_" + alias + " - A.START_" + alias + ")"; }

}  // namespace kestrelix
