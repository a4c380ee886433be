#include "sections/memory/clsMemoryResizeOperations.h"

#include "sections/memory/memoryComponent.h"

namespace kestrelix {
namespace {

std::string within(const std::string& time) {
  return time +
         " between to_date(:btime, 'YYYY-MM-DD HH24:MI:SS') and to_date(:etime, 'YYYY-MM-DD HH24:MI:SS')";
}

std::string statement() {
  return std::string("select to_char(start_time, 'YYYY/MM/DD HH24:MI:SS') AS OP_ST_TM,") +
         " 60 * 60 * 24 * (e.end_time - e.start_time) AS ELAPSD_S, " + kMemoryComponent + R"sql( AS COMP,
           e.initial_size / 1048576 AS INI_SZ,
           to_char((e.target_size - e.initial_size) / 1048576,'S9999') || ' ' || substr(e.oper_mode,1,3) AS OP_TM,
           e.final_size / 1048576 AS END_SZ,
           e.status AS STAT,
           e.num_ops AS NUM_OPS,
           e.oper_type AS OPER_TYPE
      from stats$memory_resize_ops e
     where e.dbid = :B1
       and e.instance_number = :B2
       and ()sql" +
         within("e.start_time") + " or " + within("e.end_time") + ")";
}

}  // namespace

clsMemoryResizeOperations::clsMemoryResizeOperations()
    : ListSectionObject("clsMemoryResizeOperations", fieldNames(),
                        {{.name = "btime", .type = ServerType::String, .ofPair = &PairKeys::startTime},
                         {.name = "etime", .type = ServerType::String, .ofPair = &PairKeys::endTime},
                         argument("B5", ServerType::String)}) {
  all("getMEMORY_RESIZE_OPERATIONS_ALL", fold(statement() + " order by OP_ST_TM, OPER_TYPE desc"));
  // The last one of the component in the pair.
  col("getMEMORY_RESIZE_OPERATIONS_COL",
      fold("select * from (select * from (" + statement() +
           ") Z where Z.COMP = :B5 order by Z.OP_ST_TM desc) ZZ where rownum = 1"));
}

}  // namespace kestrelix
