#include "sections/memory/clsMemoryTargetAdvice.h"

namespace kestrelix {
namespace {

const char* const kStatement = R"sql(
    select e.memory_size AS MS,
           ROUND(e.memory_size_factor,1) AS MSF,
           e.estd_db_time - nvl(b.estd_db_time, 0) AS EDBT,
           DECODE(e.version, b.version, ' ', 'Y') AS AV
      from stats$memory_target_advice b, stats$memory_target_advice e
     where b.snap_id(+) = :B3
       and e.snap_id = :B4
       and b.dbid(+) = :B1
       and e.dbid = :B1
       and b.dbid(+) = e.dbid
       and b.instance_number(+) = :B2
       and e.instance_number = :B2
       and b.instance_number(+) = e.instance_number
       and b.memory_size(+) = e.memory_size
       and b.version(+) = e.version)sql";

}  // namespace

clsMemoryTargetAdvice::clsMemoryTargetAdvice()
    : ListSectionObject("clsMemoryTargetAdvice", fieldNames(),
                        {argument("B5", ServerType::Number), argument("B6", ServerType::Number)}) {
  all("getMEMORY_TARGET_ADVICE_ALL", fold(std::string(kStatement) + " order by e.memory_size"));
  col("getMEMORY_TARGET_ADVICE_COL",
      fold(std::string("select * from (") + kStatement + ") Z where Z.MS = :B5 and Z.MSF = :B6"));
}

}  // namespace kestrelix
