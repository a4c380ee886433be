#include "sections/cluster/clsGlobalCURRENTServedStats.h"

#include "platform/ascii.h"

namespace kestrelix {
namespace {

const char* const kBuckets[] = {"1", "10", "100", "1000", "10000"};  // milliseconds, upper bounds

/// `total` is the alias of the sum of a measure's buckets, whose columns are the measure and the bucket.
std::string servedStatement(const std::string& total, const std::string& measure) {
  std::string start, end, growth, shares;
  for (const char* bucket : kBuckets) {
    const std::string column = measure + bucket;
    start += (start.empty() ? "b." : "+b.") + column;
    end += (end.empty() ? "e." : "+e.") + column;
    growth += ", e." + column + " - b." + column + " AS " + column;
    shares += ", lpad(to_char(decode(" + total + ",0,0,100*" + column + "/" + total +
              "),'990.99'),8,' ') AS " + asciiUpper(column);
  }
  return fold("select " + total + " AS " + asciiUpper(total) + shares + " from (select (" + end + " - (" +
              start + ")) AS " + total + growth + R"sql(
      from stats$current_block_server b, stats$current_block_server e
     where b.snap_id = :B3
       and e.snap_id = :B4
       and b.instance_number = :B2
       and e.instance_number = :B2
       and b.dbid = :B1
       and e.dbid = :B1))sql");
}

}  // namespace

clsGlobalCURRENTServedStats::clsGlobalCURRENTServedStats()
    : MetricSectionObject("clsGlobalCURRENTServedStats", fieldNames()) {
  metric("getPINS", {Field::PINS, Field::PIN1, Field::PIN10, Field::PIN100, Field::PIN1000, Field::PIN10000},
         servedStatement("pins", "pin"));
  metric(
      "getFLUSHES",
      {Field::FLUSHES, Field::FLUSH1, Field::FLUSH10, Field::FLUSH100, Field::FLUSH1000, Field::FLUSH10000},
      servedStatement("flushes", "flush"));
  metric("getWRITES",
         {Field::WRITES, Field::WRITE1, Field::WRITE10, Field::WRITE100, Field::WRITE1000, Field::WRITE10000},
         servedStatement("writes", "write"));
}

}  // namespace kestrelix
