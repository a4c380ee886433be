// What the views of one and of all pairs tell of how far they have come.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "sections/head_support.h"

namespace kestrelix::testing_support {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(ColProgress, everyPairIsToldAheadOfItsReadingAndAnAllViewTellsNothing) {
  HeadRepository repository("10");
  repository.sysstat("logons current", {"8", "3", "0", "3"})
      .sysstat("opened cursors current", {"12", "10", "4", "1"});
  ReportFixture report(repository.write());
  report.open(0);
  report.all("Snapshot", 0);
  EXPECT_THAT(report.told(), IsEmpty());
  report.col(1);
  EXPECT_THAT(report.told(), ElementsAre("1 / 3", "2 / 3", "3 / 3"));
}

TEST(ColProgress, aPairThatFailsIsTheLastThatIsTold) {
  HeadRepository repository("10");
  repository.sysstat("logons current", {"8", "3", "0", "3"})
      .sysstat("opened cursors current", {"12", "-", "4", "1"});
  ReportFixture report(repository.write());
  report.open(0);
  report.all("Snapshot", 2);
  report.col(1);
  EXPECT_THAT(report.boxes(), ElementsAre("[Critical] (clsSnapshot){getSTART_SNAPSHOT} Error"));
  EXPECT_THAT(report.told(), ElementsAre("1 / 3", "2 / 3"));
}

}  // namespace
}  // namespace kestrelix::testing_support
