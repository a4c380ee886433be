#include "sections/objects/clsinitParameters.h"

namespace kestrelix {
namespace {

/// Names that begin with two underscores are hidden; the underscore is a wildcard of "like", so it is
/// translated first.
const std::string kParameters = R"sql(
    select e.name AS PARAMETER_NAME,
           DECODE(b.value,null,' ',b.value) AS BEGIN_VALUE,
           DECODE(e.value,null,' ',DECODE(b.value, e.value, ' ', e.value)) AS END_VALUE
      from stats$parameter b, stats$parameter e
     where b.snap_id(+) = :B3
       and e.snap_id = :B4
       and b.dbid(+) = :B1
       and e.dbid = :B1
       and b.instance_number(+) = :B2
       and e.instance_number = :B2
       and b.name(+) = e.name
       and translate(e.name, '_', '#') not like '##%'
       and (nvl(b.isdefault, 'X') = 'FALSE'
            or nvl(b.ismodified,'X') != 'FALSE'
            or e.ismodified != 'FALSE'
            or nvl(e.value,0) != nvl(b.value,0)))sql";

}  // namespace

clsinitParameters::clsinitParameters()
    : ListSectionObject("clsinitParameters", fieldNames(), {argument("B5", ServerType::String)}) {
  all("getINIT_PARAMETERS_ALL", fold(kParameters + " order by e.name"));
  col("getINIT_PARAMETERS_COL", fold("select * from (" + kParameters + ") Z where Z.PARAMETER_NAME = :B5"));
}

}  // namespace kestrelix
