#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "sections/instance_support.h"

namespace kestrelix::testing_support {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const char* const kSection = "Buffer Pool Advisory";
const char* const kHeadings =
    "NO|POOL|SIZE FOR EST(MB)|SIZE FACTR|BUFFER(THOUSANDS)|EST PHYS READ FACTR|"
    "ESTIMATED PHYS READS(THOUSANDS)|EST PHYS READ TIME|EST %DBTIME FOR READS\n";
const char* const kHeadingsOf9 =
    "NO|POOL|SIZE FOR ESTIMATE(M)|SIZE FACTR|BUFFERS FOR ESTIMATE|EST PHYSICAL READ FACTOR|"
    "ESTIMATED PHYSICAL READS\n";

/// The pool that a row of a series is of, empty where it has none.
std::string poolOf(OpenReport& report, int row) { return report.grid().TextMatrix(row, 1); }

class AdviceRepository : public InstanceRepository {
 public:
  explicit AdviceRepository(std::string_view major) : InstanceRepository(major), timed_(major != "9") {}

  /// An estimate of 8000 buffers, 2500000 reads (1.25 times as many), 900 seconds, 12.5 % of the time.
  AdviceRepository& advice(std::string_view snapshot, std::string_view pool, std::string_view blockSize,
                           std::string_view megabytes, std::string_view factor,
                           std::string_view buffers = "8000", std::string_view reads = "2500000") {
    const std::string id(std::to_string(++ids_));
    if (timed_)
      row("stats$db_cache_advice", {{"snap_id", snapshot},
                                    {"id", id},
                                    {"name", pool},
                                    {"block_size", blockSize},
                                    {"buffers_for_estimate", buffers},
                                    {"size_for_estimate", megabytes},
                                    {"size_factor", factor},
                                    {"estd_physical_read_factor", "1.25"},
                                    {"estd_physical_reads", reads},
                                    {"estd_physical_read_time", "900"},
                                    {"estd_pct_of_db_time_for_reads", "12.5"}});
    else
      row("stats$db_cache_advice", {{"snap_id", snapshot},
                                    {"id", id},
                                    {"name", pool},
                                    {"block_size", blockSize},
                                    {"buffers_for_estimate", buffers},
                                    {"size_for_estimate", megabytes},
                                    {"size_factor", factor},
                                    {"estd_physical_read_factor", "1.25"},
                                    {"estd_physical_reads", reads}});
    return *this;
  }

  /// At the end of pair 2, those that differ from 64 MB of the default pool, factor .5, in one of the three.
  AdviceRepository& strangers() {
    return advice("4", "KEEP", "8192", "64", ".5")
        .advice("4", "DEFAULT", "8192", "96", ".5")
        .advice("4", "DEFAULT", "8192", "64", "1");
  }

  /// The "SIZE FACTR" of the one estimate that the repository has.
  std::string factor() {
    OpenReport report(*this);
    report.all(kSection, 0);
    EXPECT_THAT(report.boxes(), IsEmpty());
    return report.grid().Rows() == 2 ? report.grid().TextMatrix(1, 3) : "no row";
  }

