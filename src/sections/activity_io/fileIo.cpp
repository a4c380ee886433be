#include "sections/activity_io/fileIo.h"

#include "report/statement.h"

namespace kestrelix {

std::string grown(const std::string& counter) { return "(e." + counter + " - nvl(b." + counter + ",0))"; }

std::string operationsPerSecond(const std::string& operations) {
  return "DECODE(:ela,0,' ',ROUND(" + operations + "/:ela))";
}

std::string endAndPerhapsStart() {
  return R"sql(
           b.snap_id(+) = :B3
       and e.snap_id = :B4
       and b.dbid(+) = :B1
       and e.dbid = :B1
       and b.dbid(+) = e.dbid
       and b.instance_number(+) = :B2
       and e.instance_number = :B2
       and b.instance_number(+) = e.instance_number)sql";
}

std::string activeFiles(const std::string& table, const std::string& further, const std::string& conditions) {
  return " from " + table + " e, " + table + " b" + further + " where " + endAndPerhapsStart() + R"sql(
       and b.tsname(+) = e.tsname
       and b.filename(+) = e.filename)sql" +
         conditions + " and (" + grown("phyrds") + " + " + grown("phywrts") + ") > 0";
}

std::string ofOneFile(const std::string& files) {
  return fold("select * from (" + files + ") Z where Z.FILENAME = :B5");
}

}  // namespace kestrelix
