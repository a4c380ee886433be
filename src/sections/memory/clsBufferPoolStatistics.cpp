#include "sections/memory/clsBufferPoolStatistics.h"

#include "sections/shared/bufferPools.h"

namespace kestrelix {
namespace {

/// A count of at most four digits and a unit, cut and not rounded, at the right of seven characters.
const char* const kBuffers = R"sql(
    lpad(case when e.set_msize <= 9999
              then to_char(e.set_msize) || ' '
              when trunc((e.set_msize) / 1000) <= 9999
              then to_char(trunc((e.set_msize) / 1000)) || 'K'
              when trunc((e.set_msize) / 1000000) <= 9999
              then to_char(trunc((e.set_msize) / 1000000)) || 'M'
              when trunc((e.set_msize) / 1000000000) <= 9999
              then to_char(trunc((e.set_msize) / 1000000000)) || 'G'
              when trunc((e.set_msize) / 1000000000000) <= 9999
              then to_char(trunc((e.set_msize) / 1000000000000)) || 'T'
              else substr(to_char(trunc((e.set_msize) / 1000000000000000)) || 'P', 1, 5)
         end, 7))sql";

/// A pool that only the end of the pair has counts from 0.
std::string grown(const std::string& counter) { return "e." + counter + " - nvl(b." + counter + ",0)"; }

std::string statement() {
  const std::string gets = grown("db_block_gets") + " + " + grown("consistent_gets");
  const std::string reads = grown("physical_reads");
  return "select " + poolName("e.") + " AS NAME, " + kBuffers + " AS BUFFERS, DECODE(" + gets +
         ",0,' ',ROUND(100 * (1 - ((" + reads + ") / (" + gets + "))))) AS POOL_HIT, " + gets +
         " AS BUFFER_GETS, " + reads + " AS PHYSICAL_READS, " + grown("physical_writes") +
         " AS PHYSICAL_WRITE, " + grown("free_buffer_wait") + " AS FREE_BUFFER_WAITS, " +
         grown("write_complete_wait") + " AS WRITE_COMPLETE_WAIT, " + grown("buffer_busy_wait") +
         R"sql( AS BUFFER_BUSY_WAITS
      from stats$buffer_pool_statistics b, stats$buffer_pool_statistics e
     where b.snap_id(+) = :B3
       and e.snap_id = :B4
       and b.dbid(+) = :B1
       and e.dbid = :B1
       and b.dbid(+) = e.dbid
       and b.instance_number(+) = :B2
       and e.instance_number = :B2
       and b.instance_number(+) = e.instance_number
       and b.id(+) = e.id
     order by e.name)sql";
}

}  // namespace

clsBufferPoolStatistics::clsBufferPoolStatistics()
    : ListSectionObject("clsBufferPoolStatistics", fieldNames(),
                        {argument("B5", ServerType::String), blockSize()}) {
  all("getBUFFER_POOL_STATISTICS_ALL", fold(statement()));
  col("getBUFFER_POOL_STATISTICS_COL", fold("select * from (" + statement() + ") Z where Z.NAME = :B5"));
}

}  // namespace kestrelix
