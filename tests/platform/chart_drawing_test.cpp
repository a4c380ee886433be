#include "platform/chart_drawing.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrelix {
namespace {

using testing::ElementsAre;

TEST(ChartDrawing, stepsOfTheAxisAreRound) {
  struct Case {
    const char* maximum;
    int count;
    int decimals;
  };
  const Case cases[] = {{"1", 5, 1},                                                                // .2
                        {"10", 5, 0},                                                               // 2
                        {"0.1", 5, 2},                                                              // .02
                        {"2", 4, 1},                                                                // .5
                        {"20000", 4, 0},                                                            // 5000
                        {"0.02", 4, 3},                                                             // .005
                        {"3", 3, 0},     {"0.07", 7, 2}, {"4", 4, 0}, {"50", 5, 0}, {"0.6", 3, 1},  // .2
                        {"800", 4, 0},                                                              // 200
                        {"9", 9, 0}};
  for (const Case& c : cases) {
    EXPECT_EQ(axisSteps(c.maximum).count, c.count) << c.maximum;
    EXPECT_EQ(axisSteps(c.maximum).decimals, c.decimals) << c.maximum;
  }
}

TEST(ChartDrawing, timesAreShortenedToHourOverDay) {
  EXPECT_THAT(labelLines("2026-01-05 11:00:07"), ElementsAre("11:00", "01-05"));
}

TEST(ChartDrawing, otherLabelsStay) {
  for (const char* label : {"", "2026-01-05", "DB RESTART", "2026/01/05 11:00:07", "12"})
    EXPECT_THAT(labelLines(label), ElementsAre(label));
}

}  // namespace
}  // namespace kestrelix
