#include "sections/sql/clsSQLPlan.h"

namespace kestrelix {
namespace {

/// Rows are shortened by powers of 1000, bytes by powers of 1024; a cost has no step of thousands.
const std::string kColumns = R"sql(
    select lpad(' ',1 * (depth - 1)) || operation || ' ' || options AS OPERATION,
           nvl(decode(id, 0, '----- '||to_char(plan_hash_value)||' -----',
                      decode(substr(object_name,1,7),'SYS_LE_',null,object_name)),' ') AS PHV_OBJECTNAME,
           case when cardinality is null then '  '
                when cardinality < 1000 then cardinality || ' '
                when cardinality < 1000000 then trunc(cardinality / 1000) || 'K'
                when cardinality < 1000000000 then trunc(cardinality / 1000000) || 'M'
                else trunc(cardinality / 1000000000) || 'G' end AS ROWS_VALUE,
           case when bytes is null then ' '
                when bytes < 1024 then bytes || ' '
                when bytes < 1048576 then trunc(bytes / 1024) || 'K'
                when bytes < 1073741824 then trunc(bytes / 1048576) || 'M'
                else trunc(bytes / 1073741824) || 'G' end AS BYTES_VALUE,
           case when cost is null then ' '
                when cost < 10000000 then cost || ' '
                when cost < 1000000000 then trunc(cost / 1000000) || 'M'
                else trunc(cost / 1000000000) || 'G' end AS COST_VALUE
      from stats$sql_plan)sql";

std::string text(const std::string& hash) {
  return fold(kColumns + R"sql(
     where plan_hash_value in
          (select plan_hash_value
             from stats$sql_plan_usage spu
            where spu.snap_id between :B3 and :B4
              and spu.dbid = :B1
              and spu.instance_number = :B2
              and spu.)sql" +
              hash + R"sql( = :B5
              and spu.plan_hash_value > 0)
     order by plan_hash_value, id)sql");
}

}  // namespace

clsSQLPlan::clsSQLPlan() : SectionObject("clsSQLPlan", fieldNames(), {argument("B5", ServerType::Number)}) {
  for (const auto& [versions, hash] : {std::pair{V10_11, "old_hash_value"}, std::pair{V9, "hash_value"}})
    add({"getSQL_PLAN", text(hash), Fetch::AllRows, allFields(), versions});
}

bool clsSQLPlan::getSQL_PLAN(int pairIndex) {
  if (!get("getSQL_PLAN", pairIndex)) return false;
  if (rownum() == 0) appendRecord();
  return true;
}

}  // namespace kestrelix
