// A desktop of light texts on dark windows: grids, lists and chart keep their own light colours.
#include <QTableView>

#include "desktop/ChartView.h"
#include "desktop/fonts.h"
#include "desktop/gui_fixture.h"

namespace kestrelix {
namespace {

using testing_support::GuiTest;

class DarkDesktop : public GuiTest {
 protected:
  DarkDesktop() {
    const QColor dark(0x26, 0x28, 0x2c);
    QPalette colours(dark, dark);
    colours.setColor(QPalette::Base, QColor(0x18, 0x19, 0x1c));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
      colours.setColor(role, QColor(0xec, 0xee, 0xf0));
    QApplication::setPalette(colours);
  }
  ~DarkDesktop() override { QApplication::setPalette(before_); }

  /// How many points of the picture are darker than a middle grey.
  static int darkPoints(const QImage& picture) {
    int count = 0;
    for (int y = 0; y < picture.height(); ++y)
      for (int x = 0; x < picture.width(); ++x) count += picture.pixelColor(x, y).lightness() < 0x80;
    return count;
  }
  /// The background of a cell, at its right below the text.
  static QColor background(int row, int col) {
    auto* grid = view("MSFlexGridMain");
    const QRect at = grid->visualRect(grid->model()->index(row, col));
    return grid->viewport()->grab().toImage().pixelColor(at.right() - 2, at.bottom() - 2);
  }

 private:
  const QPalette before_ = QApplication::palette();
};

TEST_F(DarkDesktop, theGreyOfTheSeriesIsToldFromTheWhiteOfAPair) {
  logOn();
  EXPECT_EQ(background(1, 1), QColor(0xFF, 0xFF, 0xFF));
  doubleClickCell("MSFlexGridMain", 0, 0);
  EXPECT_EQ(background(1, 1), QColor(0xE0, 0xE0, 0xE0));
}

TEST_F(DarkDesktop, listsShowDarkTextOnWhite) {
  logOn();
  const QImage picture = view("ListSection")->viewport()->grab().toImage();
  EXPECT_EQ(picture.pixelColor(picture.width() - 3, picture.height() - 3), QColor(0xFF, 0xFF, 0xFF));
  const QRect second = view("ListSection")->visualRect(view("ListSection")->model()->index(1, 0));
  EXPECT_GT(darkPoints(picture.copy(second)), 50);
}

TEST_F(DarkDesktop, theTimesUnderTheChartAreDark) {
  Chart chart{"MSChartCommon"};
  chart.RowCount(20);
  chart.RowLabel(1, "2026-01-05 11:00:07");
  ChartView shown(chart, fixedFont(9), nullptr);
  shown.resize(761, 473);
  shown.show();
  settle();
  const QImage picture = shown.viewport()->grab().toImage();
  const QRectF plot = shown.chart()->plotArea();
  // Two lines under the first of twenty points; there is nothing else, and the chart's edge lies below.
  const QRect labels(static_cast<int>(plot.left()), static_cast<int>(plot.bottom()) + 6, 33, 24);
  EXPECT_GT(darkPoints(picture.copy(labels)), 50);
}

}  // namespace
}  // namespace kestrelix
