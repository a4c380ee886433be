#include "sections/memory/clsMemoryDynamicComponents.h"

#include "sections/memory/memoryComponent.h"

namespace kestrelix {
namespace {

/// The end size is blank where it is that of the start.
std::string statement() {
  return std::string("select ") + kMemoryComponent + R"sql( AS COMP,
           ROUND(b.current_size / 1048576) AS BEG_SIZE,
           DECODE(e.current_size, b.current_size, ' ', ROUND(e.current_size / 1048576)) AS END_SIZE,
           e.oper_count - b.oper_count AS OP_CNT,
           substr(e.last_oper_type,1,6) || decode(e.last_oper_type,'STATIC',' ','/')
             || substr(e.last_oper_mode,1,3) AS LOMOD,
           nvl(to_char(e.last_oper_time, 'YYYY-MM-DD HH24:MI:SS'),' ') AS LOTIM
      from stats$memory_dynamic_comps b, stats$memory_dynamic_comps e
     where b.snap_id = :B3
       and e.snap_id = :B4
       and b.dbid = :B1
       and e.dbid = :B1
       and b.dbid = e.dbid
       and b.instance_number = :B2
       and e.instance_number = :B2
       and b.instance_number = e.instance_number
       and b.component = e.component
       and (e.current_size + b.current_size > 0 or e.oper_count - b.oper_count > 0))sql";
}

}  // namespace

clsMemoryDynamicComponents::clsMemoryDynamicComponents()
    : ListSectionObject("clsMemoryDynamicComponents", fieldNames(), {argument("B5", ServerType::String)}) {
  all("getMEMORY_DYNAMIC_COMPONENTS_ALL", fold(statement() + " order by e.component"));
  col("getMEMORY_DYNAMIC_COMPONENTS_COL", fold("select * from (" + statement() + ") Z where Z.COMP = :B5"));
}

}  // namespace kestrelix
