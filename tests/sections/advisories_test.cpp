#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "sections/instance_support.h"

namespace kestrelix::testing_support {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(PgaMemoryAdvisory, estimatesShowBySizeInMegabytes) {
  for (const char* major : {"9", "10", "11"}) {
    InstanceRepository repository(major);
    // 200 MB, and 100.5 MB with a trace more than 15.55 MB processed, 2.25 MB extra and 87.55 % from the
    // cache. The time of the end snapshot alone counts.
    repository.rows("stats$pga_target_advice",
                    {"snap_id", "pga_target_for_estimate", "pga_target_factor", "bytes_processed",
                     "estd_extra_bytes_rw", "estd_pga_cache_hit_percentage", "estd_overalloc_count"},
                    {{"1", "52428800", ".25", "1", "1", "1", "1"},
                     {"2", "209715200", "1", "15728640", "0", "100", "0"},
                     {"2", "105381888", ".46", "16305357", "2359296", "87.55", "3"},
                     {"4", "105381888", ".46", "1572864", "0", "99", "0"},
                     {"4", "209715200", "2", "1", "1", "1", "1"}});
    OpenReport report(repository);
    const std::string headings =
        "NO|PGA TARGET EST(MB)|SIZE FACTR|W/A MB PROCESSED|ESTD EXTRA W/A MB READ/WRITTEN TO DISK|"
        "ESTD PGA CACHE HIT%|ESTD PGA OVERALLOCK COUNT\n";
    EXPECT_EQ(report.all("PGA Memory Advisory", 1), headings);
    EXPECT_EQ(report.all("PGA Memory Advisory", 0), headings +
                                                        "1|101|0.5|15.6|2.3|87.6|3\n"
                                                        "2|200|1|15|0|100|0\n");
    EXPECT_EQ(report.col(1),
              "NO|PGA TARGET EST(MB)|SIZE FACTR|END TIME|W/A MB PROCESSED|"
              "ESTD EXTRA W/A MB READ/WRITTEN TO DISK|ESTD PGA CACHE HIT%|ESTD PGA OVERALLOCK COUNT|STATUS\n"
              "1|101|0.5|2026-01-05 11:00:00|15.6|2.3|87.6|3|OK\n"
              "2|||2026-01-05 12:00:00|||||DB RESTART\n"
              "3|101|0.5|2026-01-05 13:30:00|1.5|0|99|0|OK\n");
    report.all("PGA Memory Advisory", 0);
    report.col(2);
    EXPECT_EQ(report.grid().TextMatrix(1, 1), "200");
    EXPECT_EQ(report.grid().TextMatrix(3, 1), "") << "the size has another factor";
    EXPECT_THAT(report.boxes(), IsEmpty());
  }
}

TEST(PgaMemoryAdvisory, anEstimateThatIsMissingIsAFailure) {
  InstanceRepository repository("10");
  repository.row("stats$pga_target_advice", {{"snap_id", "2"}, {"pga_target_for_estimate", "1048576"}});
  OpenReport report(repository);
  report.grid().TextMatrix(0, 0, "former");
  EXPECT_EQ(report.all("PGA Memory Advisory", 0).substr(0, 6), "former");
  EXPECT_THAT(report.boxes(),
              ElementsAre("[Critical] (clsPGAMemoryAdvisory){getPGA_MEMORY_ADVISORY_ALL} Error"));
}

const char* const kLibraryCache =
    "EST LC SIZE(MB)|EST LC MEM OBJ|EST LC TIME SAVED(S)|EST LC TIME SAVED FACTR|EST LC LOAD TIME(S)|"
    "EST LC LOAD TIME FACTR|EST LC MEM OBJ HITS";

TEST(SharedPoolAdvisory, estimatesShowBySize) {
  for (const char* major : {"10", "11"}) {
    InstanceRepository repository(major);
    repository.rows("stats$shared_pool_advice",
                    {"snap_id", "shared_pool_size_for_estimate", "shared_pool_size_factor", "estd_lc_size",
                     "estd_lc_memory_objects", "estd_lc_time_saved", "estd_lc_time_saved_factor",
                     "estd_lc_load_time", "estd_lc_load_time_factor", "estd_lc_memory_object_hits"},
                    {{"2", "256", "1", "40", "4000", "900", "1", "50", "1", "70000"},
                     {"2", "128", ".46", "20", "2000", "855", ".95", "73", "1.45", "66000"},
                     {"4", "256", "1", "41", "4100", "901", "1", "51", "1", "70001"},
                     {"4", "128", "1", "1", "1", "1", "1", "1", "1", "1"}});
    OpenReport report(repository);
    const std::string headings = std::string("NO|SHARED POOL SIZE(MB)|SP SIZE FACTR|") + kLibraryCache + "\n";
    EXPECT_EQ(report.all("Shared Pool Advisory", 1), headings);
    // .95 and 1.45 are rounded away from zero.
    EXPECT_EQ(report.all("Shared Pool Advisory", 0), headings +
                                                         "1|128|0.5|20|2000|855|1|73|1.5|66000\n"
                                                         "2|256|1|40|4000|900|1|50|1|70000\n");
    EXPECT_EQ(report.col(2), std::string("NO|SHARED POOL SIZE(MB)|SP SIZE FACTR|END TIME|") + kLibraryCache +
                                 "|STATUS\n"
                                 "1|256|1|2026-01-05 11:00:00|40|4000|900|1|50|1|70000|OK\n"
                                 "2|||2026-01-05 12:00:00||||||||DB RESTART\n"
                                 "3|256|1|2026-01-05 13:30:00|41|4100|901|1|51|1|70001|OK\n");
    report.all("Shared Pool Advisory", 0);
    EXPECT_NE(report.col(1).find("1|128|0.5|2026-01-05 11:00:00|20|"), std::string::npos);
    EXPECT_EQ(report.grid().TextMatrix(3, 1), "") << "the size has another factor";
    EXPECT_THAT(report.boxes(), IsEmpty());
  }
}

TEST(SharedPoolAdvisory, release9HasNoLoadTimes) {
  InstanceRepository repository("9");
  repository.rows("stats$shared_pool_advice",
                  {"snap_id", "shared_pool_size_for_estimate", "shared_pool_size_factor", "estd_lc_size",
                   "estd_lc_memory_objects", "estd_lc_time_saved", "estd_lc_time_saved_factor",
                   "estd_lc_memory_object_hits"},
                  {{"2", "256", "1", "40", "4000", "900", "1", "70000"},
                   {"2", "128", ".46", "20", "2000", "855", ".95", "66000"},
                   {"4", "128", "1", "1", "1", "1", "1", "1"}});
  OpenReport report(repository);
  EXPECT_EQ(report.all("Shared Pool Advisory", 0),
            "NO|SHARED POOL SIZE(MB)|SP SIZE FACTR|EST LC SIZE(MB)|EST LC MEM OBJ|EST LC TIME SAVED(S)|"
            "EST LC TIME SAVED FACTR|EST LC MEM OBJ HITS\n"
            "1|128|0.5|20|2000|855|1|66000\n"
            "2|256|1|40|4000|900|1|70000\n");
  EXPECT_EQ(report.col(1),
            "NO|SHARED POOL SIZE(MB)|SP SIZE FACTR|END TIME|EST LC SIZE(MB)|EST LC MEM OBJ|"
            "EST LC TIME SAVED(S)|EST LC TIME SAVED FACTR|EST LC MEM OBJ HITS|STATUS\n"
            "1|128|0.5|2026-01-05 11:00:00|20|2000|855|1|66000|OK\n"
            "2|||2026-01-05 12:00:00||||||DB RESTART\n"
            "3|||2026-01-05 13:30:00||||||OK\n");
}

TEST(JavaPoolAdvisory, anUnusedPoolHasNoEstimates) {
  for (const char* major : {"10", "11"}) {
    InstanceRepository repository(major);
    repository.rows("stats$java_pool_advice",
                    {"snap_id", "java_pool_size_for_estimate", "java_pool_size_factor", "estd_lc_size",
                     "estd_lc_memory_objects", "estd_lc_time_saved", "estd_lc_time_saved_factor",
                     "estd_lc_load_time", "estd_lc_load_time_factor", "estd_lc_memory_object_hits"},
                    {{"2", "32", "2", "8", "300", "10", "1", "2", "1", "600"},
                     {"2", "16", "1.06", "4", "200", "9", ".96", "3", "1.55", "500"},
                     {"4", "16", "1.06", "0", "0", "0", "0", "0", "0", "0"}});
    OpenReport report(repository);
    const std::string headings = std::string("NO|JAVA POOL SIZE(MB)|JP SIZE FACTR|") + kLibraryCache + "\n";
    EXPECT_EQ(report.all("Java Pool Advisory", 1), headings);
    EXPECT_EQ(report.all("Java Pool Advisory", 2), headings);
    EXPECT_EQ(report.all("Java Pool Advisory", 0), headings +
                                                       "1|16|1.1|4|200|9|1|3|1.6|500\n"
                                                       "2|32|2|8|300|10|1|2|1|600\n");
    EXPECT_EQ(report.col(1), std::string("NO|JAVA POOL SIZE(MB)|JP SIZE FACTR|END TIME|") + kLibraryCache +
                                 "|STATUS\n"
                                 "1|16|1.1|2026-01-05 11:00:00|4|200|9|1|3|1.6|500|OK\n"
                                 "2|||2026-01-05 12:00:00||||||||DB RESTART\n"
                                 "3|||2026-01-05 13:30:00||||||||OK\n");
    EXPECT_THAT(report.boxes(), IsEmpty());
  }
}

TEST(JavaPoolAdvisory, aSizeOfAnotherFactorIsNotOfTheSeries) {
  InstanceRepository repository("10");
  repository.rows("stats$java_pool_advice",
                  {"snap_id", "java_pool_size_for_estimate", "java_pool_size_factor", "estd_lc_size",
                   "estd_lc_memory_objects", "estd_lc_time_saved", "estd_lc_time_saved_factor",
                   "estd_lc_load_time", "estd_lc_load_time_factor", "estd_lc_memory_object_hits"},
                  {{"2", "16", "1", "4", "200", "9", "1", "3", "1", "500"},
                   {"4", "16", "2", "4", "200", "9", "1", "3", "1", "500"}});
  OpenReport report(repository);
  report.all("Java Pool Advisory", 0);
  report.col(1);
  EXPECT_EQ(report.grid().TextMatrix(1, 1), "16");
  EXPECT_EQ(report.grid().TextMatrix(3, 1), "");
}

TEST(SgaTargetAdvisory, estimatesShowBySize) {
  for (const char* major : {"10", "11"}) {
    InstanceRepository repository(major);
    repository.rows("stats$sga_target_advice",
                    {"snap_id", "sga_size", "sga_size_factor", "estd_db_time", "estd_db_time_factor",
                     "estd_physical_reads"},
                    {{"2", "1024", "1", "1000", "1", "5000"},
                     {"2", "256", ".25", "1250", "1.25", "9000"},
                     {"4", "256", ".25", "1260", "1.3", "9100"},
                     {"4", "1024", "2", "1", "1", "1"}});
    OpenReport report(repository);
    const std::string headings =
        "NO|SGA TARGET SIZE(MB)|SGA SIZE FACTOR|EST DB TIME(S)|EST DB TIME FACTOR|EST PHYSICAL READS\n";
    EXPECT_EQ(report.all("SGA Target Advisory", 1), headings);
    EXPECT_EQ(report.all("SGA Target Advisory", 0), headings +
                                                        "1|256|0.3|1250|1.3|9000\n"
                                                        "2|1024|1|1000|1|5000\n");
    EXPECT_EQ(report.col(1),
              "NO|SGA TARGET SIZE(MB)|SGA SIZE FACTOR|END TIME|EST DB TIME(S)|EST DB TIME FACTOR|"
              "EST PHYSICAL READS|STATUS\n"
              "1|256|0.3|2026-01-05 11:00:00|1250|1.3|9000|OK\n"
              "2|||2026-01-05 12:00:00||||DB RESTART\n"
              "3|256|0.3|2026-01-05 13:30:00|1260|1.3|9100|OK\n");
    report.all("SGA Target Advisory", 0);
    report.col(2);
    EXPECT_EQ(report.grid().TextMatrix(1, 1), "1024");
    EXPECT_EQ(report.grid().TextMatrix(3, 1), "") << "the size has another factor";
    EXPECT_THAT(report.boxes(), IsEmpty());
  }
}

TEST(MemoryTargetAdvice, timeIsThatOfThePairUnlessTheAdviceBeganAnew) {
  InstanceRepository repository("11");
  repository.rows("stats$memory_target_advice",
                  {"snap_id", "memory_size", "memory_size_factor", "estd_db_time", "version"},
                  {{"1", "512", ".46", "1000", "0"},
                   {"1", "1024", "1", "900", "0"},
                   {"2", "1024", "1", "950", "0"},
                   {"2", "512", ".46", "1100", "1"},
                   {"2", "2048", "2", "940", "0"},
                   {"3", "512", ".46", "10", "1"},
                   {"4", "512", ".46", "15", "1"},
                   {"4", "2048", "1", "1", "0"}});
  OpenReport report(repository);
  const std::string headings = "NO|MEMORY SIZE(M)|MEMORY SIZE FACTOR|EST.DB TIME(S)|ADVICE RESET\n";
  // 512 has another version at the end, 2048 no row at the start: their whole time shows.
  EXPECT_EQ(report.all("Memory Target Advice", 1), headings);
  EXPECT_EQ(report.all("Memory Target Advice", 0), headings +
                                                       "1|512|0.5|1100|Y\n"
                                                       "2|1024|1|50| \n"
                                                       "3|2048|2|940|Y\n");
  EXPECT_EQ(report.col(1),
            "NO|MEMORY SIZE(M)|MEMORY SIZE FACTOR|END TIME|EST.DB TIME(S)|ADVICE RESET|STATUS\n"
            "1|512|0.5|2026-01-05 11:00:00|1100|Y|OK\n"
            "2|||2026-01-05 12:00:00|||DB RESTART\n"
            "3|512|0.5|2026-01-05 13:30:00|5| |OK\n");
  report.all("Memory Target Advice", 0);
  report.col(3);
  EXPECT_EQ(report.grid().TextMatrix(1, 1), "2048");
  EXPECT_EQ(report.grid().TextMatrix(3, 1), "") << "the size has another factor";
  EXPECT_THAT(report.boxes(), IsEmpty());
}

}  // namespace
}  // namespace kestrelix::testing_support
