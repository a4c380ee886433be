#include "sections/shared/bufferPools.h"

namespace kestrelix {
namespace {

/// Sum of an expression over the rows of one parameter.
std::string sumOf(const std::string& parameter, const std::string& expression) {
  return "sum(case when name = '" + parameter + "' then " + expression + " else '0' end)";
}

std::string sizeOf(const std::string& parameter) { return "nvl(" + sumOf(parameter, "value") + ",'0')"; }

/// The newer parameter gives bytes; where it is not set, the older one counts buffers.
std::string newerOrOlder(const std::string& newer, const std::string& older, const std::string& bytes) {
  return "decode(" + sizeOf(newer) + ",'0',nvl(" + sumOf(older, "to_char(" + bytes + ")") + ",'0')," +
         sumOf(newer, "value") + ")";
}

/// The buffers of a value in the old style: a bare number, "lru_latches:2, buffers:500", "buffers:500" or
/// "buffers:500, lru_latches:2".
const char* const kBuffers = R"sql(
    decode(instrb(value, 'buffers'),0,value,
      decode(instrb(value, 'lru_latches'),1,substr(value, instrb(value,',')+10, 9999),
        decode(instrb(value, ', lru'),0,substrb(value,9,99999),
               substrb(substrb(value,1,instrb(value,', lru_latches:')-1),9,99999)))))sql";

}  // namespace

Bind blockSize() {
  return {.name = "bs",
          .type = ServerType::Number,
          .member = "getBLOCK_SIZE",
          // The value in force, with the underscores, sorts before the one that was set.
          .text = fold(R"sql(
            select value AS BLOCK_SIZE
              from stats$parameter
             where snap_id = :B3
               and dbid = :B1
               and instance_number = :B2
               and ( name = '__' || 'db_block_size' or name = 'db_block_size' )
             order by name)sql"),
          .goesOn = true,
          .column = "BLOCK_SIZE",
          .ifFailed = "-1"};
}

std::vector<Bind> cacheSizes() {
  std::vector<Bind> binds;
  for (const char* name :
       {"k2_cache", "k4_cache", "k8_cache", "k16_cache", "k32_cache", "def_cache", "kee_cache", "rec_cache"})
    binds.push_back({.name = name,
                     .type = ServerType::Number,
                     .member = "getCACHE_SIZE",
                     .goesOn = true,
                     .failureBoxesTwice = true});
  return binds;
}

std::string cacheSizesStatement(const std::string& defaultCache) {
  const std::string buffers = std::string(kBuffers) + " * :bs";
  return fold("select " + sizeOf("db_2k_cache_size") + " AS K2_CACHE, " + sizeOf("db_4k_cache_size") +
              " AS K4_CACHE, " + sizeOf("db_8k_cache_size") + " AS K8_CACHE, " + sizeOf("db_16k_cache_size") +
              " AS K16_CACHE, " + sizeOf("db_32k_cache_size") + " AS K32_CACHE, " +
              newerOrOlder("db_keep_cache_size", "buffer_pool_keep", buffers) + " AS KEE_CACHE, " +
              newerOrOlder("db_recycle_cache_size", "buffer_pool_recycle", buffers) + " AS REC_CACHE, " +
              newerOrOlder(defaultCache, "db_block_buffers", "value * :bs") + R"sql( AS DEF_CACHE
      from stats$parameter
     where snap_id = :B4
       and dbid = :B1
       and instance_number = :B2
       and name in ('db_2k_cache_size', 'db_4k_cache_size', 'db_8k_cache_size', 'db_16k_cache_size',
                    'db_32k_cache_size', ')sql" +
              defaultCache + R"sql(', 'db_block_buffers', 'db_keep_cache_size',
                    'buffer_pool_keep', 'db_recycle_cache_size', 'buffer_pool_recycle'))sql");
}

std::string poolName(const std::string& prefix) {
  return "replace(" + prefix + "block_size / 1024 || 'k', :bs / 1024 || 'k', substr(" + prefix + "name,1,1))";
}

}  // namespace kestrelix
