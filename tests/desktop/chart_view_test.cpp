// The chart's widget on an offscreen display.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QToolTip>

#include "desktop/ChartView.h"
#include "desktop/fonts.h"

namespace kestrelix {
namespace {

class ChartViewTest : public testing::Test {
 protected:
  ChartViewTest() {
    chart.RowCount(20);
    for (int k = 1; k <= 20; ++k) set(k, "", "0");
    chart.TitleText("PER SECOND[2/2]");
    chart.valueScale() = {false, "0.07", "0"};
    set(1, "2026-01-05 11:00:07", "0.07");
    set(2, "2026-01-05 12:00:03", "0");
    view.resize(761, 473);
    view.show();
    QApplication::processEvents();
  }

  void set(int k, const char* label, const char* value) {
    chart.RowLabel(k, label);
    chart.Row(k);
    chart.Data(value);
  }
  const QBarSet& bars() { return *static_cast<QBarSeries*>(view.chart()->series().at(0))->barSets().at(0); }
  /// A place in the column of point k, so many parts of its height below the top.
  QPoint inColumn(int k, double down) {
    const QRectF area = view.chart()->plotArea();
    return view.mapFromScene(
        QPointF(area.left() + (k - 0.5) * area.width() / 20, area.top() + down * area.height()));
  }
  QColor colourAt(const QPoint& place) { return view.viewport()->grab().toImage().pixelColor(place); }

  Chart chart{"MSChartCommon"};
  ChartView view{chart, fixedFont(9), nullptr};
};

TEST_F(ChartViewTest, showsTitleAxisAndPoints) {
  EXPECT_EQ(view.chart()->title(), "PER SECOND[2/2]");
  EXPECT_EQ(view.accessibleDescription(), "PER SECOND[2/2]");
  EXPECT_EQ(bars().count(), 20);
  EXPECT_DOUBLE_EQ(bars().at(0), 0.07);
  const auto* values = static_cast<QValueAxis*>(view.chart()->axes(Qt::Vertical).at(0));
  EXPECT_DOUBLE_EQ(values->max(), 0.07);
  EXPECT_DOUBLE_EQ(values->min(), 0);
  EXPECT_EQ(values->labelFormat(), "%.2f");
  EXPECT_EQ(values->tickCount(), 8);
}

TEST_F(ChartViewTest, aBarReachesItsValueAndAnEmptyPointHasNone) {
  EXPECT_NE(colourAt(inColumn(1, 0.5)), QColor(Qt::white));
  EXPECT_EQ(colourAt(inColumn(1, 0.5)), colourAt(inColumn(1, 0.05)));
  EXPECT_EQ(colourAt(inColumn(2, 0.55)), QColor(Qt::white));
  EXPECT_EQ(colourAt(inColumn(20, 0.95)), QColor(Qt::white));
}

TEST_F(ChartViewTest, anotherPageShowsInPlace) {
  set(1, "2026-01-05 15:00:00", "3");
  chart.valueScale().Maximum = "4";
  chart.Visible(false);
  chart.TitleText("PER SECOND[1/2]");
  chart.Visible(true);
  chart.Refresh();
  EXPECT_TRUE(view.isVisible()) << "nothing flickers while a page is filled";
  QApplication::processEvents();
  EXPECT_TRUE(view.isVisible());
  EXPECT_EQ(view.chart()->title(), "PER SECOND[1/2]");
  EXPECT_DOUBLE_EQ(bars().at(0), 3);
  EXPECT_EQ(colourAt(inColumn(1, 0.1)), QColor(Qt::white));
  EXPECT_NE(colourAt(inColumn(1, 0.5)), QColor(Qt::white));
}

TEST_F(ChartViewTest, pointerOnAPointShowsItsLabelAndValue) {
  QTest::mouseMove(view.viewport(), inColumn(2, 0.5));
  QTest::mouseMove(view.viewport(), inColumn(1, 0.5));
  EXPECT_EQ(QToolTip::text(), "2026-01-05 11:00:07\n0.07");
  QTest::mouseMove(view.viewport(), inColumn(2, 0.9));
  EXPECT_EQ(QToolTip::text(), "2026-01-05 12:00:03\n0");
}

TEST_F(ChartViewTest, pointWithoutAPairShowsNothing) {
  QToolTip::hideText();
  QTest::qWait(400);  // the tip fades
  QTest::mouseMove(view.viewport(), inColumn(10, 0.5));
  EXPECT_EQ(QToolTip::text(), "");
}

TEST_F(ChartViewTest, takesClicksOnItself) {
  struct Frame : QWidget {
    int clicks = 0;
    void mousePressEvent(QMouseEvent*) override { ++clicks; }
    void mouseDoubleClickEvent(QMouseEvent*) override { ++clicks; }
  } frame;
  auto* inFrame = new ChartView(chart, fixedFont(9), &frame);
  frame.resize(800, 500);
  inFrame->resize(700, 400);
  frame.show();
  QApplication::processEvents();
  QTest::mouseClick(inFrame->viewport(), Qt::LeftButton);
  QTest::mouseDClick(inFrame->viewport(), Qt::LeftButton);
  QTest::mouseDClick(inFrame, Qt::LeftButton);
  EXPECT_EQ(frame.clicks, 0);
  QTest::mouseDClick(&frame, Qt::LeftButton, {}, QPoint(750, 450));
  EXPECT_GT(frame.clicks, 0);
}

TEST_F(ChartViewTest, hiddenChartHidesItsWidget) {
  chart.Visible(false);
  QApplication::processEvents();
  EXPECT_FALSE(view.isVisible());
}

}  // namespace
}  // namespace kestrelix