 private:
  bool timed_;
  int ids_ = 0;
};

TEST(BufferPoolAdvisory, poolsOfTheDefaultBlockSizeComeFirstUnderTheirLetter) {
  for (const char* major : {"10", "11"}) {
    AdviceRepository repository(major);
    repository.parameter("db_block_size", "8192");
    repository.advice("2", "DEFAULT", "2048", "16", "1")
        .advice("2", "RECYCLE", "8192", "8", "1")
        .advice("2", "KEEP", "8192", "32", "1")
        .advice("2", "DEFAULT", "16384", "16", "1")
        .advice("2", "DEFAULT", "8192", "128", "1", "15999", "2000500")
        .advice("2", "DEFAULT", "8192", "64", ".5")
        .advice("2", "DEFAULT", "8192", "256", "2", "32000", "0");
    OpenReport report(repository);
    // 8000 and 15999 buffers are 8 and 16 thousand, 2000500 reads 2001; a factor of 1.25 shows as 1.3. The
    // estimate without reads is left out.
    EXPECT_EQ(report.all(kSection, 0), std::string(kHeadings) +
                                           "1|D|64|0.5|8|1.3|2500|900|12.5\n"
                                           "2|D|128|1|16|1.3|2001|900|12.5\n"
                                           "3|K|32|1|8|1.3|2500|900|12.5\n"
                                           "4|R|8|1|8|1.3|2500|900|12.5\n"
                                           "5|2k|16|1|8|1.3|2500|900|12.5\n"
                                           "6|16k|16|1|8|1.3|2500|900|12.5\n");
    EXPECT_EQ(report.all(kSection, 1), kHeadings);
    // There is no estimate at the end of pair 2.
    EXPECT_EQ(report.all(kSection, 2), kHeadings);
    EXPECT_THAT(report.boxes(), IsEmpty());
  }
}

TEST(BufferPoolAdvisory, inRelease9CountsAreWholeAndThereAreNoTimes) {
  AdviceRepository repository("9");
  repository.parameter("db_block_size", "8192");
  repository.advice("2", "DEFAULT", "16384", "16", "1")
      .advice("2", "DEFAULT", "8192", "64", ".46")
      .advice("2", "DEFAULT", "8192", "128", "1", "8000", "0");
  OpenReport report(repository);
  EXPECT_EQ(report.all(kSection, 0), std::string(kHeadingsOf9) +
                                         "1|D|64|0.5|8000|1.25|2500000\n"
                                         "2|16k|16|1|8000|1.25|2500000\n");
  EXPECT_EQ(report.col(2),
            "NO|POOL|SIZE FOR ESTIMATE(M)|SIZE FACTR|END TIME|BUFFERS FOR ESTIMATE|EST PHYSICAL READ FACTOR|"
            "ESTIMATED PHYSICAL READS|STATUS\n"
            "1|16k|16|1|2026-01-05 11:00:00|8000|1.25|2500000|OK\n"
            "2||||2026-01-05 12:00:00||||DB RESTART\n"
            "3||||2026-01-05 13:30:00||||OK\n");
  EXPECT_EQ(report.all(kSection, 1), kHeadingsOf9);
}

TEST(BufferPoolAdvisory, aSeriesFollowsOneSizeOfOnePool) {
  AdviceRepository repository("10");
  repository.parameter("db_block_size", "8192");
  repository.advice("2", "DEFAULT", "8192", "64", ".5")
      .advice("2", "DEFAULT", "8192", "128", "1")
      .advice("4", "DEFAULT", "8192", "64", ".5", "9000")
      .advice("4", "KEEP", "8192", "64", ".5");
  OpenReport report(repository);
  report.all(kSection, 0);
  EXPECT_EQ(report.col(1),
            "NO|POOL|SIZE FOR EST(MB)|SIZE FACTR|END TIME|BUFFER(THOUSANDS)|EST PHYS READ FACTR|"
            "ESTIMATED PHYS READS(THOUSANDS)|EST PHYS READ TIME|EST %DBTIME FOR READS|STATUS\n"
            "1|D|64|0.5|2026-01-05 11:00:00|8|1.3|2500|900|12.5|OK\n"
            "2||||2026-01-05 12:00:00||||||DB RESTART\n"
            "3|D|64|0.5|2026-01-05 13:30:00|9|1.3|2500|900|12.5|OK\n");
  EXPECT_THAT(report.boxes(), IsEmpty());
}

TEST(BufferPoolAdvisory, aSeriesNeedsPoolSizeAndFactor) {
  for (const char* major : {"9", "10"}) {
    AdviceRepository repository(major);
    repository.parameter("db_block_size", "8192");
    repository.advice("2", "DEFAULT", "8192", "64", ".5").strangers();
    OpenReport report(repository);
    report.all(kSection, 0);
    report.col(1);
    EXPECT_EQ(poolOf(report, 1), "D") << major;
    EXPECT_EQ(poolOf(report, 3), "") << major;
  }
}

TEST(BufferPoolAdvisory, theBlockSizeInForceAtTheStartCountsBeforeTheOneThatWasSet) {
  AdviceRepository repository("10");
  repository.rows(
      "stats$parameter", {"snap_id", "name", "value"},
      {{"1", "db_block_size", "8192"}, {"1", "__db_block_size", "16384"}, {"2", "db_block_size", "8192"}});
  repository.advice("2", "DEFAULT", "8192", "8", "1").advice("2", "DEFAULT", "16384", "16", "1");
  OpenReport report(repository);
  EXPECT_EQ(report.all(kSection, 0), std::string(kHeadings) +
                                         "1|D|16|1|8|1.3|2500|900|12.5\n"
                                         "2|8k|8|1|8|1.3|2500|900|12.5\n");
}

/// An estimate without a factor takes its megabytes times 1024 over the bytes of its cache.
TEST(BufferPoolAdvisory, aMissingFactorIsTakenOverTheCacheOfThePool) {
  const struct {
    const char* pool;
    const char* blockSize;
    const char* defaultBlockSize;
    const char* parameter;
  } cases[] = {{"DEFAULT", "2048", "8192", "db_2k_cache_size"},
               {"DEFAULT", "4096", "8192", "db_4k_cache_size"},
               {"DEFAULT", "8192", "4096", "db_8k_cache_size"},
               {"DEFAULT", "16384", "8192", "db_16k_cache_size"},
               {"DEFAULT", "32768", "8192", "db_32k_cache_size"},
               {"DEFAULT", "8192", "8192", "__db_cache_size"},
               {"KEEP", "8192", "8192", "db_keep_cache_size"},
               {"RECYCLE", "8192", "8192", "db_recycle_cache_size"}};
  for (const auto& [pool, blockSize, defaultBlockSize, parameter] : cases) {
    AdviceRepository repository("10");
    repository.parameter("db_block_size", defaultBlockSize).parameter(parameter, "32768");
    repository.advice("2", pool, blockSize, "24", "");
    // 24 * 1024 / 32768 = .75
    EXPECT_EQ(repository.factor(), "0.8") << parameter;
  }
}

TEST(BufferPoolAdvisory, theCacheSizesAreThoseOfTheEnd) {
  AdviceRepository repository("10");
  repository.rows(
      "stats$parameter", {"snap_id", "name", "value"},
      {{"1", "db_block_size", "8192"}, {"1", "__db_cache_size", "4096"}, {"2", "__db_cache_size", "32768"}});
  repository.advice("2", "DEFAULT", "8192", "24", "");
  EXPECT_EQ(repository.factor(), "0.8");
}

TEST(BufferPoolAdvisory, release9SizesItsDefaultPoolByTheParameterThatWasSet) {
  AdviceRepository repository("9");
  repository.parameter("db_block_size", "8192")
      .parameter("db_cache_size", "32768")
      .parameter("__db_cache_size", "1");
  repository.advice("2", "DEFAULT", "8192", "16", "");
  EXPECT_EQ(repository.factor(), "0.5");
}

TEST(BufferPoolAdvisory, withoutTheNewerParametersBuffersTimesTheBlockSizeCount) {
  for (const char* major : {"9", "10"}) {
    AdviceRepository repository(major);
    repository.parameter("db_block_size", "8192").parameter("db_block_buffers", "4");
    repository.parameter(std::string(major) == "9" ? "db_cache_size" : "__db_cache_size", "0");
    repository.advice("2", "DEFAULT", "8192", "64", "");
    // 64 * 1024 / (4 * 8192)
    EXPECT_EQ(repository.factor(), "2") << major;
  }
}

TEST(BufferPoolAdvisory, theOldStyleOfPoolParametersIsReadInAllItsForms) {
  for (const char* value : {"500", "buffers:500", "buffers:500, lru_latches:2", "lru_latches:2, buffers:500"})
    for (const auto& [pool, parameter] :
         {std::pair{"KEEP", "buffer_pool_keep"}, std::pair{"RECYCLE", "buffer_pool_recycle"}}) {
      AdviceRepository repository("9");
      repository.parameter("db_block_size", "8192").parameter(parameter, value);
      repository.advice("2", pool, "8192", "2000", "");
      // 2000 * 1024 / (500 * 8192)
      EXPECT_EQ(repository.factor(), "0.5") << parameter << " = " << value;
    }
}

TEST(BufferPoolAdvisory, aMissingFactorWithoutACacheIsADivisionByZero) {
  AdviceRepository repository("10");
  repository.parameter("db_block_size", "8192");
  repository.advice("2", "KEEP", "8192", "16", "");
  OpenReport report(repository);
  report.grid().TextMatrix(0, 0, "former");
  EXPECT_EQ(report.all(kSection, 0).substr(0, 6), "former");
  EXPECT_THAT(report.boxes(),
              ElementsAre("[Critical] (clsBufferPoolAdvisory){getBUFFER_POOL_ADVISORY_ALL} Error"));
}

TEST(BufferPoolAdvisory, withoutABlockSizeABoxComesAndEveryPoolShowsUnderItsSize) {
  AdviceRepository repository("10");
  repository.advice("2", "DEFAULT", "8192", "64", ".5");
  OpenReport report(repository);
  EXPECT_EQ(report.all(kSection, 0), std::string(kHeadings) + "1|8k|64|0.5|8|1.3|2500|900|12.5\n");
  EXPECT_THAT(report.boxes(), ElementsAre("[Critical] (clsBufferPoolAdvisory){getBLOCK_SIZE} Error"));
}

TEST(BufferPoolAdvisory, aFailedFetchOfTheCacheSizesShowsTwoBoxesAndGoesOn) {
  AdviceRepository repository("10");
  repository.parameter("db_block_size", "8192").parameter("db_2k_cache_size", "a lot");
  repository.advice("2", "DEFAULT", "8192", "64", ".5");
  OpenReport report(repository);
  EXPECT_EQ(report.all(kSection, 0), std::string(kHeadings) + "1|D|64|0.5|8|1.3|2500|900|12.5\n");
  EXPECT_THAT(report.boxes(), ElementsAre("[Critical] (clsBufferPoolAdvisory){getCACHE_SIZE} Error",
                                          "[Critical] (clsBufferPoolAdvisory){setBAIND_VALUE} Error"));
}

TEST(BufferPoolAdvisory, aBlockSizeThatIsNoNumberEndsTheBinding) {
  AdviceRepository repository("10");
  repository.parameter("db_block_size", "8K");
  repository.advice("2", "DEFAULT", "8192", "64", ".5");
  OpenReport report(repository);
  report.grid().TextMatrix(0, 0, "former");
  EXPECT_EQ(report.all(kSection, 0).substr(0, 6), "former");
  EXPECT_THAT(report.boxes(), ElementsAre("[Critical] (clsBufferPoolAdvisory){setBAIND_VALUE} Error"));
}

}  // namespace
}  // namespace kestrelix::testing_support
