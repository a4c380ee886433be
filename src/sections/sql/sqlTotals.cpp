#include "sections/sql/sqlTotals.h"

namespace kestrelix {
namespace {

/// `from` names one table beside stats$snapshot, joined as `v`.
std::string figure(const std::string& select, const std::string& from, const std::string& bind,
                   const std::string& name) {
  return "(select st.DBID, st.INSTANCE_NUMBER, st.SNAP_ID, " + select + R"sql(
             from stats$snapshot st, )sql" +
         from + R"sql(
            where st.DBID = v.DBID
              and st.INSTANCE_NUMBER = v.INSTANCE_NUMBER
              and st.SNAP_ID = v.SNAP_ID
              and st.DBID = :B1
              and st.INSTANCE_NUMBER = :B2
              and st.SNAP_ID = )sql" +
         bind + R"sql(
              and )sql" +
         name;
}

}  // namespace

std::string sqlTotalAt(const SqlTotal& total, const std::string& bind, const std::string& value) {
  switch (total.source) {
    case SqlTotal::Source::TimeModel:
      return figure("v.VALUE AS " + value, "stats$sys_time_model v, stats$time_model_statname n", bind,
                    "v.STAT_ID = n.STAT_ID and n.STAT_NAME = '" + total.name + "')");
    case SqlTotal::Source::Statistics:
      return figure("v.VALUE AS " + value, "stats$sysstat v", bind, "v.NAME in ('" + total.name + "'))");
    case SqlTotal::Source::Parameter:
      return figure("MAX(v.VALUE) AS " + value, "stats$parameter v", bind,
                    "v.NAME in ('__' || '" + total.name + "', '" + total.name +
                        "') group by st.DBID,st.INSTANCE_NUMBER,st.SNAP_TIME,st.SNAP_ID)");
    case SqlTotal::Source::None:
      break;
  }
  return {};
}

std::string sqlThreshold(const std::string& column) {
  return "(select " + column +
         " from stats$snapshot where DBID = :B1 and INSTANCE_NUMBER = :B2 and SNAP_ID = :B4)";
}

}  // namespace kestrelix
