#include "sections/memory/clsSGAbreakdowndifference.h"

namespace kestrelix {
namespace {

std::string snapshot(const std::string& bind) {
  return "(select * from stats$sgastat where snap_id = " + bind +
         " and dbid = :B1 and instance_number = :B2)";
}

/// The rows are counted in the order of their size before they are sorted to be shown.
std::string statement() {
  return R"sql(
    select NVL(A.POOL,' ') AS POOL,
           NAME,
           DECODE(BEGIN_MB,null,' ',BEGIN_MB) AS BEGIN_MB,
           DECODE(END_MB,null,' ',END_MB) AS END_MB,
           PER_DIFF
      from
     (select *
        from
       (select nvl(e.pool, b.pool) AS POOL,
               nvl(e.name, b.name) AS NAME,
               ROUND(b.bytes / 1024 / 1024,1) AS BEGIN_MB,
               ROUND(e.bytes / 1024 / 1024,1) AS END_MB,
               ROUND(100 * (nvl(e.bytes,0) - nvl(b.bytes,0)) / nvl(b.bytes,1),2) AS PER_DIFF
          from )sql" +
         snapshot(":B3") + " b full outer join " + snapshot(":B4") + R"sql( e
            on b.name = e.name and nvl(b.pool, 'a') = nvl(e.pool, 'a')
         order by nvl(e.bytes, b.bytes))
       where pool is null or name = 'free memory' or rownum <= 35
       order by POOL, NAME) A)sql";
}

}  // namespace

clsSGAbreakdowndifference::clsSGAbreakdowndifference()
    : ListSectionObject(
          "clsSGAbreakdowndifference", fieldNames(),
          {{.name = "B5", .type = ServerType::String, .ifEmpty = " "}, argument("B6", ServerType::String)}) {
  all("getSGA_BREAKDOWN_DIFFERENCE_ALL", fold(statement()));
  col("getSGA_BREAKDOWN_DIFFERENCE_COL",
      fold("select * from (" + statement() + ") Z where Z.POOL = :B5 and Z.NAME = :B6"));
}

}  // namespace kestrelix
