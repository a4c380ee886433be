#include "sections/summary/clsCacheSize.h"

namespace kestrelix {
namespace {

/// The buffer cache of one snapshot. The older setting, block size times buffers, counts if it gives a size,
/// else the sum of the newer parameters. Where 'db_cache_size' and '__db_cache_size' both exist the larger
/// counts. `kp` has no condition on the DBID.
std::string bufferCache(const std::string& snapshot) {
  std::string text = R"sql(
    (select * from
       (select DECODE(ROUND((bs.value * db.value) / 1024 / 1024),0,
                      ROUND((ca.value + kp.value + re.value + k2.value + k4.value + k8.value + k16.value
                             + k32.value) / 1024 / 1024),
                      ROUND((bs.value * db.value) / 1024 / 1024)) AS BUFFER_CACHE_MB
          from stats$parameter bs, stats$parameter db, stats$parameter ca, stats$parameter kp,
               stats$parameter re, stats$parameter k2, stats$parameter k4, stats$parameter k8,
               stats$parameter k16, stats$parameter k32
         where bs.dbid = :B1
           and bs.instance_number = :B2
           and bs.snap_id = )sql" +
                     snapshot + R"sql(
           and bs.name = 'db_block_size')sql";
  const std::pair<const char*, const char*> parameters[] = {
      {"db", "db.name = 'db_block_buffers'"},
      {"ca", "(ca.name = 'db_cache_size' or ca.name = '__db_cache_size')"},
      {"kp", "kp.name = 'db_keep_cache_size'"},
      {"re", "re.name = 'db_recycle_cache_size'"},
      {"k2", "k2.name = 'db_2k_cache_size'"},
      {"k4", "k4.name = 'db_4k_cache_size'"},
      {"k8", "k8.name = 'db_8k_cache_size'"},
      {"k16", "k16.name = 'db_16k_cache_size'"},
      {"k32", "k32.name = 'db_32k_cache_size'"}};
  for (const auto& [alias, name] : parameters) {
    const std::string a = alias;
    if (a != "kp") text += " and bs.dbid = " + a + ".dbid";
    text +=
        " and bs.instance_number = " + a + ".instance_number and bs.snap_id = " + a + ".snap_id and " + name;
  }
  return text + " order by BUFFER_CACHE_MB desc) where rownum = 1)";
}

/// The shared pool of one snapshot, the larger of the two parameters that can give it.
std::string sharedPool(const std::string& snapshot) {
  return R"sql(
    (select * from
       (select ROUND(sp.value / 1024 / 1024) AS SHARED_POOL_MB
          from stats$parameter sp
         where sp.dbid = :B1
           and sp.instance_number = :B2
           and sp.snap_id = )sql" +
         snapshot + R"sql(
           and (sp.name = 'shared_pool_size' or sp.name = '__shared_pool_size')
         order by SHARED_POOL_MB desc)
      where rownum = 1))sql";
}

std::string startParameter(const std::string& alias, const std::string& name) {
  return fold("select ROUND(value / 1024) AS " + alias + R"sql(
      from stats$parameter
     where dbid = :B1 and instance_number = :B2 and snap_id = :B3 and name = ')sql" +
              name + "'");
}

}  // namespace

clsCacheSize::clsCacheSize() : MetricSectionObject("clsCacheSize", fieldNames()) {
  metric("getBURRER_CACHE_SIZE", {Field::START_BC_MB, Field::END_BC_MB}, fold(R"sql(
    select AA.BUFFER_CACHE_MB AS START_BC_MB,
           DECODE(AA.BUFFER_CACHE_MB,BB.BUFFER_CACHE_MB,' ',BB.BUFFER_CACHE_MB) AS END_BC_MB
      from )sql" + bufferCache(":B3") + " AA, " + bufferCache(":B4") + " BB"));
  metric("getSHARED_POOL_SIZE", {Field::START_SP_MB, Field::END_SP_MB}, fold(R"sql(
    select AA.SHARED_POOL_MB AS START_SP_MB,
           DECODE(AA.SHARED_POOL_MB,BB.SHARED_POOL_MB,' ',BB.SHARED_POOL_MB) AS END_SP_MB
      from )sql" + sharedPool(":B3") + " AA, " + sharedPool(":B4") + " BB"));
  metric("getSTANDERD_BLOCK_SIZE", {Field::DB_BLOCK_KB}, startParameter("DB_BLOCK_KB", "db_block_size"));
  metric("getLOG_BUFFER_SIZE", {Field::LOG_BUF_KB}, startParameter("LOG_BUF_KB", "log_buffer"));
}

}  // namespace kestrelix
