#include "sections/cluster/clsGlobalCacheTransferStats.h"

namespace kestrelix {
namespace {

/// What differs between the members.
struct Form {
  std::string subquery;
  std::string instance;       ///< in the subquery's select and group by
  std::string instanceAlias;  ///< in the select list
  std::string instanceJoin;
};

const Form kByInstance{"instance_cache_transfer", "instance, ", "e.instance AS INST, ",
                       " and b.instance(+) = e.instance"};
const Form kByClass{"class_cache_transfer", "", "", ""};

const char* const kFoldedClass =
    "case when class in ('data block', 'undo header', 'undo block') then class else 'others' end";

/// Share of one way in a total, as a percentage; blank where nothing came.
std::string share(const std::string& way, const std::string& total, const std::string& alias) {
  return "DECODE(e." + total + "-nvl(b." + total + ", 0),0,' ',ROUND((e." + way + "-nvl(b." + way +
         ", 0))*100/(e." + total + "-nvl(b." + total + ", 0)),1)) AS " + alias;
}

std::string transfers(const Form& form) {
  const std::string folded = kFoldedClass;
  return "with " + form.subquery + " as (select snap_id, " + form.instance + folded + R"sql( AS class,
           sum(cr_block) AS cr_block,
           sum(cr_busy) AS cr_busy,
           sum(cr_congested) AS cr_congested,
           sum(current_block) AS current_block,
           sum(current_busy) AS current_busy,
           sum(current_congested) AS current_congested,
           sum(cr_block) + sum(cr_busy) + sum(cr_congested) AS totcr,
           sum(current_block) + sum(current_busy) + sum(current_congested) AS totcu
      from stats$instance_cache_transfer
     where instance_number = :B2
       and dbid = :B1
     group by snap_id, )sql" +
         form.instance + folded + ") select " + form.instanceAlias + R"sql(
           e.class AS BLOCK_CLASS,
           e.totcr-nvl(b.totcr, 0) AS TOTCR, )sql" +
         share("cr_block", "totcr", "CR_BLKIMM") + ", " + share("cr_busy", "totcr", "CR_BLKBUS") + ", " +
         share("cr_congested", "totcr", "CR_BLKCGT") + ", e.totcu-nvl(b.totcu, 0) AS TOTCU, " +
         share("current_block", "totcu", "CU_BLKIMM") + ", " + share("current_busy", "totcu", "CU_BLKBUS") +
         ", " + share("current_congested", "totcu", "CU_BLKCGT") + " from " + form.subquery + " b, " +
         form.subquery + R"sql( e
     where b.snap_id(+) = :B3
       and e.snap_id = :B4
       and b.class(+) = e.class)sql" +
         form.instanceJoin + R"sql(
       and e.totcr + e.totcu - nvl(b.totcr, 0) - nvl(b.totcu, 0) > 0)sql";
}

std::string allStatement(const Form& form) { return fold(transfers(form) + " order by totcr + totcu desc"); }

std::string colStatement(const Form& form) {
  return fold("select * from (" + transfers(form) + ") z where z.BLOCK_CLASS = :B5");
}

}  // namespace

clsGlobalCacheTransferStats::clsGlobalCacheTransferStats()
    : ListSectionObject("clsGlobalCacheTransferStats", fieldNames(), {argument("B5", ServerType::String)}) {
  all("getGLOBAL_CACHE_TRANSFER_STATS_Y_ALL", allStatement(kByInstance));
  col("getGLOBAL_CACHE_TRANSFER_STATS_Y_COL", colStatement(kByInstance));
  const auto withoutInstance = {Field::BLOCK_CLASS, Field::TOTCR,     Field::CR_BLKIMM,
                                Field::CR_BLKBUS,   Field::CR_BLKCGT, Field::TOTCU,
                                Field::CU_BLKIMM,   Field::CU_BLKBUS, Field::CU_BLKCGT};
  all("getGLOBAL_CACHE_TRANSFER_STATS_N_ALL", allStatement(kByClass)).reading(withoutInstance);
  col("getGLOBAL_CACHE_TRANSFER_STATS_N_COL", colStatement(kByClass)).reading(withoutInstance);
}

}  // namespace kestrelix
