#include "sections/cluster/clsGlobalCRServedStats.h"

namespace kestrelix {
namespace {

std::string servedStatement(const std::string& column) {
  return fold("select e." + column + " - b." + column + " AS " + column + R"sql(
      from stats$cr_block_server b, stats$cr_block_server e
     where b.snap_id = :B3
       and e.snap_id = :B4
       and b.instance_number = :B2
       and e.instance_number = :B2
       and b.dbid = :B1
       and e.dbid = :B1)sql");
}

}  // namespace

clsGlobalCRServedStats::clsGlobalCRServedStats()
    : MetricSectionObject("clsGlobalCRServedStats", fieldNames()) {
  // Each accessor has the name of its column.
  const std::vector<std::string> names = fieldNames();
  for (std::size_t i = 0; i < names.size(); ++i)
    metric("get" + names[i], {static_cast<Field>(i)}, servedStatement(names[i]));
}

}  // namespace kestrelix
