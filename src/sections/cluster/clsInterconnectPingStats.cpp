#include "sections/cluster/clsInterconnectPingStats.h"

namespace kestrelix {
namespace {

/// The four columns of one size of ping. The repository has microseconds, and the sum of their squares in
/// thousands. The inner greatest keeps the divisor from 0, the outer one a rounding error from the root.
std::string sizeColumns(const std::string& column, const std::string& alias) {
  const std::string count = "(e.iter_" + column + " - nvl(b.iter_" + column + ",0))";
  const std::string wait = "(e.wait_" + column + " - nvl(b.wait_" + column + ",0))";
  const std::string squares = "(e.waitsq_" + column + " - nvl(b.waitsq_" + column + ",0))";
  const std::string variance =
      "1000 * " + squares + " / greatest(" + count + ", 1) - power(" + wait + " / " + count + ", 2)";
  return "e.iter_" + column + " - nvl(b.iter_" + column + ",0) AS CNT" + alias + ", " + wait +
         "/1000000 AS WAIT" + alias + ", DECODE(" + count + ",0,' ',ROUND(" + wait + " / " + count +
         " / 1000,1)) AS AV" + alias + ", DECODE(" + count + ",0,' ',ROUND(SQRT(greatest(" + variance +
         ", 0)) / 1000,1)) AS SD" + alias;
}

std::string pings() {
  return "select e.target_instance AS TARGET_INSTANCE, " + sizeColumns("500b", "500B") + ", " +
         sizeColumns("8k", "8K") + R"sql(
      from stats$interconnect_pings e, stats$interconnect_pings b
     where b.snap_id(+) = :B3
       and e.snap_id = :B4
       and b.instance_number(+) = :B2
       and e.instance_number = :B2
       and b.dbid(+) = :B1
       and e.dbid = :B1
       and b.instance_number(+) = e.instance_number
       and b.dbid(+) = e.dbid
       and b.target_instance(+) = e.target_instance)sql";
}

}  // namespace

clsInterconnectPingStats::clsInterconnectPingStats()
    : ListSectionObject("clsInterconnectPingStats", fieldNames(), {argument("B5", ServerType::String)}) {
  all("getINTERCONNECT_PING_STATS_ALL", fold(pings() + " order by target_instance"));
  col("getINTERCONNECT_PING_STATS_COL",
      fold("select * from (" + pings() + ") Z where Z.TARGET_INSTANCE = :B5"));
}

}  // namespace kestrelix
