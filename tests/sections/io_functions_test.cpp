#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

#include "sections/instance_support.h"

namespace kestrelix::testing_support {
namespace {

using testing::IsEmpty;

const char* const kSummary =
    "NO|FUNCTION|[READ]DATA VOLUME|[READ]REQUESTS/SEC|[READ]DATA VOL/SEC|[WRITE]DATA VOLUME|"
    "[WRITE]REQUESTS/SEC|[WRITE]DATA VOL/SEC|[WAIT]COUNT|[WAIT]AVG TM(MS)\n";
const char* const kDetail =
    "NO|FUNCTION|[READ]SMALL READ REQS|[READ]LARGE READ REQS|[READ]SMALL DATA READ|[READ]LARGE DATA READ|"
    "[WRITE]SMALL WRITE REQS|[WRITE]LARGE WRITE REQS|[WRITE]SMALL DATA WRITN|[WRITE]LARGE DATA WRITN\n";

class IoRepository : public InstanceRepository {
 public:
  IoRepository() : InstanceRepository("11") {
    rows("stats$iostat_function_name", {"function_id", "function_name"},
         {{"1", "RMAN"}, {"2", "LGWR"}, {"3", "Others"}, {"4", "Streams AQ"}, {"5", "Direct Reads"}});
    at("1", "1", {"0", "0", "0", "0", "0", "0", "0", "0", "0", "0"});
    at("2", "1", {"0", "8110", "0", "0", "36", "36", "0", "0", "3", "14400"});
    // Writes alone.
    at("1", "2", {"0", "0", "0", "0", "0", "0", "0", "0", "0", "0"});
    at("2", "2", {"0", "0", "500", "0", "0", "0", "70", "0", "0", "0"});
    at("1", "3", {"10", "0", "100", "0", "100", "5", "0", "0", "0", "10"});
    at("2", "3", {"10", "0", "36100", "0", "3700", "5", "7200", "0", "10000", "10"});
    at("1", "5", {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10"});
    at("2", "5", {"21", "302", "43", "504", "105", "26", "207", "88", "64", "64010"});
    // No row at the start.
    at("2", "4", {"1", "1", "1", "1", "1", "1", "1", "1", "1", "1"});
  }

  /// Megabytes read small, large, written small, large; requests likewise; waits and the time waited.
  void at(std::string_view snapshot, std::string_view function,
          const std::array<std::string_view, 10>& figures) {
    row("stats$iostat_function", {{"snap_id", snapshot},
                                  {"function_id", function},
                                  {"small_read_megabytes", figures[0]},
                                  {"large_read_megabytes", figures[1]},
                                  {"small_write_megabytes", figures[2]},
                                  {"large_write_megabytes", figures[3]},
                                  {"small_read_reqs", figures[4]},
                                  {"large_read_reqs", figures[5]},
                                  {"small_write_reqs", figures[6]},
                                  {"large_write_reqs", figures[7]},
                                  {"number_of_waits", figures[8]},
                                  {"wait_time", figures[9]}});
  }
};

TEST(IoStatByFunction, functionsThatReadShowInFourDigitsAndAUnitByTheirVolume) {
  IoRepository repository;
  OpenReport report(repository);
  // Others: 3600 reads and 7200 writes in 3600 s; 36000 MB = 35.2 GB written, 10 MB a second; no wait time.
  // RMAN: 8110 MB, 2.25 a second; 72 requests, .02 a second; 14400 / 72 / 1000 = .2.
  // Direct Reads: 20 + 300 MB and 100 + 20 requests read, .09 and .03 a second; 40 + 500 MB and 200 + 80
  // requests written, .15 and .08 a second; 64000 / 400 / 1000 = .16.
  EXPECT_EQ(report.all("IO Stat by Function - summary", 0),
            std::string(kSummary) +
                "1|Others| |    1.0 | |   35G|    2.0 |   10.0M|   10K|0\n"
                "2|RMAN| 8110M|     .0 |    2.3M| | | |    3 |0.2\n"
                "3|Direct Reads|  320M|     .0 |     .1M|  540M|     .1 |     .2M|   55 |0.2\n");
  EXPECT_EQ(report.all("IO Stat by Function - summary", 1), kSummary);
  EXPECT_THAT(report.boxes(), IsEmpty());
}

TEST(IoStatByFunction, smallAndLargeStandApartInTheDetail) {
  IoRepository repository;
  OpenReport report(repository);
  EXPECT_EQ(report.all("IO Stat by Function - detail", 0),
            std::string(kDetail) +
                "1|Others| 3600 | | | | 7200 | |   35G| \n"
                "2|RMAN|   36 |   36 | | 8110M| | | | \n"
                "3|Direct Reads|  100 |   20 |   20M|  300M|  200 |   80 |   40M|  500M\n");
  EXPECT_EQ(report.all("IO Stat by Function - detail", 1), kDetail);
}

TEST(IoStatByFunction, aSeriesFollowsOneFunction) {
  IoRepository repository;
  repository.at("3", "1", {"0", "0", "0", "0", "0", "0", "0", "0", "0", "0"});
  repository.at("4", "1", {"0", "0", "0", "0", "5400", "0", "0", "0", "0", "0"});
  OpenReport report(repository);
  report.all("IO Stat by Function - summary", 0);
  EXPECT_EQ(report.col(2),
            "NO|FUNCTION|END TIME|[READ]DATA VOLUME|[READ]REQUESTS/SEC|[READ]DATA VOL/SEC|[WRITE]DATA VOLUME|"
            "[WRITE]REQUESTS/SEC|[WRITE]DATA VOL/SEC|[WAIT]COUNT|[WAIT]AVG TM(MS)|STATUS\n"
            "1|RMAN|2026-01-05 11:00:00| 8110M|     .0 |    2.3M| | | |    3 |0.2|OK\n"
            "2||2026-01-05 12:00:00|||||||||DB RESTART\n"
            "3|RMAN|2026-01-05 13:30:00| |    1.0 | | | | | |0|OK\n");
  report.all("IO Stat by Function - detail", 0);
  EXPECT_EQ(report.col(1),
            "NO|FUNCTION|END TIME|[READ]SMALL READ REQS|[READ]LARGE READ REQS|[READ]SMALL DATA READ|"
            "[READ]LARGE DATA READ|[WRITE]SMALL WRITE REQS|[WRITE]LARGE WRITE REQS|[WRITE]SMALL DATA WRITN|"
            "[WRITE]LARGE DATA WRITN|STATUS\n"
            "1|Others|2026-01-05 11:00:00| 3600 | | | | 7200 | |   35G| |OK\n"
            "2||2026-01-05 12:00:00|||||||||DB RESTART\n"
            "3||2026-01-05 13:30:00|||||||||OK\n");
}

TEST(IoStatByFunction, withoutSecondsTheRatesAreBlank) {
  IoRepository repository;
  repository.snapshot("5", "2026-01-05 13:30:00", "7", "2026-01-05 11:30:00");
  repository.at("4", "1", {"0", "0", "0", "0", "0", "0", "0", "0", "0", "0"});
  repository.at("5", "1", {"0", "20", "0", "30", "0", "10", "0", "10", "0", "0"});
  OpenReport report(repository);
  EXPECT_EQ(report.all("IO Stat by Function - summary", 3),
            std::string(kSummary) + "1|RMAN|   20M| | |   30M| | | |0\n");
}

}  // namespace
}  // namespace kestrelix::testing_support
