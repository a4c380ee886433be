#include "sections/summary/clsVirtualMemoryPaging.h"

#include "sections/shared/totals.h"

namespace kestrelix {
namespace {

/// Bytes since the start of the host, at one snapshot.
std::string bytes(const std::string& name, const std::string& snapshot) {
  return R"sql(
    (select os.VALUE AS VALUE
       from stats$osstat os, stats$osstatname na
      where os.dbid = :B1
        and os.instance_number = :B2
        and os.snap_id = )sql" +
         snapshot + R"sql(
        and na.osstat_id = os.osstat_id
        and na.stat_name = ')sql" +
         name + "')";
}

std::string perSecond(const std::string& alias, const std::string& name) {
  return fold("select ROUND((b.VALUE -a.VALUE) / 1024 / c.ELA,1) AS " + alias + " from " +
              bytes(name, ":B3") + " a, " + bytes(name, ":B4") + " b, (" +
              elapsedSeconds("b.snap_time < e.snap_time") + ") c");
}

}  // namespace

clsVirtualMemoryPaging::clsVirtualMemoryPaging()
    : MetricSectionObject("clsVirtualMemoryPaging", fieldNames()) {
  metric("getKE_PAGED_OUT_PER_SEC", {Field::KE_PAGED_OUT_PER_SEC},
         perSecond("KE_PAGED_OUT_PER_SEC", "VM_OUT_BYTES"))
      .orEmpty();
  metric("getKE_PAGED_IN_PER_SEC", {Field::KE_PAGED_IN_PER_SEC},
         perSecond("KE_PAGED_IN_PER_SEC", "VM_IN_BYTES"))
      .orEmpty();
}

}  // namespace kestrelix
