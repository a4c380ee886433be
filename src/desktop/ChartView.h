#pragma once

#include <QBarCategoryAxis>
#include <QBarSeries>
#include <QBarSet>
#include <QChartView>
#include <QValueAxis>

#include "desktop/mirror.h"

namespace kestrelix {

/// The chart on the screen: a bar a point, over the point's time on two lines, the hour above the day. The
/// pointer on a point shows its whole label and value. It takes the mouse on itself.
class ChartView final : public QChartView {
 public:
  ChartView(Chart& chart, const QFont& font, QWidget* parent);

 protected:
  bool event(QEvent* event) override;
  /// The wheel is the window's.
  void wheelEvent(QWheelEvent* event) override;
  bool viewportEvent(QEvent* event) override;
  void drawForeground(QPainter* painter, const QRectF& rectangle) override;

 private:
  void draw();
  void drawAxis();
  QRectF plot() const { return chart()->plotArea(); }
  int pointAt(const QPointF& place) const;

  Chart& control_;
  QBarSet* bars_;
  QBarCategoryAxis* points_;
  QValueAxis* values_;
};

}  // namespace kestrelix
