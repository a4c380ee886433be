#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

#include "sections/instance_support.h"

namespace kestrelix::testing_support {
namespace {

using testing::IsEmpty;

const char* const kSummary =
    "ALLOC(MB)|USED(MB)|FREEABL(MB)|AVG ALLOC(MB)|STD DEV ALLOC(MB)|MAX ALLOC(MB)|HIST MAX ALLOC(MB)|"
    "NUM PROCS OR ALLOCS\n";
const char* const kTop = "ALLOC(MB)|USED(MB)|FREEABL(MB)|MAX ALLOC(MB)|HIST MAX ALLOC(MB)\n";

class ProcessRepository : public InstanceRepository {
 public:
  explicit ProcessRepository(std::string_view major) : InstanceRepository(major) {}

  /// Bytes allocated, used, freeable, on average, their deviation, at most, at most ever; and a count.
  ProcessRepository& whole(std::string_view snapshot, std::string_view pid, std::string_view program,
                           const std::array<std::string_view, 8>& figures) {
    row("stats$process_rollup", {{"snap_id", snapshot},
                                 {"pid", pid},
                                 {"serial#", "1"},
                                 {"program", program},
                                 {"pga_alloc_mem", figures[0]},
                                 {"pga_used_mem", figures[1]},
                                 {"pga_freeable_mem", figures[2]},
                                 {"avg_pga_alloc_mem", figures[3]},
                                 {"stddev_pga_alloc_mem", figures[4]},
                                 {"max_pga_alloc_mem", figures[5]},
                                 {"max_pga_max_mem", figures[6]},
                                 {"num_processes", figures[7]}});
    return *this;
  }
  /// Bytes allocated, used, on average, their deviation, at most, at most ever; and a count.
  ProcessRepository& category(std::string_view snapshot, std::string_view pid, std::string_view name,
                              const std::array<std::string_view, 7>& figures, std::string_view serial = "1") {
    row("stats$process_memory_rollup", {{"snap_id", snapshot},
                                        {"pid", pid},
                                        {"serial#", serial},
                                        {"category", name},
                                        {"allocated", figures[0]},
                                        {"used", figures[1]},
                                        {"avg_allocated", figures[2]},
                                        {"stddev_allocated", figures[3]},
                                        {"max_allocated", figures[4]},
                                        {"max_max_allocated", figures[5]},
                                        {"non_zero_allocations", figures[6]}});
    return *this;
  }
};

/// 100 MB at the start of pair 0 and 50 MB at its end; snapshot 3 has no row.
ProcessRepository& withSums(ProcessRepository& repository) {
  repository
      .whole("1", "-9", "", {"104910029", "83938509", "5295309", "1625293", "", "11010048", "11010048", "30"})
      .category("1", "-9", "PL/SQL", {"10485760", "5242880", "524288", "1048576", "1048576", "1048576", "28"})
      .category("1", "-9", "SQL", {"20971520", "10485760", "1048576", "1101005", "2097152", "3145728", "12"})
      .category("1", "-9", "Freeable", {"5242880", "", "", "", "", "", ""})
      .whole("2", "-9", "", {"52428800", "", "", "", "", "", "", ""})
      .category("2", "-9", "Other", {"", "", "", "", "", "", "2"})
      .category("2", "-9", "SQL", {"1048576", "1048576", "1048576", "0", "1048576", "1048576", "1"})
      .whole("4", "-9", "", {"157286400", "", "", "", "", "", "", "7"})
      // Processes of their own are no sums.
      .whole("1", "10", "oracle@node1 (DBW0)", {"1", "1", "1", "1", "1", "1", "1", "1"})
      .category("1", "10", "SQL", {"1", "1", "1", "1", "1", "1", "1"});
  return repository;
}

TEST(ProcessMemorySummary, eachSnapshotHasAHeadRowOfDashesAndItsCategoriesBySize) {
  for (const char* major : {"10", "11"}) {
    ProcessRepository repository(major);
    withSums(repository);
    OpenReport report(repository);
    // A trace more than 100.05, 80.05, 5.05, 1.55 and 1.05 MB. 10.5 MB are shown as 11, without decimals.
    // What is not known sorts before the largest.
    EXPECT_EQ(report.all("Process Memory Summary Stats", 0),
              std::string("NO|SNAP|CATEGORY|") + kSummary +
                  "1|B|---------|100.1|80.1|5.1|1.6| |11|11|30\n"
                  "2|B|SQL|20|10| |1|1.1|2|3|12\n"
                  "3|B|PL/SQL|10|5| |.5|1|1|1|28\n"
                  "4|B|Freeable|5| | | | | | | \n"
                  "5|E|---------|50| | | | | | | \n"
                  "6|E|Other| | | | | | | |2\n"
                  "7|E|SQL|1|1| |1|0|1|1|1\n");
    EXPECT_THAT(report.boxes(), IsEmpty());
  }
}

TEST(ProcessMemorySummary, aRestartChangesNothing) {
  ProcessRepository repository("10");
  withSums(repository);
  OpenReport report(repository);
  EXPECT_EQ(report.all("Process Memory Summary Stats", 1), std::string("NO|SNAP|CATEGORY|") + kSummary +
                                                               "1|B|---------|50| | | | | | | \n"
                                                               "2|B|Other| | | | | | | |2\n"
                                                               "3|B|SQL|1|1| |1|0|1|1|1\n");
}

TEST(ProcessMemorySummary, beginAndEndRowsLeadToSeriesOfTheirOwn) {
  ProcessRepository repository("11");
  withSums(repository);
  OpenReport report(repository);
  report.all("Process Memory Summary Stats", 0);
  EXPECT_EQ(report.col(2), std::string("NO|SNAP|CATEGORY|START TIME|") + kSummary +
                               "1|B|SQL|2026-01-05 10:00:00|20|10| |1|1.1|2|3|12\n"
                               "2|B|SQL|2026-01-05 11:00:00|1|1| |1|0|1|1|1\n"
                               "3|||2026-01-05 12:00:00||||||||\n");
  report.all("Process Memory Summary Stats", 0);
  EXPECT_EQ(report.col(5), std::string("NO|SNAP|CATEGORY|END TIME|") + kSummary +
                               "1|E|---------|2026-01-05 11:00:00|50| | | | | | | \n"
                               "2|||2026-01-05 12:00:00||||||||\n"
                               "3|E|---------|2026-01-05 13:30:00|150| | | | | | |7\n");
  EXPECT_THAT(report.boxes(), IsEmpty());
}

/// The writer with a trace more than 10.05 MB, a client with 20 MB, a program without brackets; at the end
/// process 10 is another program, and then there is a client alone. The rows that sum up all are there too.
ProcessRepository& withProcesses(ProcessRepository& repository) {
  repository
      .whole("1", "10", "oracle@node1 (DBW0)",
             {"10538189", "5295309", "1101005", "", "", "10538189", "11062477", ""})
      .category("1", "10", "SQL", {"1048576", "524288", "", "", "1048576", "1048576", ""}, "99")
      .category("1", "10", "Other", {"8388608", "", "", "", "8388608", "8388608", ""})
      .whole("1", "12", "oracle@node1 (TNS V1-V3)",
             {"20971520", "20971520", "0", "", "", "20971520", "20971520", ""})
      .category("1", "12", "PL/SQL", {"2097152", "1048576", "", "", "2097152", "2097152", ""})
      .whole("1", "13", "sqlplus", {"1048576", "1048576", "", "", "", "1048576", "1048576", ""})
      .whole("1", "-9", "", {"999", "", "", "", "", "", "", ""})
      .category("1", "-9", "SQL", {"999", "", "", "", "", "", ""})
      .whole("2", "10", "oracle@node1 (PMON)", {"3145728", "3145728", "0", "", "", "3145728", "3145728", ""})
      .category("2", "10", "Other", {"2097152", "", "", "", "2097152", "2097152", ""})
      .whole("3", "12", "oracle@node1 (TNS V1-V3)",
             {"1048576", "1048576", "0", "", "", "1048576", "1048576", ""})
      .category("3", "12", "Other", {"1048576", "", "", "", "1048576", "1048576", ""});
  return repository;
}

TEST(TopProcessMemory, processesShowByTheirWholeMemoryEachBeforeItsCategories) {
  for (const char* major : {"10", "11"}) {
    ProcessRepository repository(major);
    withProcesses(repository);
    OpenReport report(repository);
    // The head row's name is the text in brackets, a blank, and dashes up to 13 characters. Without brackets
    // nothing is left of the program but the blank.
    EXPECT_EQ(report.all("Top Process Memory (by component)", 0),
              std::string("NO|SNAP|PID|CATEGORY|") + kTop +
                  "1|B|12|TNS V1-V3 ---|20|20|0|20|20\n"
                  "2|B|12|PL/SQL|2|1| |2|2\n"
                  "3|B|10|DBW0 --------|10.1|5.1|1.1|10.1|10.6\n"
                  "4|B|10|Other|8| | |8|8\n"
                  "5|B|10|SQL|1|.5| |1|1\n"
                  "6|B|13| ------------|1|1| |1|1\n"
                  "7|E|10|PMON --------|3|3|0|3|3\n"
                  "8|E|10|Other|2| | |2|2\n");
    EXPECT_EQ(report.all("Top Process Memory (by component)", 1), std::string("NO|SNAP|PID|CATEGORY|") +
                                                                      kTop +
                                                                      "1|B|10|PMON --------|3|3|0|3|3\n"
                                                                      "2|B|10|Other|2| | |2|2\n"
                                                                      "3|E|12|TNS V1-V3 ---|1|1|0|1|1\n"
                                                                      "4|E|12|Other|1| | |1|1\n");
    EXPECT_THAT(report.boxes(), IsEmpty());
  }
}

TEST(TopProcessMemory, aSeriesFollowsNumberAndCategoryWhateverTheProgram) {
  ProcessRepository repository("10");
  withProcesses(repository);
  OpenReport report(repository);
  report.all("Top Process Memory (by component)", 0);
  EXPECT_EQ(report.col(4), std::string("NO|SNAP|PID|CATEGORY|START TIME|") + kTop +
                               "1|B|10|Other|2026-01-05 10:00:00|8| | |8|8\n"
                               "2|B|10|Other|2026-01-05 11:00:00|2| | |2|2\n"
                               "3||||2026-01-05 12:00:00|||||\n");
  report.all("Top Process Memory (by component)", 0);
  EXPECT_EQ(report.col(7), std::string("NO|SNAP|PID|CATEGORY|END TIME|") + kTop +
                               "1|E|10|PMON --------|2026-01-05 11:00:00|3|3|0|3|3\n"
                               "2||||2026-01-05 12:00:00|||||\n"
                               "3||||2026-01-05 13:30:00|||||\n");
}

TEST(TopProcessMemory, theNameOfAProgramWithoutBracketsIsAKeyToo) {
  ProcessRepository repository("11");
  withProcesses(repository);
  OpenReport report(repository);
  report.all("Top Process Memory (by component)", 0);
  EXPECT_EQ(report.col(6), std::string("NO|SNAP|PID|CATEGORY|START TIME|") + kTop +
                               "1|B|13| ------------|2026-01-05 10:00:00|1|1| |1|1\n"
                               "2||||2026-01-05 11:00:00|||||\n"
                               "3||||2026-01-05 12:00:00|||||\n");
  EXPECT_THAT(report.boxes(), IsEmpty());
}

}  // namespace
}  // namespace kestrelix::testing_support
