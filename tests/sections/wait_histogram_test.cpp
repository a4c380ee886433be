#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "sections/head_support.h"

namespace kestrelix::testing_support {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string kHeadings = "NO|EVENT|TOTAL WAITS|<1ms|<2ms|<4ms|<8ms|<16ms|<32ms|<=1s|>1s\n";

/// Events with their waits by span; each event has its row in stats$system_event at every snapshot that has
/// any.
class HistogramRepository : public HeadRepository {
 public:
  using HeadRepository::HeadRepository;

  HistogramRepository& span(std::string_view event, std::string_view milliseconds, const Values& counts) {
    const auto [known, fresh] = ids_.try_emplace(std::string(event), std::to_string(ids_.size() + 1));
    if (fresh)
      series("stats$system_event", {{"event", event}, {"event_id", known->second}}, "total_waits",
             {"1", "1", "1", "1"});
    series("stats$event_histogram", {{"event_id", known->second}, {"wait_time_milli", milliseconds}},
           "wait_count", counts);
    return *this;
  }

 private:
  std::map<std::string, std::string> ids_;
};

// log file sync: 200 waits of which 50 below 1 ms, 100 in 64 to 1024, 33 above, 17 below 32; db file read is
// new.
void spans(HistogramRepository& repository) {
  repository.span("log file sync", "1", {"10", "60", "0", "8"})
      .span("log file sync", "32", {"0", "17", "0", "0"})
      .span("log file sync", "64", {"1", "21", "0", "0"})
      .span("log file sync", "512", {"0", "50", "0", "0"})
      .span("log file sync", "1024", {"0", "30", "0", "0"})
      .span("log file sync", "2048", {"5", "25", "0", "0"})
      .span("log file sync", "4096", {"0", "13", "0", "0"})
      .span("db file read", "2", {"-", "2", "2", "2"})
      .span("db file read", "4", {"-", "1", "1", "1"})
      .span("unchanged", "1", {"9", "9", "9", "9"})
      .span("a client", "8", {"0", "1", "0", "0"})
      .span("a client", "16", {"0", "2999", "0", "0"})
      .idle("a client");
}

TEST(WaitEventHistogram, percentagesByAlphabetAndIdleEventsLast) {
  for (const char* version : {"10", "11"}) {
    HistogramRepository repository(version);
    spans(repository);
    ReportFixture report(repository.write());
    report.open(0);
    // A third of 3 waits is 33.3 percent, 1 of 3000 is .0; a span that gained nothing is a blank, not 0.
    EXPECT_EQ(report.all("Wait Event Histogram", 0),
              kHeadings +
                  "1|db file read|3 | | 66.7| 33.3| | | | | \n"
                  "2|log file sync|200 | 25.0| | | | |  8.5| 50.0| 16.5\n"
                  "3|a client|3000 | | | |   .0|100.0| | | \n");
    EXPECT_THAT(report.boxes(), IsEmpty());
  }
}

TEST(WaitEventHistogram, restartedPairHasHeadingsAlone) {
  HistogramRepository repository("11");
  spans(repository);
  ReportFixture report(repository.write());
  report.open(0);
  EXPECT_EQ(report.all("Wait Event Histogram", 1), kHeadings);
}

TEST(WaitEventHistogram, seriesOfAnEvent) {
  HistogramRepository repository("10");
  spans(repository);
  ReportFixture report(repository.write());
  report.open(0);
  report.all("Wait Event Histogram", 0);
  EXPECT_EQ(report.col(2),
            "NO|EVENT|END TIME|TOTAL WAITS|<1ms|<2ms|<4ms|<8ms|<16ms|<32ms|<=1s|>1s|STATUS\n"
            "1|log file sync|2026-01-05 11:00:00|200 | 25.0| | | | |  8.5| 50.0| 16.5|OK\n"
            "2||2026-01-05 12:00:00||||||||||DB RESTART\n"
            "3|log file sync|2026-01-05 13:00:00|8 |100.0| | | | | | | |OK\n");
  report.all("Wait Event Histogram", 0);
  EXPECT_EQ(columnsOf(report.col(1), 1, 3),
            "EVENT|END TIME|TOTAL WAITS\n"
            "db file read|2026-01-05 11:00:00|3 \n"
            "|2026-01-05 12:00:00|\n"
            "|2026-01-05 13:00:00|\n");
  EXPECT_THAT(report.boxes(), IsEmpty());
}

TEST(WaitEventHistogram, totalIsShortenedToFourDigitsAndALetter) {
  const std::pair<const char*, const char*> totals[] = {{"9999", "9999 "},
                                                        {"10000", "10K"},
                                                        {"10999", "10K"},
                                                        {"9999999", "9999K"},
                                                        {"10000000", "10M"},
                                                        {"9999999999", "9999M"},
                                                        {"10000000000", "10G"},
                                                        {"9999999999999", "9999G"},
                                                        {"10000000000000", "10T"},
                                                        {"9999999999999999", "9999T"},
                                                        {"10000000000000000", "10P"},
                                                        {"12345678901234567890", "12345"}};
  for (const auto& [count, shown] : totals) {
    HistogramRepository repository("10");
    repository.span("log file sync", "1", {"0", count});
    ReportFixture report(repository.write());
    report.open(0);
    EXPECT_EQ(report.all("Wait Event Histogram", 0),
              kHeadings + "1|log file sync|" + shown + "|100.0| | | | | | | \n");
  }
}

// 5 fewer below 1 ms and 10 more below 2 ms: 5 waits, -100 and 200 percent, cut to five characters of "
// 100.0-".
TEST(WaitEventHistogram, lossOfASpanIsCutToFiveCharacters) {
  HistogramRepository repository("10");
  repository.span("log file sync", "1", {"5", "0"}).span("log file sync", "2", {"0", "10"});
  ReportFixture report(repository.write());
  report.open(0);
  EXPECT_EQ(report.all("Wait Event Histogram", 0),
            kHeadings + "1|log file sync|5 |100.0|200.0| | | | | | \n");
}

TEST(WaitEventHistogram, missingTableIsTheBoxOfTheView) {
  HistogramRepository repository("10");
  repository.without("stats$event_histogram");
  ReportFixture report(repository.write());
  report.open(0);
  const std::string before = printed(report.grid());
  EXPECT_EQ(report.all("Wait Event Histogram", 0), before);
  EXPECT_THAT(report.boxes(),
              ElementsAre("[Critical] (clsWaitEventHistogram){getWAIT_EVENT_HISTOGRAM} Error"));
}

}  // namespace
}  // namespace kestrelix::testing_support
