// Views that are shown again and again take no more memory than the first time.
#include <gtest/gtest.h>
#include <malloc.h>

#include "demo/demo.h"
#include "demo/demo_support.h"
#include "support/report_fixture.h"

namespace kestrelix::demo {
namespace {

/// Shows the All view of every Section of the open instance and the series of its first row.
void showEverything(testing_support::ReportFixture& report) {
  for (const std::string& name : report.sections()) {
    report.all(name, 0);
    if (report.grid().Rows() > 1) report.col(1);
  }
}

TEST(Memory, repeatedViewsKeepNothing) {
#ifdef __SANITIZE_ADDRESS__
  GTEST_SKIP() << "the sanitizer counts what is lost";
#endif
  const std::filesystem::path file =
      std::filesystem::temp_directory_path() / ("kestrelix-memory-" + std::to_string(::getpid()) + ".sqlite");
  makeDemo(file, {.snapshots = 5});
  testing_support::ReportFixture report(file);
  std::filesystem::remove(file);
  report.open(3);
  // Statements are kept from the first time on.
  for (int i = 0; i < 3; ++i) showEverything(report);
  const auto before = mallinfo2().uordblks;
  for (int i = 0; i < 10; ++i) showEverything(report);
  // The fixture notes each step. The smallest views, kept a thousand times, would be far above the bound.
  constexpr std::size_t kNotes = 512 << 10;
  const auto after = mallinfo2().uordblks;
  RecordProperty("grown", std::to_string(static_cast<long long>(after) - static_cast<long long>(before)));
  EXPECT_LT(after, before + kNotes);
  EXPECT_EQ(report.boxes(), std::vector<std::string>(13, report.boxes().empty() ? "" : report.boxes()[0]));
}

}  // namespace
}  // namespace kestrelix::demo
