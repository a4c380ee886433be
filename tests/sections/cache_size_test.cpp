#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "sections/head_support.h"

namespace kestrelix::testing_support {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const char* const kOtherCaches[] = {"db_keep_cache_size", "db_recycle_cache_size", "db_2k_cache_size",
                                    "db_4k_cache_size",   "db_8k_cache_size",      "db_16k_cache_size",
                                    "db_32k_cache_size"};

// 1 MB is 1048576 bytes.
void parameters(HeadRepository& repository) {
  repository.parameter("db_block_size", {"8192", "8192", "8192", "16384"})
      .parameter("db_block_buffers", {"0", "0", "0", "0"})
      .parameter("db_cache_size", {"104857600", "209715200", "0", "0"})   // 100, 200 MB
      .parameter("shared_pool_size", {"52428800", "52428800", "0", "0"})  // 50 MB
      .parameter("log_buffer", {"524288", "1048576", "0", "1536"});       // 512 KB
  for (const char* name : kOtherCaches) repository.parameter(name, {"0", "0", "0", "0"});
}

TEST(CacheSizes, endValueIsBlankWhereTheSizeHasNotChanged) {
  for (const char* version : {"9", "10", "11"}) {
    HeadRepository repository(version);
    parameters(repository);
    ReportFixture report(repository.write());
    report.open(0);
    EXPECT_EQ(report.all("Cache Sizes", 0),
              "NO|NAME|START VALUE|END VALUE|OTHER VALUE\n"
              "1|Buffer Cache(MB):|100|200|\n"
              "2|Shared Pool(MB):|50| |\n"
              "3|Std Block Size(KB):|||8\n"
              "4|Log Buffer(KB):|||512\n");
    EXPECT_THAT(report.boxes(), IsEmpty());
  }
}

TEST(CacheSizes, restartedPairIsEmpty) {
  HeadRepository repository("11");
  ReportFixture report(repository.write());
  report.open(0);
  EXPECT_EQ(report.all("Cache Sizes", 1),
            "NO|NAME|START VALUE|END VALUE|OTHER VALUE\n"
            "1|Buffer Cache(MB):|||\n"
            "2|Shared Pool(MB):|||\n"
            "3|Std Block Size(KB):|||\n"
            "4|Log Buffer(KB):|||\n");
  EXPECT_THAT(report.boxes(), IsEmpty());
}

TEST(CacheSizes, seriesKeepsTheRestartedPairsRow) {
  HeadRepository repository("10");
  parameters(repository);
  ReportFixture report(repository.write());
  report.open(0);
  report.all("Cache Sizes", 0);
  EXPECT_EQ(report.col(1),
            "NO|NAME|END TIME|START VALUE|END VALUE|STATUS\n"
            "1|Buffer Cache(MB):|2026-01-05 11:00:00|100|200|OK\n"
            "2|Buffer Cache(MB):|2026-01-05 12:00:00|||DB RESTART\n"
            "3|Buffer Cache(MB):|2026-01-05 13:00:00|0| |OK\n");
  report.all("Cache Sizes", 0);
  EXPECT_EQ(report.col(2),
            "NO|NAME|END TIME|START VALUE|END VALUE|STATUS\n"
            "1|Shared Pool(MB):|2026-01-05 11:00:00|50| |OK\n"
            "2|Shared Pool(MB):|2026-01-05 12:00:00|||DB RESTART\n"
            "3|Shared Pool(MB):|2026-01-05 13:00:00|0| |OK\n");
}

// The block size grows and the log buffer changes at snapshot 4 alone: its pair shows what was before.
TEST(CacheSizes, blockAndLogBufferComeFromTheStart) {
  HeadRepository repository("10");
  parameters(repository);
  ReportFixture report(repository.write());
  report.open(0);
  report.all("Cache Sizes", 0);
  EXPECT_EQ(report.col(3),
            "NO|NAME|END TIME|OTHER VALUE|STATUS\n"
            "1|Std Block Size(KB):|2026-01-05 11:00:00|8|OK\n"
            "2|Std Block Size(KB):|2026-01-05 12:00:00||DB RESTART\n"
            "3|Std Block Size(KB):|2026-01-05 13:00:00|8|OK\n");
  report.all("Cache Sizes", 0);
  EXPECT_EQ(report.col(4),
            "NO|NAME|END TIME|OTHER VALUE|STATUS\n"
            "1|Log Buffer(KB):|2026-01-05 11:00:00|512|OK\n"
            "2|Log Buffer(KB):|2026-01-05 12:00:00||DB RESTART\n"
            "3|Log Buffer(KB):|2026-01-05 13:00:00|0|OK\n");
}

// 6400 buffers of 8192 bytes are 50 MB, whatever the newer parameters say; 64 buffers are .5 MB, which is 1.
TEST(CacheSizes, olderSettingCountsIfItGivesASize) {
  HeadRepository repository("9");
  repository.parameter("db_block_size", {"8192", "8192"})
      .parameter("db_block_buffers", {"6400", "64"})
      .parameter("db_cache_size", {"104857600", "104857600"})
      .parameter("shared_pool_size", {"1048576", "1048576"})
      .parameter("log_buffer", {"1024", "1024"});
  for (const char* name : kOtherCaches) repository.parameter(name, {"0", "0"});
  ReportFixture report(repository.write());
  report.open(0);
  report.all("Cache Sizes", 0);
  EXPECT_EQ(report.grid().TextMatrix(1, 2), "50");
  EXPECT_EQ(report.grid().TextMatrix(1, 3), "1");
}

// 8 + 40 + 2 + 1 + 1 + 1 + 1 + 1 MB in the start, the same with the automatic 16 for the 8 in the end.
// Nothing ties the keep cache to the database: the 40 are its neighbour's.
TEST(CacheSizes, newerSizesAddUpAndTheLargerOfTwoSettingsCounts) {
  HeadRepository repository("10");
  repository.parameter("db_block_size", {"8192", "8192"})
      .parameter("db_block_buffers", {"0", "0"})
      .parameter("db_cache_size", {"8388608", "8388608"})
      .parameter("__db_cache_size", {"4194304", "16777216"})
      .parameter("shared_pool_size", {"0", "0"})
      .parameter("__shared_pool_size", {"9437184", "10485760"})
      .parameter("log_buffer", {"1024", "1024"})
      .parameter("db_keep_cache_size", {"4194304", "4194304"})
      .parameter("db_recycle_cache_size", {"2097152", "2097152"});
  for (const char* name :
       {"db_2k_cache_size", "db_4k_cache_size", "db_8k_cache_size", "db_16k_cache_size", "db_32k_cache_size"})
    repository.parameter(name, {"1048576", "1048576"});
  ReportFixture report(repository.write());
  report.open(0);
  EXPECT_EQ(columnsOf(report.all("Cache Sizes", 0), 2, 3), "START VALUE|END VALUE\n55|63\n9|10\n|\n|\n");
}

// Without a value the size is null, which a descending sort puts first: the getter can't show it.
TEST(CacheSizes, parameterWithoutAValueIsTheBoxOfItsGetter) {
  HeadRepository repository("10");
  parameters(repository);
  repository.parameter("__shared_pool_size", {""});
  ReportFixture report(repository.write());
  report.open(0);
  report.all("Cache Sizes", 0);
  EXPECT_THAT(report.boxes(), ElementsAre("[Critical] (clsCacheSize){getSHARED_POOL_SIZE} Error"));
}

TEST(CacheSizes, eachOfTheTenParametersIsNeeded) {
  std::vector<std::string> names{"db_block_size", "db_block_buffers", "db_cache_size"};
  names.insert(names.end(), std::begin(kOtherCaches), std::end(kOtherCaches));
  for (const std::string& missing : names) {
    HeadRepository repository("10");
    for (const std::string& name : names)
      if (name != missing) repository.parameter(name, {"8192", "8192"});
    repository.parameter("shared_pool_size", {"0", "0"}).parameter("log_buffer", {"0", "0"});
    ReportFixture report(repository.write());
    report.open(0);
    const std::string before = printed(report.grid());
    EXPECT_EQ(report.all("Cache Sizes", 0), before) << missing;
    EXPECT_THAT(report.boxes(), ElementsAre("[Critical] (clsCacheSize){getBURRER_CACHE_SIZE} Error"))
        << missing;
  }
}

TEST(CacheSizes, sizesAreRoundedToWholeUnits) {
  HeadRepository repository("10", {"10:00:00", "11:00:00"});
  repository
      .parameter("db_block_size", {"2560", "2560"})  // 2.5 KB
      .parameter("db_block_buffers", {"0", "0"})
      .parameter("db_cache_size", {"1572864", "3670016"})  // 1.5, 3.5 MB
      .parameter("shared_pool_size", {"1572864", "3670016"})
      .parameter("log_buffer", {"1536", "0"});  // 1.5 KB
  for (const char* name : kOtherCaches) repository.parameter(name, {"0", "0"});
  ReportFixture report(repository.write());
  report.open(0);
  EXPECT_EQ(columnsOf(report.all("Cache Sizes", 0), 2, 4),
            "START VALUE|END VALUE|OTHER VALUE\n2|4|\n2|4|\n||3\n||2\n");
}

TEST(CacheSizes, missingLogBufferIsTheBoxOfItsGetter) {
  HeadRepository repository("10");
  for (const char* name : {"db_block_size", "db_block_buffers", "db_cache_size"})
    repository.parameter(name, {"8192", "8192"});
  for (const char* name : kOtherCaches) repository.parameter(name, {"0", "0"});
  repository.parameter("shared_pool_size", {"0", "0"});
  ReportFixture report(repository.write());
  report.open(0);
  report.all("Cache Sizes", 0);
  EXPECT_THAT(report.boxes(), ElementsAre("[Critical] (clsCacheSize){getLOG_BUFFER_SIZE} Error"));
}

}  // namespace
}  // namespace kestrelix::testing_support
